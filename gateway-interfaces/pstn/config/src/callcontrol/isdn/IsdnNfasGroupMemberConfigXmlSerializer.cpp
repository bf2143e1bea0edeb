#include "callcontrol/isdn/IsdnNfasGroupMemberConfigXmlSerializer.h"

#include <velquin/Assertion.h>

#include "callcontrol/isdn/IsdnBChannelRange.h"
#include "callcontrol/isdn/IsdnNfasConfig.h"
#include "hardware/InterfaceReference.h"
#include "loading/XmlConfig.h"
#include "reading/ElementEntries.h"
#include "reading/NotImplemented.h"

namespace Velquin::Pstn {

PSTN_CONFIG_CLASS_IMPL( IsdnNfasGroupMemberConfigXmlSerializer );

namespace {

constexpr ReaderWording WORDING{ "] for Nfas group member config  ", "] for isdn fas config " };
constexpr ReaderWording RANGE_ELEMENT_WORDING{ "] for Nfas group memeber config  ", "" };
constexpr IsdnBChannelRange::Wording RANGE_WORDING{ WORDING, WORDING, WORDING, "fisrtChannel" };
constexpr NumberRule NFAS_INTERFACE_ID{ NumberPolicy::WHOLE, "The value must be apositive integer." };

/// Finds the interface that the member names; null after an ERROR line.
TSHandle<DigitalInterfaceConfig> readInterface( const ElementReader& in_reader, const Config& in_config,
                                                const Logger& in_logger ) {
    InterfaceReference<DigitalKind> reference( in_reader, in_logger, WHOLE_DECIMAL );
    if ( !reference.readBoard( in_config ) )
        return {};
    if ( !reference.findInterfaceId() ) {
        VELQUIN_REPORT_ERROR( in_logger, "failed to retrieve digital interface ID= "
                                             << "interfaceID"
                                             << " of board ID= " << reference.getBoard()->getId() );
        return {};
    }
    return reference.readInterface() ? std::move( reference.releaseInterfaces().front() ) : nullptr;
}

} // namespace

TSHandle<IsdnNfasGroupMemberConfig>
IsdnNfasGroupMemberConfigXmlSerializer::read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                              IsdnNfasConfig* in_pNfasConfig, xmlNode* const in_pElement,
                                              XmlConfig& in_xmlConfig ) try {
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    if ( !VELQUIN_ASSERT( in_pNfasConfig ) || !VELQUIN_ASSERT( !in_hCallControlConfig.isNull() ) )
        return {};
    TSHandle<IsdnNfasGroupMemberConfig> hGroupMember( new IsdnNfasGroupMemberConfig() );
    if ( !reader.requireKey( "nfasInterfaceID", NFAS_INTERFACE_ID, *hGroupMember,
                             &IsdnNfasGroupMemberConfig::setNfasInterfaceID ) ||
         !reader.requireKey( "DChannelMode", Keywords::NFAS_D_CHANNEL_MODE, *hGroupMember,
                             &IsdnNfasGroupMemberConfig::setDChannelMode ) )
        return {};

    const auto hInterface = readInterface( reader, in_xmlConfig, getLogger() );
    const bool bSet = !hInterface.isNull() && hGroupMember->setInterfaceMember( hInterface );
    if ( !hInterface.isNull() && !bSet )
        VELQUIN_REPORT_ERROR( getLogger(), "failed to set Digital interface " << hInterface->getUniqueId( false )
                                                                              << " as NFAS interface "
                                                                              << hGroupMember->getNfasInterfaceID() );
    if ( !bSet && !AttributeReader::passOver() )
        return {};

    const ChildElements ranges( in_pElement, "BChannelRange" );
    if ( ranges.empty() ) {
        reader.as( RANGE_ELEMENT_WORDING ).reportMissingChild( "BChannelRange" );
        return {};
    }
    const bool bRead = readEntries( ranges, [&]( xmlNode* in_pRange ) {
        const AttributeReader rangeReader( in_pRange, getLogger(), WORDING );
        IsdnBChannelRange range;
        if ( !range.read( rangeReader, *in_hCallControlConfig, RANGE_WORDING, getLogger() ) )
            return false;
        if ( !bSet || range.addTo( *in_pNfasConfig, *hInterface, getLogger() ) )
            return true;
        VELQUIN_REPORT_ERROR( getLogger(),
                              "failed to add BChannel range to channel group ID= " << range.hChannelGroup->getId() );
        return false;
    } );
    if ( !bRead || !bSet )
        return {};
    return hGroupMember;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool IsdnNfasGroupMemberConfigXmlSerializer::write( xmlNode* const, const IsdnNfasGroupMemberConfig& ) {
    return reportNotImplemented( getLogger(), "IsdnNfasGroupMemberConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn
