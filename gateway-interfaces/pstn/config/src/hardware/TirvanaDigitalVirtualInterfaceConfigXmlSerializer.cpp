#include "hardware/TirvanaDigitalVirtualInterfaceConfigXmlSerializer.h"

#include <new>

#include <velquin/UniqueObjPtr.h>

#include "hardware/TirvanaDigitalVirtualInterfaceConfig.h"
#include "reading/ElementReader.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( TirvanaDigitalVirtualInterfaceConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for digital interface ", "] for digital interface " };

} // namespace

InterfaceConfig* TirvanaDigitalVirtualInterfaceConfigXmlSerializer::read( xmlNode* const in_pElement,
                                                                          XmlConfig& in_xmlConfig,
                                                                          const BoardConfig& in_boardConfig ) try {
    UniqueObjPtr<InterfaceConfig> pInterfaceConfig(
        DigitalInterfaceConfigXmlSerializer::read( in_pElement, in_xmlConfig, in_boardConfig ) );
    if ( pInterfaceConfig.isNull() )
        return nullptr;
    auto pTirvanaDigitalVirtualInterfaceConfig =
        dynamicOwnerCast<TirvanaDigitalVirtualInterfaceConfig>( std::move( pInterfaceConfig ) );
    if ( !VELQUIN_ASSERT( !pTirvanaDigitalVirtualInterfaceConfig.isNull() ) )
        return nullptr;

    const ElementReader reader( in_pElement, getLogger(), WORDING );
    using Config = TirvanaDigitalVirtualInterfaceConfig;
    if ( !reader.require( "peerVirtualInterfaceID", LEADING_DECIMAL, *pTirvanaDigitalVirtualInterfaceConfig,
                          &Config::setPeerVirtualInterfaceId ) ||
         !reader.require( "peerVirtualBoardID", LEADING_DECIMAL, *pTirvanaDigitalVirtualInterfaceConfig,
                          &Config::setPeerVirtualBoardId ) )
        return nullptr;
    return pTirvanaDigitalVirtualInterfaceConfig.release();
}
VELQUIN_CATCH_AND_RETURN( getLogger(), nullptr )

bool TirvanaDigitalVirtualInterfaceConfigXmlSerializer::write( xmlNode* const, const InterfaceConfig& ) {
    return reportNotImplemented( getLogger(), "TirvanaDigitalVirtualInterfaceConfigXmlSerializer::write" );
}

InterfaceConfig* TirvanaDigitalVirtualInterfaceConfigXmlSerializer::newInterfaceConfig() {
    return new ( std::nothrow ) TirvanaDigitalVirtualInterfaceConfig();
}

} // namespace Velquin::Pstn
