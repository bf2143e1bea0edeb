#include "hardware/TirvanaDigitalVirtualBoardConfigXmlSerializer.h"

#include <new>

#include <velquin/UniqueObjPtr.h>

#include "hardware/BoardInterfaces.h"
#include "hardware/TirvanaDigitalVirtualBoardConfig.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalVirtualBoardConfigXmlSerializer );

namespace {

constexpr InterfaceAssertions ASSERTIONS{ "!pDigitalInterfaceConfig.isNull()", "!pDigitalInterfaceConfig.isNull()" };

} // namespace

BoardConfig* TirvanaDigitalVirtualBoardConfigXmlSerializer::read( xmlNode* const in_pElement,
                                                                  XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<BoardConfig> pBoardConfig( DigitalBoardConfigXmlSerializer::read( in_pElement, in_xmlConfig ) );
    if ( pBoardConfig.isNull() )
        return nullptr;
    auto pVirtualBoardConfig = dynamicOwnerCast<TirvanaDigitalVirtualBoardConfig>( std::move( pBoardConfig ) );
    if ( !VELQUIN_ASSERT( !pVirtualBoardConfig.isNull() ) )
        return nullptr;

    if ( !readInterfaces<DigitalKind>( in_pElement, in_xmlConfig, *pVirtualBoardConfig, m_interfaceXmlSerializer,
                                       ASSERTIONS ) )
        return nullptr;
    return pVirtualBoardConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaDigitalVirtualBoardConfigXmlSerializer::write( xmlNode* const, const BoardConfig& ) {
    return reportNotImplemented( getLogger(), "TirvanaDigitalVirtualBoardConfigXmlSerializer::write" );
}

BoardConfig* TirvanaDigitalVirtualBoardConfigXmlSerializer::newBoardConfig() {
    return new ( std::nothrow ) TirvanaDigitalVirtualBoardConfig();
}

} // namespace Velquin::Pstn
