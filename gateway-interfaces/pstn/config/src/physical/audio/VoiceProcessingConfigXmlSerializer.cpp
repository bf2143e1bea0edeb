#include "physical/audio/VoiceProcessingConfigXmlSerializer.h"

#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

bool reportBlockNotWritten( const Logger& in_logger, const char* in_szXmlSerializer ) noexcept try {
    const std::string strOperation = std::string( in_szXmlSerializer ) + "::write";
    return reportNotImplemented( in_logger, strOperation.c_str() );
}
VELQUIN_CATCH_AND_RETURN( in_logger, false )

} // namespace Velquin::Pstn
