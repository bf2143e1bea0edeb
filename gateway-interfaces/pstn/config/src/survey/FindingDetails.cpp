#include "survey/FindingDetails.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "RuleNames.h"
#include "Suggestion.h"
#include "document/Element.h"
#include "reading/ChildElements.h"
#include "reading/Number.h"
#include "survey/Elements.h"
#include "survey/ReferenceKeys.h"

namespace Velquin::Pstn {

namespace {

constexpr std::size_t MAX_DETAILED = 100; // each may look through the whole document

/// "there is no such board; there are 1, 2 and 3"
/// @param in_bNumbers whether identifiers are numbers: of those, one is not more like another
std::string describeMissing( const std::string& in_strWhat, const std::string& in_strValue,
                             const std::vector<const xmlNode*>& in_vecExisting, bool in_bNumbers = true ) {
    constexpr std::size_t MAX_LISTED = 10;
    std::vector<std::string> vecIds;
    for ( const xmlNode* const pElement : in_vecExisting ) {
        std::string strId = getValue( pElement, "ID" );
        if ( in_bNumbers ? parseNumber<unsigned int>( strId, NumberPolicy::WHOLE ).has_value() : !strId.empty() )
            vecIds.push_back( std::move( strId ) );
    }
    std::string strText = "there is no " + in_strWhat + " with this ID";
    if ( vecIds.empty() )
        return strText + "; there are none";
    if ( const std::string strNearest = in_bNumbers ? "" : findNearest( in_strValue, vecIds ); !strNearest.empty() )
        return strText + "; did you mean \"" + strNearest + "\"?";
    strText += vecIds.size() == 1 ? "; there is " : "; there are ";
    for ( std::size_t u = 0; u < std::min( vecIds.size(), MAX_LISTED ); ++u )
        strText.append( u == 0 ? "" : u + 1 == vecIds.size() ? " and " : ", " ).append( vecIds[u] );
    return vecIds.size() > MAX_LISTED ? strText + " ..." : strText;
}

/// Relates a place, in front of those of findings with the same cause.
void relate( Finding& inout_finding, const char* in_szLabel, const xmlNode* in_pElement, const char* in_szAttribute ) {
    inout_finding.vecRelated.insert( inout_finding.vecRelated.begin(),
                                     { in_szLabel, getElementFile( in_pElement ), getElementLine( in_pElement ),
                                       getElementNumber( in_pElement ), in_szAttribute } );
}

/// Relates the other place of what stands twice.
void relateOther( SurveyedFinding& inout_item, const xmlNode* in_pOther, const char* in_szAttribute ) {
    const bool bFirst = getElementNumber( in_pOther ) < getElementNumber( inout_item.pElement );
    relate( inout_item.finding, bFirst ? "first here" : "also here", in_pOther, in_szAttribute );
}

/// Relates the first element in front of the finding's that fits.
template <class TFits>
void relateFirst( SurveyedFinding& inout_item, const std::vector<const xmlNode*>& in_vecElements,
                  const char* in_szAttribute, const TFits& in_fits ) {
    for ( const xmlNode* const pElement : in_vecElements ) {
        if ( getElementNumber( pElement ) >= getElementNumber( inout_item.pElement ) )
            return;
        if ( in_fits( pElement ) ) {
            relateOther( inout_item, pElement, in_szAttribute );
            return;
        }
    }
}

/// Whether the reference names, with its two identifiers exchanged, an interface that no other one of its section
/// names.
bool isSwapped( const xmlNode* in_pReference, const xmlNode* in_pRoot ) {
    if ( !isReference( in_pReference ) )
        return false;
    const bool bAnalog = isAnalog( in_pReference );
    const std::string strBoard = getValue( in_pReference, "interfaceID" );
    const std::string strInterface = getValue( in_pReference, "boardID" );
    const xmlNode* const pBoard = findById( getBoards( in_pRoot, bAnalog ), strBoard );
    if ( !pBoard || !findById( getChildren( pBoard ), strInterface ) )
        return false;
    const std::vector<const xmlNode*> vecOthers = getTree( getChain( in_pReference )[0] );
    return std::none_of( vecOthers.begin(), vecOthers.end(), [&]( const xmlNode* in_pOther ) {
        const std::string strOther = getValue( in_pOther, "interfaceID" );
        return isReference( in_pOther ) && isAnalog( in_pOther ) == bAnalog &&
               isSameIdentifier( getValue( in_pOther, "boardID" ), strBoard ) &&
               ( strOther.empty() || isSameIdentifier( strOther, strInterface ) );
    } );
}

constexpr const char* SWAPPED = "; boardID and interfaceID may be swapped";
constexpr const char* WHOLE_BOARD = "without interfaceID, it means all lines of the board: name the one";

void detailUnknownBoard( SurveyedFinding& inout_item, const xmlNode* in_pRoot ) {
    Finding& finding = inout_item.finding;
    const bool bAnalog = isAnalog( inout_item.pElement );
    finding.strHint =
        describeMissing( bAnalog ? "analog board" : "digital board", finding.strValue, getBoards( in_pRoot, bAnalog ) );
    if ( const xmlNode* const pOther = findById( getBoards( in_pRoot, !bAnalog ), finding.strValue ) ) {
        finding.strHint += bAnalog ? "; a digital board has it" : "; an analog board has it";
        relate( finding, "declared here", pOther, "ID" );
    } else if ( isSwapped( inout_item.pElement, in_pRoot ) ) {
        finding.strHint += SWAPPED;
    }
}

void detailUnknownInterface( SurveyedFinding& inout_item, const xmlNode* in_pRoot ) {
    const xmlNode* const pElement = inout_item.pElement;
    const bool bOfBoard = inout_item.finding.strAttribute == "primaryClockReference";
    const xmlNode* const pBoard =
        bOfBoard ? pElement : findById( getBoards( in_pRoot, isAnalog( pElement ) ), getValue( pElement, "boardID" ) );
    if ( !pBoard )
        return;
    inout_item.finding.strHint = describeMissing( "interface on board " + getValue( pBoard, "ID" ),
                                                  inout_item.finding.strValue, getChildren( pBoard ) );
    if ( isSwapped( pElement, in_pRoot ) )
        inout_item.finding.strHint += SWAPPED;
    if ( !bOfBoard )
        relate( inout_item.finding, "board declared here", pBoard, "ID" );
}

void detailUnknownChannelGroup( SurveyedFinding& inout_item, const xmlNode* in_pRoot ) {
    std::vector<const xmlNode*> vecGroups;
    for ( const xmlNode* const pCallControl : ChildElements( in_pRoot, "callControl" ) ) {
        for ( const xmlNode* const pGroups : ChildElements( pCallControl, "channelGroups" ) )
            vecGroups = getChildren( pGroups );
    }
    inout_item.finding.strHint = describeMissing( "channel group", inout_item.finding.strValue, vecGroups, false );
}

void detailIdentifierTwice( SurveyedFinding& inout_item, const xmlNode* ) {
    const xmlNode* const pElement = inout_item.pElement;
    Finding& finding = inout_item.finding;
    const std::string strAttribute = finding.strAttribute;
    finding.strHint =
        "another one has this " + std::string( strAttribute == "name" ? "name" : "identifier" ) + "; give each its own";
    const bool bAnalog = isAnalog( pElement );
    relateFirst( inout_item, getChildren( getParentElement( pElement ) ), strAttribute.c_str(),
                 [&]( const xmlNode* in_pOther ) {
                     // Boards of two kinds, and FAS and NFAS groups, are numbered apart.
                     const bool bSameKind = isNamed( in_pOther, "interface" ) ||
                                            isNamed( in_pOther, getElementName( pElement ) ) ||
                                            isNamed( getParentElement( pElement ), "boards" );
                     return bSameKind && isAnalog( in_pOther ) == bAnalog &&
                            isSameIdentifier( getValue( in_pOther, strAttribute.c_str() ), finding.strValue );
                 } );
}

void detailTirpipeTwice( SurveyedFinding& inout_item, const xmlNode* in_pRoot ) {
    Finding& finding = inout_item.finding;
    finding.strHint = "another board or interface has this tirpipe number; give each its own";
    // Analog boards are asked first: the other place may stand behind.
    for ( const xmlNode* const pBoards : ChildElements( in_pRoot, "boards" ) ) {
        for ( const xmlNode* const pElement : getTree( pBoards ) ) {
            if ( pElement != inout_item.pElement &&
                 isSameIdentifier( getValue( pElement, "tirpipe" ), finding.strValue ) ) {
                relateOther( inout_item, pElement, "tirpipe" );
                return;
            }
        }
    }
}

/// @param in_pScope the references in this element are looked through
void relateFirstReference( SurveyedFinding& inout_item, const xmlNode* in_pScope, const char* in_szHint ) {
    inout_item.finding.strHint = isWholeBoard( inout_item.pElement ) ? WHOLE_BOARD : in_szHint;
    relateFirst( inout_item, getTree( in_pScope ), "boardID", [&inout_item]( const xmlNode* in_pOther ) {
        return isReference( in_pOther ) && meanOneLine( in_pOther, inout_item.pElement );
    } );
}

void detailPhysicalConfigTwice( SurveyedFinding& inout_item, const xmlNode* ) {
    inout_item.finding.strMessage = "this line already has a physical configuration";
    relateFirstReference( inout_item, getChain( inout_item.pElement )[0], "apply only one to each line" );
}

void detailNfasMemberTwice( SurveyedFinding& inout_item, const xmlNode* ) {
    inout_item.finding.strMessage = "this line is already a member of the group";
    inout_item.finding.strHint = "name each line once";
    for ( const xmlNode* const pOther : ChildElements( getParentElement( inout_item.pElement ) ) ) {
        if ( pOther == inout_item.pElement || !meanOneLine( pOther, inout_item.pElement ) )
            continue;
        relateOther( inout_item, pOther, "boardID" ); // the one behind may be the right one: its D-channel tells
        return;
    }
}

void detailSpanInTwoIsdnGroups( SurveyedFinding& inout_item, const xmlNode* ) {
    const xmlNode* const pElement = inout_item.pElement;
    const auto vecChain = getChain( pElement );
    inout_item.finding.strMessage = "this span is already in another ISDN group";
    inout_item.finding.strHint = "leave it in one ISDN group";
    for ( const xmlNode* const pOther : getTree( vecChain[1] ) ) {
        if ( !isReference( pOther ) || !meanOneLine( pOther, pElement ) || isWithin( pOther, vecChain[2] ) )
            continue;
        const xmlNode* const pGroup = getChain( pOther )[2];
        inout_item.finding.strMessage = "span " + getValue( pElement, "interfaceID" ) + " of board " +
                                        getValue( pElement, "boardID" ) + " is already in " + getElementName( pGroup ) +
                                        " " + getValue( pGroup, "ID" );
        relateOther( inout_item, pOther, "boardID" );
        return;
    }
}

/// The range or, for analog lines, the reference that puts channels into a group.
void detailChannelTwice( SurveyedFinding& inout_item, const xmlNode* ) {
    const xmlNode* const pElement = inout_item.pElement;
    inout_item.finding.strHint = isWholeBoard( getReference( pElement ) )
                                     ? WHOLE_BOARD
                                     : "a channel of this line is already in the group; name each channel once";
    relateFirst( inout_item, getTree( getChain( pElement )[0] ), "channelGroupID",
                 [pElement]( const xmlNode* in_pOther ) { return shareChannel( in_pOther, pElement ); } );
}

/// A line of the same board that a list names twice: one of the two may be meant for the line of the finding.
void relateLineTwice( SurveyedFinding& inout_item, const xmlNode* in_pRoot ) {
    const xmlNode* const pBoard = getParentElement( inout_item.pElement );
    const std::string strBoard = describeLine( pBoard, getValue( pBoard, "ID" ), {} );
    std::map<std::pair<const xmlNode*, std::string>, const xmlNode*> mapFirst; // by the list, and what they name
    for ( const xmlNode* const pCallControl : ChildElements( in_pRoot, "callControl" ) ) {
        for ( const xmlNode* const pElement : getTree( pCallControl ) ) {
            if ( !isReference( pElement ) || isWholeBoard( pElement ) ||
                 describeLine( pElement, getValue( pElement, "boardID" ), {} ) != strBoard )
                continue;
            const auto [it, bFirst] =
                mapFirst.try_emplace( { getParentElement( pElement ), describeReference( pElement ) }, pElement );
            if ( bFirst )
                continue;
            relate( inout_item.finding, "and again here: one of the two may be meant for the line without call control",
                    pElement, "interfaceID" );
            relate( inout_item.finding, "another line of this board is named here", it->second, "interfaceID" );
            return;
        }
    }
}

/// The words of findings whose log lines say more than a person wants to read.
void detailMessage( SurveyedFinding& inout_item, const xmlNode* ) {
    struct Words {
        const char* szRule;
        const char* szMessage;
        const char* szHint;
    };
    static constexpr Words WORDS[] = {
        { Rules::NO_PHYSICAL_CONFIG, "this line has no physical configuration",
          "name it in applyTo of an entry of physicalInterfaceConfigs" },
        { Rules::NO_CALL_CONTROL, "this line has no call control",
          "name it in one of the groups or configurations of callControl" },
        { Rules::NO_D_CHANNEL, "this line has no D-channel",
          "give its physical configuration a D-channel, or make it a DISABLED member of an NFAS group" },
        { Rules::UNUSED_D_CHANNEL, "a DISABLED member must not have a D-channel",
          "make it PRIMARY or BACKUP, or take the D-channel out of its physical configuration" },
    };
    const Words* pWords = WORDS;
    while ( !inout_item.is( pWords->szRule ) )
        ++pWords;
    inout_item.finding.strMessage = pWords->szMessage;
    inout_item.finding.strHint = pWords->szHint;
}

struct Detail {
    std::string_view strRule;
    void ( *add )( SurveyedFinding& inout_item, const xmlNode* in_pRoot );
};

constexpr Detail DETAILS[] = {
    { Rules::UNKNOWN_BOARD, &detailUnknownBoard },
    { Rules::UNKNOWN_INTERFACE, &detailUnknownInterface },
    { Rules::UNKNOWN_CHANNEL_GROUP, &detailUnknownChannelGroup },
    { Rules::IDENTIFIER_TWICE, &detailIdentifierTwice },
    { Rules::TIRPIPE_TWICE, &detailTirpipeTwice },
    { Rules::PHYSICAL_CONFIG_TWICE, &detailPhysicalConfigTwice },
    { Rules::NFAS_MEMBER_TWICE, &detailNfasMemberTwice },
    { SPAN_IN_TWO_ISDN_GROUPS, &detailSpanInTwoIsdnGroups },
    { Rules::CHANNEL_TWICE, &detailChannelTwice },
    { Rules::NO_PHYSICAL_CONFIG, &detailMessage },
    { Rules::NO_CALL_CONTROL, &detailMessage },
    { Rules::NO_CALL_CONTROL, &relateLineTwice },
    { Rules::NO_D_CHANNEL, &detailMessage },
    { Rules::UNUSED_D_CHANNEL, &detailMessage },
};

} // namespace

void addDetails( SurveyRecord& inout_record ) {
    std::size_t uDetailed = 0;
    for ( SurveyedFinding& item : inout_record.vecFindings ) {
        if ( item.finding.bEcho || !item.pElement )
            continue;
        for ( const Detail& detail : DETAILS ) {
            if ( item.is( detail.strRule ) )
                detail.add( item, inout_record.pRoot );
        }
        if ( ++uDetailed == MAX_DETAILED )
            return;
    }
}

} // namespace Velquin::Pstn
