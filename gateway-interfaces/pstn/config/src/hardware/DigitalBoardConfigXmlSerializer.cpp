#include "hardware/DigitalBoardConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "hardware/DigitalBoardConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( DigitalBoardConfigXmlSerializer );

BoardConfig* DigitalBoardConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<BoardConfig> pBoardConfig( BoardConfigXmlSerializer::read( in_pElement, in_xmlConfig ) );
    if ( pBoardConfig.isNull() )
        return nullptr;
    auto pDigitalBoardConfig = dynamicOwnerCast<DigitalBoardConfig>( std::move( pBoardConfig ) );
    if ( !VELQUIN_ASSERT( !pDigitalBoardConfig.isNull() ) )
        return nullptr;
    return pDigitalBoardConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

} // namespace Velquin::Pstn
