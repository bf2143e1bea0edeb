#include "callcontrol/isdn/IsdnNfasGroupMemberConfigXmlSerializer.h"

#include <velquin/Assertion.h>

#include "callcontrol/isdn/IsdnBChannelRange.h"
#include "callcontrol/isdn/IsdnNfasConfig.h"
#include "hardware/InterfaceReference.h"
#include "loading/XmlConfig.h"
#include "reading/ChildElements.h"
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
    const ReadResult eResult = reference.readInterface();
    if ( eResult == ReadResult::ABSENT ) {
        VELQUIN_REPORT_ERROR( in_logger, "failed to retrieve digital interface ID= "
                                             << "interfaceID"
                                             << " of board ID= " << reference.getBoard()->getId() );
    }
    return eResult == ReadResult::READ ? std::move( reference.releaseInterfaces().front() ) : nullptr;
}

/// Gives the member its interface. The model has told why when it refuses; here stands what that means.
bool setInterface( IsdnNfasGroupMemberConfig& out_member, const TSHandle<DigitalInterfaceConfig>& in_hInterface,
                   const IsdnNfasConfig& in_nfasConfig, const Logger& in_logger ) {
    if ( out_member.setInterfaceMember( in_hInterface ) )
        return true;
    if ( in_hInterface->hasDChannel() ) {
        VELQUIN_REPORT_ERROR( in_logger, "failed to set Digital interface " << in_hInterface->getUniqueId( false )
                                                                            << " as NFAS interface "
                                                                            << out_member.getNfasInterfaceID() );
    } else {
        VELQUIN_REPORT_ERROR( in_logger, "failed to add Digital interface "
                                             << in_hInterface->getUniqueId( false ) << " to NFAS group "
                                             << in_nfasConfig.getId() << " because this interface has no D-Channel" );
    }
    return false;
}

} // namespace

TSHandle<IsdnNfasGroupMemberConfig>
IsdnNfasGroupMemberConfigXmlSerializer::read( TSHandle<CallControlConfig>& in_hCallControlConfig,
                                              IsdnNfasConfig* in_pNfasConfig, xmlNode* const in_pElement,
                                              XmlConfig& in_xmlConfig ) try {
    if ( !VELQUIN_ASSERT( in_pNfasConfig ) )
        return {};
    const ElementReader reader( in_pElement, getLogger(), WORDING );
    TSHandle<IsdnNfasGroupMemberConfig> hGroupMember( new IsdnNfasGroupMemberConfig() );

    unsigned long long ullNfasInterfaceID = 0;
    if ( !reader.requireNumber( "nfasInterfaceID", NFAS_INTERFACE_ID, ullNfasInterfaceID ) )
        return {};
    hGroupMember->setNfasInterfaceID( ullNfasInterfaceID );

    auto eMode = hGroupMember->getDChannelMode();
    if ( !reader.requireKeyword( "DChannelMode", Keywords::NFAS_D_CHANNEL_MODE, eMode ) )
        return {};
    hGroupMember->setDChannelMode( eMode );

    const auto hInterface = readInterface( reader, in_xmlConfig, getLogger() );
    if ( hInterface.isNull() || !setInterface( *hGroupMember, hInterface, *in_pNfasConfig, getLogger() ) )
        return {};

    const ChildElements ranges( in_pElement, "BChannelRange" );
    if ( ranges.empty() ) {
        reader.as( RANGE_ELEMENT_WORDING ).reportMissingChild( "BChannelRange" );
        return {};
    }
    for ( xmlNode* const pRange : ranges ) {
        const ElementReader rangeReader( pRange, getLogger(), WORDING );
        IsdnBChannelRange range;
        if ( !range.read( rangeReader, *in_hCallControlConfig, RANGE_WORDING, getLogger() ) )
            return {};
        if ( !range.addTo( *in_pNfasConfig, *hInterface, getLogger() ) ) {
            VELQUIN_REPORT_ERROR(
                getLogger(), "failed to add BChannel range to channel group ID= " << range.hChannelGroup->getId() );
            return {};
        }
    }
    return hGroupMember;
}
VELQUIN_CATCH_AND_RETURN( getLogger(), {} )

bool IsdnNfasGroupMemberConfigXmlSerializer::write( xmlNode* const, const IsdnNfasGroupMemberConfig& ) {
    return reportNotImplemented( getLogger(), "IsdnNfasGroupMemberConfigXmlSerializer::write" );
}

} // namespace Velquin::Pstn
