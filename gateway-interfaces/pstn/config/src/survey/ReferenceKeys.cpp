#include "survey/ReferenceKeys.h"

#include <utility>

#include "RuleNames.h"
#include "document/Element.h"
#include "reading/Number.h"
#include "survey/Elements.h"

namespace Velquin::Pstn {

namespace {

/// The identifier as a key: a number without its leading zeros.
std::string normalize( const std::string& in_strIdentifier ) {
    const auto uNumber = parseNumber<unsigned int>( in_strIdentifier, NumberPolicy::WHOLE );
    return uNumber ? std::to_string( *uNumber ) : "=" + in_strIdentifier;
}

} // namespace

std::string joinIdentifiers( const std::string& in_strOuter, const std::string& in_strInterface ) {
    return normalize( in_strOuter ) + ( in_strInterface.empty() ? std::string() : "/" + normalize( in_strInterface ) );
}

std::string describeKind( const xmlNode* in_pElement ) {
    return isAnalog( in_pElement ) ? "analog " : "digital ";
}

std::string describeLine( const xmlNode* in_pElement, const std::string& in_strBoard,
                          const std::string& in_strInterface ) {
    return describeKind( in_pElement ) + joinIdentifiers( in_strBoard, in_strInterface );
}

std::string describeReference( const xmlNode* in_pReference ) {
    return describeLine( in_pReference, getValue( in_pReference, "boardID" ),
                         getValue( in_pReference, "interfaceID" ) );
}

bool isReferenceRule( const SurveyedFinding& in_item ) {
    return in_item.is( Rules::UNKNOWN_BOARD ) || in_item.is( Rules::UNKNOWN_INTERFACE ) ||
           in_item.is( Rules::UNKNOWN_CHANNEL_GROUP );
}

bool isAboutDChannel( const SurveyedFinding& in_item ) {
    return in_item.is( Rules::NO_D_CHANNEL ) || in_item.is( Rules::UNUSED_D_CHANNEL );
}

std::string getNamedBoard( const SurveyedFinding& in_item ) {
    const bool bOfBoard = in_item.finding.strAttribute == "primaryClockReference";
    return getValue( in_item.pElement, bOfBoard ? "ID" : "boardID" );
}

std::string describeTarget( const SurveyedFinding& in_item ) {
    return describeTargets( in_item ).front();
}

std::vector<std::string> describeTargets( const SurveyedFinding& in_item ) {
    const std::string& strValue = in_item.finding.strValue;
    if ( !in_item.is( Rules::UNKNOWN_INTERFACE ) )
        return { joinIdentifiers( strValue, {} ), joinIdentifiers( ANY, {} ) };
    const std::string strBoard = getNamedBoard( in_item );
    return { joinIdentifiers( strBoard, strValue ), joinIdentifiers( strBoard, ANY ), joinIdentifiers( ANY, strValue ),
             joinIdentifiers( ANY, ANY ) };
}

std::string_view getReferenceRule( const xmlNode* in_pElement ) {
    static constexpr std::pair<const char*, const char*> RULES[] = {
        { "interface", Rules::UNKNOWN_INTERFACE },       { "channelGroup", Rules::UNKNOWN_CHANNEL_GROUP },
        { "tirvanaDigitalBoard", Rules::UNKNOWN_BOARD }, { "tirvanaVirtualDigitalBoard", Rules::UNKNOWN_BOARD },
        { "tirvanaAnalogBoard", Rules::UNKNOWN_BOARD },
    };
    for ( const auto& [szName, szRule] : RULES ) { // wherever it stands
        if ( isNamed( in_pElement, szName ) )
            return szRule;
    }
    // A misspelt name leaves the place.
    const auto vecChain = getChain( in_pElement );
    if ( vecChain.size() != 2 && vecChain.size() != 3 )
        return {};
    const std::string_view strSection = getElementName( vecChain[0] ); // may be misspelt
    if ( strSection == "physicalInterfaceConfigs" || strSection == "providers" )
        return {};
    if ( strSection == "callControl" )
        return vecChain.size() == 3 && !isNamed( vecChain[1], "isdn" ) && !isNamed( vecChain[1], "analog" )
                   ? Rules::UNKNOWN_CHANNEL_GROUP
                   : "";
    return vecChain.size() == 2 ? Rules::UNKNOWN_BOARD : Rules::UNKNOWN_INTERFACE;
}

std::string describeDeclaration( const xmlNode* in_pElement, bool in_bKnown ) {
    const std::string strId = in_bKnown ? getValue( in_pElement, "ID" ) : ANY;
    if ( getReferenceRule( in_pElement ) != Rules::UNKNOWN_INTERFACE )
        return joinIdentifiers( strId, {} );
    // Behind its board, an interface doesn't say which one that was.
    const xmlNode* const pBoard = getParentElement( in_pElement );
    return joinIdentifiers( getReferenceRule( pBoard ) == Rules::UNKNOWN_BOARD ? getValue( pBoard, "ID" ) : ANY,
                            strId );
}

} // namespace Velquin::Pstn
