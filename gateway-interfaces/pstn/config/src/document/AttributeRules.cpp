#include "document/AttributeRules.h"

#include <algorithm>
#include <memory>

#include <libxml/xmlregexp.h>
#include <libxml/xmlschemastypes.h>

#include "RuleNames.h"
#include "Suggestion.h"
#include "document/Element.h"
#include "reading/ChildElements.h"
#include "reading/ElementReader.h"

namespace Velquin::Pstn {

namespace {

constexpr unsigned int MAX_UNKNOWN_ATTRIBUTES = 10;
constexpr std::size_t MAX_LISTED_VALUES = 12; // of a longer list, only the nearest helps

struct RegexpDeleter {
    void operator()( xmlRegexp* in_p ) const noexcept { xmlRegFreeRegexp( in_p ); }
};

bool matches( const char* in_szValue, const std::string& in_strPattern ) {
    const std::unique_ptr<xmlRegexp, RegexpDeleter> pRegexp( xmlRegexpCompile( toXml( in_strPattern.c_str() ) ) );
    return !pRegexp || xmlRegexpExec( pRegexp.get(), toXml( in_szValue ) ) != 0;
}

/// What a data type takes.
std::string describeDataType( const std::string& in_strType ) {
    if ( in_strType == "unsignedInt" || in_strType == "unsignedLong" )
        return std::string( DECIMAL_HINT );
    if ( in_strType == "int" )
        return "The value must be a whole number from -2147483648 to 2147483647.";
    if ( in_strType == "decimal" )
        return "The value must be a real number.";
    return "The value must be of type " + in_strType + '.';
}

std::string getContent( const xmlNode* in_pElement ) {
    return fromXml( XmlStringPtr( xmlNodeGetContent( in_pElement ) ).get() );
}

/// What values of a `data` pattern are: its documentation says it to people.
std::string describePattern( const xmlNode* in_pData, const std::string& in_strPattern ) {
    for ( const xmlNode* const pDocumentation : ChildElements( in_pData, "documentation" ) )
        return "be " + getContent( pDocumentation );
    return "match " + in_strPattern;
}

/// What a `data` pattern wants instead of the value; empty when its type and its pattern take the value.
std::string getHintOfData( const xmlNode* in_pData, const char* in_szValue ) {
    const std::string strType = getPatternAttribute( in_pData, "type" );
    xmlSchemaType* const pType =
        xmlSchemaGetPredefinedType( toXml( strType.c_str() ), toXml( "http://www.w3.org/2001/XMLSchema" ) );
    if ( xmlSchemaValidatePredefinedType( pType, toXml( in_szValue ), nullptr ) > 0 )
        return describeDataType( strType );
    for ( const xmlNode* const pParameter : ChildPatterns( in_pData ) ) {
        if ( !isPattern( pParameter, "param" ) || getPatternAttribute( pParameter, "name" ) != "pattern" )
            continue;
        const std::string strPattern = getContent( pParameter );
        if ( !matches( in_szValue, strPattern ) )
            return "The value must " + describePattern( in_pData, strPattern );
    }
    return {};
}

} // namespace

AttributeRules::AttributeRules( SchemaPatterns& in_patterns, const SchemaPatterns::Patterns& in_vecPatterns,
                                const xmlNode* in_pElement )
    : m_patterns( in_patterns ), m_pElement( in_pElement ) {
    for ( const xmlNode* const pPattern : in_vecPatterns )
        collectAttributes( pPattern, in_vecPatterns.size() == 1, m_rules );
    // With half of the rules, right attributes would look wrong.
    m_bKnown = !m_patterns.isLost() && !in_vecPatterns.empty();
}

std::vector<AttributeRules::Fault> AttributeRules::findFaults() const {
    std::vector<Fault> vecFaults;
    if ( !m_bKnown )
        return vecFaults;
    for ( const auto& [strName, rule] : m_rules ) {
        AttributeText text;
        if ( !findAttribute( m_pElement, strName.c_str(), text ) ) {
            if ( rule.bRequired )
                vecFaults.push_back( { strName, Rules::MISSING_ATTRIBUTE, {}, getAdviceOnMissing( rule ) } );
        } else if ( std::string strHint = getHint( rule, text.c_str() ); !strHint.empty() ) {
            vecFaults.push_back(
                { strName, Rules::INVALID_VALUE, std::move( strHint ), getAdvice( rule, text.view() ) } );
        }
    }
    // A file full of attributes gets no line for each of them.
    unsigned int uUnknown = 0;
    for ( const xmlAttr* pAttribute = m_pElement->properties; pAttribute && uUnknown < MAX_UNKNOWN_ATTRIBUTES;
          pAttribute = pAttribute->next ) {
        const char* const szName = fromXml( pAttribute->name );
        if ( pAttribute->ns || m_rules.contains( szName ) )
            continue;
        vecFaults.push_back( { szName, Rules::UNKNOWN_ATTRIBUTE, "The element has no such attribute.",
                               describeNames( szName, getNames() ) } );
        ++uUnknown;
    }
    return vecFaults;
}

std::vector<std::string> AttributeRules::getNames() const {
    std::vector<std::string> vecNames;
    vecNames.reserve( m_rules.size() );
    for ( const auto& [strName, rule] : m_rules )
        vecNames.push_back( strName );
    return vecNames;
}

bool AttributeRules::takes( const std::string& in_strAttribute, const std::string& in_strValue ) const {
    const auto it = m_rules.find( in_strAttribute );
    return it != m_rules.end() && getHint( it->second, in_strValue.c_str() ).empty();
}

std::string AttributeRules::describeValue( const std::string& in_strAttribute, const std::string& in_strValue ) const {
    const bool bWritable = !in_strValue.empty() && in_strValue.find_first_of( "\"<&" ) == std::string::npos;
    return "write " + in_strAttribute + "=\"" +
           ( bWritable && takes( in_strAttribute, in_strValue ) ? in_strValue : "..." ) + "\" in the tag of " +
           getElementName( m_pElement );
}

/// What the rule wants instead of the value; empty when it takes the value.
std::string AttributeRules::getHint( const Rule& in_rule, const char* in_szValue ) {
    const auto& vecValues = in_rule.vecValues;
    if ( in_rule.bAnyValue || std::find( vecValues.begin(), vecValues.end(), in_szValue ) != vecValues.end() )
        return {};
    std::string strHint; // of the first type, which is the one to name
    for ( const xmlNode* const pData : in_rule.vecData ) {
        const std::string strHintOfData = getHintOfData( pData, in_szValue );
        if ( strHintOfData.empty() )
            return {};
        if ( strHint.empty() )
            strHint = strHintOfData;
    }
    return strHint.empty() ? describeValues( vecValues ) : strHint;
}

/// What the rule takes instead of the value, in the words for people; empty where any text is right or no words are
/// known.
std::string AttributeRules::getAdvice( const Rule& in_rule, std::string_view in_strValue ) {
    if ( in_rule.bAnyValue )
        return {};
    if ( in_rule.vecData.empty() )
        return in_rule.vecValues.size() <= MAX_LISTED_VALUES ? describeValues( in_rule.vecValues )
                                                             : describeNames( in_strValue, in_rule.vecValues );
    const std::string strType = getPatternAttribute( in_rule.vecData.front(), "type" );
    return strType == "unsignedInt"    ? describeNumbers<unsigned int>()
           : strType == "unsignedLong" ? describeNumbers<unsigned long long>()
           : strType == "decimal" ? "The value must be a real number: write digits with a point, as 2.5, without unit."
                                  : std::string();
}

std::string AttributeRules::getAdviceOnMissing( const Rule& in_rule ) {
    std::string strAdvice = getAdvice( in_rule, "" );
    if ( in_rule.strCondition.empty() )
        return strAdvice;
    if ( !in_rule.hasKeywordsOnly() )
        strAdvice.clear(); // any text, or a number: its name says enough
    else
        strAdvice.replace( strAdvice.find_last_not_of( '.' ) + 1, std::string::npos, "; " );
    return strAdvice + "needed with " + in_rule.strCondition;
}

/// Collects the attributes that stand directly in the content of a pattern.
void AttributeRules::collectAttributes( const xmlNode* in_pPattern, bool in_bRequired, RulesByName& out_rules ) {
    for ( const xmlNode* const pChild : ChildPatterns( in_pPattern ) )
        collectFrom( pChild, in_bRequired, out_rules );
}

/// Collects the attributes that a pattern gives to the element around it.
void AttributeRules::collectFrom( const xmlNode* in_pPattern, bool in_bRequired, RulesByName& out_rules ) {
    const SchemaPatterns::Step step( m_patterns );
    if ( m_patterns.isLost() )
        return;
    if ( isPattern( in_pPattern, "attribute" ) ) {
        Rule& rule = out_rules[getPatternAttribute( in_pPattern, "name" )];
        rule.bRequired = rule.bRequired || in_bRequired;
        collectValues( in_pPattern, rule );
        rule.bAnyValue = rule.bAnyValue || ( rule.vecValues.empty() && rule.vecData.empty() );
    } else if ( isPattern( in_pPattern, "ref" ) ) {
        for ( const xmlNode* const pDefinition : m_patterns.getDefinitions( in_pPattern ) )
            collectAttributes( pDefinition, in_bRequired, out_rules );
    } else if ( isPattern( in_pPattern, "choice" ) ) {
        collectChoice( in_pPattern, in_bRequired, out_rules );
    } else if ( !isPattern( in_pPattern, "element" ) ) {
        const bool bOptional = isPattern( in_pPattern, "optional" ) || isPattern( in_pPattern, "zeroOrMore" );
        collectAttributes( in_pPattern, in_bRequired && !bOptional, out_rules );
    }
}

/// Whether the element has one of the rule's keywords, or has none and needs none.
bool AttributeRules::agrees( const std::string& in_strAttribute, const Rule& in_rule ) const {
    AttributeText text;
    if ( !findAttribute( m_pElement, in_strAttribute.c_str(), text ) )
        return !in_rule.bRequired;
    return std::find( in_rule.vecValues.begin(), in_rule.vecValues.end(), text.view() ) != in_rule.vecValues.end();
}

/// Whether all of them have a rule of that kind for the attribute.
bool AttributeRules::haveAll( const std::vector<RulesByName>& in_vecRules, const std::string& in_strAttribute,
                              bool ( Rule::*in_has )() const noexcept ) {
    return std::all_of( in_vecRules.begin(), in_vecRules.end(), [&]( const RulesByName& in_rules ) {
        const auto it = in_rules.find( in_strAttribute );
        return it != in_rules.end() && ( it->second.*in_has )();
    } );
}

/// The one keyword of the element that tells the alternative that it means from another one: `type="FXS"`. Empty when
/// several do.
std::string AttributeRules::findCondition( const std::vector<RulesByName>& in_vecAlternatives,
                                           const RulesByName& in_meant ) const {
    std::string strCondition;
    for ( const auto& entry : in_meant ) {
        const std::string& strName = entry.first;
        AttributeText text;
        if ( !haveAll( in_vecAlternatives, strName, &Rule::hasKeywordsOnly ) || !agrees( strName, entry.second ) ||
             !findAttribute( m_pElement, strName.c_str(), text ) ||
             std::all_of( in_vecAlternatives.begin(), in_vecAlternatives.end(),
                          [this, &strName]( const RulesByName& in_rules ) {
                              return agrees( strName, in_rules.find( strName )->second );
                          } ) )
            continue;
        if ( !strCondition.empty() )
            return {};
        strCondition = strName + "=\"" + text.c_str() + "\"";
    }
    return strCondition;
}

/// An element means the alternatives with which it agrees most. Only attributes that have keywords in all alternatives
/// count for that. An attribute is required if all alternatives that the element means require it.
void AttributeRules::collectChoice( const xmlNode* in_pChoice, bool in_bRequired, RulesByName& out_rules ) {
    std::vector<RulesByName> vecAlternatives;
    for ( const xmlNode* const pAlternative : ChildPatterns( in_pChoice ) )
        collectFrom( pAlternative, true, vecAlternatives.emplace_back() );
    std::vector<RulesByName> vecMeant;
    std::ptrdiff_t nMost = 0;
    for ( const RulesByName& rules : vecAlternatives ) {
        const auto nAgreeing = std::count_if( rules.begin(), rules.end(), [&]( const auto& in_entry ) {
            return haveAll( vecAlternatives, in_entry.first, &Rule::hasKeywordsOnly ) &&
                   agrees( in_entry.first, in_entry.second );
        } );
        if ( nAgreeing > nMost )
            vecMeant.clear();
        if ( nAgreeing >= nMost )
            vecMeant.push_back( rules );
        nMost = std::max( nMost, nAgreeing );
    }
    const std::string strCondition = vecMeant.size() == 1 ? findCondition( vecAlternatives, vecMeant[0] ) : "";
    for ( const RulesByName& rules : vecMeant ) {
        for ( const auto& [strName, rule] : rules ) {
            Rule& merged = out_rules[strName];
            merged.bRequired = merged.bRequired || ( in_bRequired && haveAll( vecMeant, strName, &Rule::isRequired ) );
            merged.strCondition =
                haveAll( vecAlternatives, strName, &Rule::isRequired ) ? rule.strCondition : strCondition;
            merged.bAnyValue = merged.bAnyValue || rule.bAnyValue;
            merge( merged.vecValues, rule.vecValues );
            merge( merged.vecData, rule.vecData );
        }
    }
}

/// Collects the values that an attribute takes.
void AttributeRules::collectValues( const xmlNode* in_pPattern, Rule& out_rule ) {
    const SchemaPatterns::Step step( m_patterns );
    if ( m_patterns.isLost() )
        return;
    for ( const xmlNode* const pChild : ChildPatterns( in_pPattern ) ) {
        if ( isPattern( pChild, "value" ) ) {
            const XmlStringPtr pValue( xmlNodeGetContent( pChild ) );
            merge( out_rule.vecValues, { fromXml( pValue.get() ) } );
        } else if ( isPattern( pChild, "ref" ) ) {
            for ( const xmlNode* const pDefinition : m_patterns.getDefinitions( pChild ) )
                collectValues( pDefinition, out_rule );
        } else if ( isPattern( pChild, "data" ) ) {
            merge( out_rule.vecData, { pChild } );
        } else if ( isPattern( pChild, "text" ) ) {
            out_rule.bAnyValue = true;
        } else {
            collectValues( pChild, out_rule );
        }
    }
}

} // namespace Velquin::Pstn
