#include "survey/ReferenceKeys.h"

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

/// The key of a board or, if an interface is given, of that.
std::string join( const std::string& in_strBoard, const std::string& in_strInterface ) {
    return normalize( in_strBoard ) + ( in_strInterface.empty() ? std::string() : "/" + normalize( in_strInterface ) );
}

} // namespace

std::string describeKind( const xmlNode* in_pElement ) {
    return isAnalog( in_pElement ) ? "analog " : "digital ";
}

std::string describeLine( const xmlNode* in_pElement, const std::string& in_strBoard,
                          const std::string& in_strInterface ) {
    return describeKind( in_pElement ) + join( in_strBoard, in_strInterface );
}

std::string describeReference( const xmlNode* in_pReference ) {
    return describeLine( in_pReference, getValue( in_pReference, "boardID" ),
                         getValue( in_pReference, "interfaceID" ) );
}

bool isReferenceRule( const SurveyedFinding& in_item ) {
    return in_item.is( Rules::UNKNOWN_BOARD ) || in_item.is( Rules::UNKNOWN_INTERFACE ) ||
           in_item.is( Rules::UNKNOWN_CHANNEL_GROUP );
}

std::string describeTarget( const SurveyedFinding& in_item ) {
    const std::string& strValue = in_item.finding.strValue;
    if ( !in_item.is( Rules::UNKNOWN_INTERFACE ) )
        return join( strValue, {} );
    const bool bOfBoard = in_item.finding.strAttribute == "primaryClockReference";
    return join( getValue( in_item.pElement, bOfBoard ? "ID" : "boardID" ), strValue );
}

const char* getReferenceRule( const xmlNode* in_pElement ) {
    const auto vecChain = getChain( in_pElement );
    if ( vecChain.size() != 2 && vecChain.size() != 3 )
        return nullptr;
    const std::string_view strSection = getElementName( vecChain[0] ); // may be misspelt
    if ( strSection == "physicalInterfaceConfigs" || strSection == "providers" )
        return nullptr;
    if ( strSection == "callControl" )
        return vecChain.size() == 3 ? Rules::UNKNOWN_CHANNEL_GROUP : nullptr;
    return vecChain.size() == 2 ? Rules::UNKNOWN_BOARD : Rules::UNKNOWN_INTERFACE;
}

std::string describeDeclaration( const xmlNode* in_pElement ) {
    const std::string strId = getValue( in_pElement, "ID" );
    return getReferenceRule( in_pElement ) == Rules::UNKNOWN_INTERFACE
               ? join( getValue( getParentElement( in_pElement ), "ID" ), strId )
               : join( strId, {} );
}

} // namespace Velquin::Pstn
