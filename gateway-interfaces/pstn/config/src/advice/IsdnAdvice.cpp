#include <algorithm>
#include <optional>
#include <string>

#include "advice/AdviceTable.h"
#include "callcontrol/isdn/IsdnFasConfig.h"
#include "callcontrol/isdn/IsdnNfasConfig.h"

// ISDN: groups and their members.

namespace Velquin::Pstn {

namespace {

using DChannelMode = IsdnNfasGroupMemberConfig::DChannelMode;
using Member = IsdnNfasGroupMemberConfig;
using MediaType = DigitalInterfacePhysicalConfig::MediaType;

AdvicePlace placeOfMember( const IsdnNfasConfig& in_group, const Member& in_member ) {
    return placeOf( AdviceSubject::IsdnUse{ &in_group, &in_member }, *in_member.getInterfaceConfig() );
}

AdvicePlace placeOfGroup( const IsdnNfasConfig& in_group ) {
    // The place of a group doesn't depend on the member.
    return placeOf( AdviceSubject::IsdnUse{ &in_group, in_group.getMemberInterfaces().begin()->second.get() } );
}

template <class Check>
void forEachGroup( const AdviceSubject& in_subject, Check in_check ) {
    if ( in_subject.hCallControl.isNull() || in_subject.hCallControl->getIsdnConfig().isNull() )
        return;
    for ( const auto& [uId, hGroup] : in_subject.hCallControl->getIsdnConfig()->getNfasConfigs() ) {
        if ( !hGroup->getMemberInterfaces().empty() )
            in_check( *hGroup );
    }
}

std::vector<const Member*> findMembers( const IsdnNfasConfig& in_group, DChannelMode in_eMode ) {
    std::vector<const Member*> vecMembers;
    for ( const auto& [strInterface, hMember] : in_group.getMemberInterfaces() ) {
        if ( hMember->getDChannelMode() == in_eMode && !hMember->getInterfaceConfig().isNull() )
            vecMembers.push_back( hMember.get() );
    }
    return vecMembers;
}

/// Says so when several members have a mode that only one may have.
void adviseSeveral( const IsdnNfasConfig& in_group, const std::vector<const Member*>& in_vecMembers,
                    const char* in_szHint, AdviceReport& inout_report ) {
    if ( in_vecMembers.size() < 2 )
        return;
    Advice advice{ placeOfMember( in_group, *in_vecMembers[1] ).attribute( "DChannelMode" ),
                   "",
                   in_szHint,
                   { { "first here", placeOfMember( in_group, *in_vecMembers[0] ).attribute( "DChannelMode" ) } } };
    for ( std::size_t u = 2; u < in_vecMembers.size(); ++u )
        advice.vecRelated.push_back(
            { "also here", placeOfMember( in_group, *in_vecMembers[u] ).attribute( "DChannelMode" ) } );
    inout_report.add( advice );
}

/// Nothing when the member's span has no physical configuration, or a faulty one.
std::optional<MediaType> getMediaType( const Member& in_member, AdviceReport& in_report ) {
    const DigitalInterfaceConfig* const pInterface = in_member.getInterfaceConfig().get();
    const DigitalInterfacePhysicalConfig* const pPhysical =
        pInterface ? pInterface->getPhysicalConfig().get() : nullptr;
    using Physical = AdviceSubject::Physical<DigitalInterfacePhysicalConfig>;
    if ( !pPhysical || in_report.isAtFault( [&] { return placeOf( Physical{ pPhysical, pInterface } ); } ) )
        return {};
    return pPhysical->getMediaType();
}

} // namespace

void adviseSpanInTwoIsdnGroups( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    for ( const AdviceSubject::Span& span : in_subject.vecSpans ) {
        const auto itOther = std::find_if( span.uses.begin(), span.uses.end(), [&]( const auto& in_use ) {
            return in_use.pGroup != span.uses.front().pGroup;
        } );
        if ( itOther == span.uses.end() )
            continue;
        const AdviceSubject::IsdnUse& first = span.uses.front();
        inout_report.add( { placeOf( *itOther, *span.pInterface ),
                            nameOf( *span.pInterface ) + " is already in " + nameOf( first ),
                            "leave it in one ISDN group",
                            { { "first here", placeOf( first, *span.pInterface ) } } } );
    }
}

void adviseNfasPrimary( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    forEachGroup( in_subject, [&]( const IsdnNfasConfig& in_group ) {
        const std::vector<const Member*> vecPrimaries = findMembers( in_group, DChannelMode::PRIMARY );
        const std::vector<const Member*> vecBackups = findMembers( in_group, DChannelMode::BACKUP );
        if ( !vecPrimaries.empty() ) {
            adviseSeveral( in_group, vecPrimaries,
                           "a group has one PRIMARY D-channel; make this one BACKUP or DISABLED", inout_report );
            adviseSeveral( in_group, vecBackups, "a group has one BACKUP D-channel at most; make this one DISABLED",
                           inout_report );
            return;
        }
        const AdvicePlace place = placeOfGroup( in_group );
        // A member that could not be read may be the PRIMARY one.
        if ( inout_report.getDocument().countChildren( place.vecKeys.front(), "members" ) !=
             in_group.getMemberInterfaces().size() )
            return;
        if ( vecBackups.empty() )
            inout_report.add( { place, "no member of this group has the PRIMARY D-channel",
                                "make the member whose span carries the D-channel PRIMARY" } );
        else
            inout_report.add( { placeOfMember( in_group, *vecBackups[0] ).attribute( "DChannelMode" ), "",
                                "the group has a BACKUP but no PRIMARY D-channel; make one of its members PRIMARY" } );
    } );
}

void adviseNfasMixedMedia( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    forEachGroup( in_subject, [&]( const IsdnNfasConfig& in_group ) {
        const Member* pFirst = nullptr;
        std::optional<MediaType> eFirst;
        for ( const auto& [strInterface, hMember] : in_group.getMemberInterfaces() ) {
            const std::optional<MediaType> eMedia = getMediaType( *hMember, inout_report );
            if ( !pFirst && eMedia ) {
                pFirst = hMember.get();
                eFirst = eMedia;
            }
            if ( eMedia == eFirst || !eMedia )
                continue;
            const bool bT1 = eMedia == MediaType::T1;
            inout_report.add( { placeOfMember( in_group, *hMember ),
                                nameOf( *hMember->getInterfaceConfig() ) +
                                    ( bT1 ? " is a T1 line, and the group began with an E1 line"
                                          : " is an E1 line, and the group began with a T1 line" ),
                                "give the lines of each kind a group of their own",
                                { { "first here", placeOfMember( in_group, *pFirst ) } } } );
            return;
        }
    } );
}

void adviseSignallingNotCcs( const AdviceSubject& in_subject, AdviceReport& inout_report ) {
    using E1Signaling = DigitalInterfacePhysicalConfig::E1Signaling;
    for ( const AdviceSubject::Span& span : in_subject.vecSpans ) {
        if ( !span.pPhysical || span.uses.empty() || span.pPhysical->getMediaType() != MediaType::E1 )
            continue;
        const E1Signaling eSignaling = span.pPhysical->getE1Signaling();
        // A member whose signalling runs on another span needs none of its own.
        if ( eSignaling == E1Signaling::CCS || ( eSignaling == E1Signaling::NONE && !span.pPhysical->hasDChannel() ) )
            continue;
        inout_report.add(
            { placeOf( AdviceSubject::Physical<DigitalInterfacePhysicalConfig>{ span.pPhysical, span.pInterface } )
                  .below( "digitalE1", "E1Signaling" ),
              "",
              nameOf( *span.pInterface ) + " is under ISDN, which needs CCS",
              { { "ISDN here", placeOf( span.uses.front(), *span.pInterface ) } } } );
    }
}

} // namespace Velquin::Pstn
