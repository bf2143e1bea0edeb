#include "hardware/TirvanaDigitalVirtualBoardConfigXmlSerializer.h"

#include <new>

#include <velquin/UniqueObjPtr.h>

#include "hardware/TirvanaDigitalVirtualBoardConfig.h"
#include "reading/ChildElements.h"
#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalVirtualBoardConfigXmlSerializer );

BoardConfig* TirvanaDigitalVirtualBoardConfigXmlSerializer::read( xmlNode* const in_pElement,
                                                                  XmlConfig& in_xmlConfig ) try {
    UniqueObjPtr<BoardConfig> pBoardConfig( DigitalBoardConfigXmlSerializer::read( in_pElement, in_xmlConfig ) );
    if ( pBoardConfig.isNull() )
        return nullptr;
    auto pVirtualBoardConfig = dynamicOwnerCast<TirvanaDigitalVirtualBoardConfig>( std::move( pBoardConfig ) );
    if ( !VELQUIN_ASSERT( !pVirtualBoardConfig.isNull() ) )
        return nullptr;

    for ( xmlNode* const pChild : ChildElements( in_pElement ) ) {
        UniqueObjPtr<InterfaceConfig> pInterfaceConfig(
            m_interfaceXmlSerializer.read( pChild, in_xmlConfig, *pVirtualBoardConfig ) );
        auto pDigitalInterfaceConfig = dynamicOwnerCast<DigitalInterfaceConfig>( std::move( pInterfaceConfig ) );
        if ( !VELQUIN_ASSERT( !pDigitalInterfaceConfig.isNull() ) )
            return nullptr;
        const ElementPlace place( pChild );
        if ( !pVirtualBoardConfig->addDigitalInterfaceConfig( pDigitalInterfaceConfig.release() ) )
            return nullptr;
    }
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
