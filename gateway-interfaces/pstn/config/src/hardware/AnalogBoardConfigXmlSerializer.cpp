#include "hardware/AnalogBoardConfigXmlSerializer.h"

#include <velquin/UniqueObjPtr.h>

#include "hardware/AnalogBoardConfig.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( AnalogBoardConfigXmlSerializer );

BoardConfig* AnalogBoardConfigXmlSerializer::read( xmlNode* const in_pElement, XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<BoardConfig> pBoardConfig( BoardConfigXmlSerializer::read( in_pElement, in_xmlConfig ) );
    if ( pBoardConfig.isNull() )
        return nullptr;
    auto pAnalogBoardConfig = dynamicOwnerCast<AnalogBoardConfig>( std::move( pBoardConfig ) );
    if ( !VELQUIN_ASSERT( !pAnalogBoardConfig.isNull() ) )
        return nullptr;
    return pAnalogBoardConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

} // namespace Velquin::Pstn
