#include "xml/SchemaAdvisor.h"

#include <algorithm>
#include <memory>

#include <libxml/xmlregexp.h>

#include "xml/ChildElements.h"
#include "xml/ElementReader.h"

namespace Velquin::Pstn {

namespace {

constexpr unsigned int MAX_UNKNOWN_ATTRIBUTES = 10;
// Far beyond what describes one element, and soon reached by a schema that never ends.
constexpr unsigned int MAX_STEPS = 20'000;
constexpr unsigned int MAX_DEPTH = 500;
constexpr ReaderWording WORDING{ "] for element ", "] for element ", "Missing attribute [" };

std::string getAttribute( const xmlNode* in_pNode, const char* in_szName ) {
    return fromXml( XmlStringPtr( xmlGetNoNsProp( const_cast<xmlNode*>( in_pNode ), toXml( in_szName ) ) ).get() );
}

bool isPattern( const xmlNode* in_pNode, std::string_view in_strName ) {
    return in_strName == fromXml( in_pNode->name );
}

/// Whether the value could be of the data type. Numbers only: the rest is left to libxml2.
bool fitsDataType( std::string_view in_strValue, std::string_view in_strDataType ) {
    if ( in_strDataType == "unsignedInt" )
        return parseNumber<unsigned int>( in_strValue, NumberPolicy::WHOLE ).has_value();
    if ( in_strDataType == "unsignedLong" )
        return parseNumber<unsigned long long>( in_strValue, NumberPolicy::WHOLE ).has_value();
    return true;
}

std::string describe( const std::vector<std::string>& in_vecValues ) {
    std::string strText = in_vecValues.size() == 1 ? "The only valid value is " : "Valid values are ";
    for ( std::size_t u = 0; u < in_vecValues.size(); ++u ) {
        if ( u > 0 )
            strText += u + 1 == in_vecValues.size() ? " and " : ", ";
        strText += in_vecValues[u];
    }
    strText += '.';
    return strText;
}

struct RegexpDeleter {
    void operator()( xmlRegexp* in_p ) const noexcept { xmlRegFreeRegexp( in_p ); }
};

bool matches( const char* in_szValue, const std::string& in_strPattern ) {
    const std::unique_ptr<xmlRegexp, RegexpDeleter> pRegexp( xmlRegexpCompile( toXml( in_strPattern.c_str() ) ) );
    return !pRegexp || xmlRegexpExec( pRegexp.get(), toXml( in_szValue ) ) != 0;
}

} // namespace

SchemaAdvisor::SchemaAdvisor( const xmlDoc* in_pSchema ) : m_pGrammar( xmlDocGetRootElement( in_pSchema ) ) {
    if ( !m_pGrammar )
        return;
    for ( const xmlNode* const pChild : ChildElements( m_pGrammar ) ) {
        if ( isPattern( pChild, "define" ) )
            m_mapDefinitions[getAttribute( pChild, "name" )].push_back( pChild );
        else if ( isPattern( pChild, "start" ) )
            m_mapDefinitions[""].push_back( pChild );
    }
}

SchemaAdvisor::Step::Step( SchemaAdvisor& in_advisor ) : m_advisor( in_advisor ) {
    m_advisor.m_bLost = m_advisor.m_bLost || ++m_advisor.m_uSteps > MAX_STEPS || m_advisor.m_uDepth >= MAX_DEPTH;
    ++m_advisor.m_uDepth;
}

void SchemaAdvisor::advise( xmlNode* in_pElement, const Logger& in_logger ) {
    m_uSteps = 0;
    const Patterns vecPatterns = findPatterns( in_pElement );
    if ( vecPatterns.empty() )
        return;
    Rules rules;
    for ( const xmlNode* const pPattern : vecPatterns )
        collectAttributes( pPattern, in_pElement, vecPatterns.size() == 1, rules );
    // Half the rules would accuse attributes that are right.
    if ( m_bLost )
        return;

    const ElementReader reader( in_pElement, in_logger, WORDING );
    for ( const auto& [strName, rule] : rules ) {
        AttributeText text;
        if ( reader.findText( strName.c_str(), text ) == ReadResult::ABSENT ) {
            if ( rule.bRequired )
                reader.reportMissing( strName.c_str() );
        } else if ( rule.bAnyValue ) {
            if ( !fitsDataType( text.view(), rule.strDataType ) )
                reader.reportInvalid( strName.c_str(), text.view(), DECIMAL_HINT );
            else if ( !rule.strPattern.empty() && !matches( text.c_str(), rule.strPattern ) )
                reader.reportInvalid( strName.c_str(), text.view(), "The value must match " + rule.strPattern );
        } else if ( std::find( rule.vecValues.begin(), rule.vecValues.end(), text.view() ) == rule.vecValues.end() ) {
            reader.reportInvalid( strName.c_str(), text.view(), describe( rule.vecValues ) );
        }
    }
    // A file of attributes only gets no line for each of them.
    unsigned int uUnknown = 0;
    for ( const xmlAttr* pAttribute = in_pElement->properties; pAttribute && uUnknown < MAX_UNKNOWN_ATTRIBUTES;
          pAttribute = pAttribute->next ) {
        const char* const szName = fromXml( pAttribute->name );
        if ( pAttribute->ns || rules.contains( szName ) )
            continue;
        const XmlStringPtr pValue( xmlNodeListGetString( in_pElement->doc, pAttribute->children, 1 ) );
        reader.reportInvalid( szName, fromXml( pValue.get() ), "The element has no such attribute." );
        ++uUnknown;
    }
}

/// The patterns of the element, found from the root down.
SchemaAdvisor::Patterns SchemaAdvisor::findPatterns( const xmlNode* in_pElement ) {
    Patterns vecParents = getDefinitions( nullptr );
    if ( in_pElement->parent && in_pElement->parent->type == XML_ELEMENT_NODE )
        vecParents = findPatterns( in_pElement->parent );
    Patterns vecPatterns;
    std::set<const xmlNode*> setSeen;
    for ( const xmlNode* const pParent : vecParents )
        collectElements( pParent, fromXml( in_pElement->name ), setSeen, vecPatterns );
    return vecPatterns;
}

/// The `element` patterns of that name directly in the content of a pattern.
void SchemaAdvisor::collectElements( const xmlNode* in_pPattern, std::string_view in_strName,
                                     std::set<const xmlNode*>& inout_setSeen, Patterns& out_vecPatterns ) {
    const Step step( *this );
    if ( m_bLost || !inout_setSeen.insert( in_pPattern ).second )
        return;
    for ( const xmlNode* const pChild : ChildElements( in_pPattern ) ) {
        if ( isPattern( pChild, "element" ) ) {
            if ( getAttribute( pChild, "name" ) == in_strName )
                out_vecPatterns.push_back( pChild );
        } else if ( isPattern( pChild, "ref" ) ) {
            for ( const xmlNode* const pDefinition : getDefinitions( pChild ) )
                collectElements( pDefinition, in_strName, inout_setSeen, out_vecPatterns );
        } else {
            collectElements( pChild, in_strName, inout_setSeen, out_vecPatterns );
        }
    }
}

/// The attributes directly in the content of a pattern.
void SchemaAdvisor::collectAttributes( const xmlNode* in_pPattern, const xmlNode* in_pElement, bool in_bRequired,
                                       Rules& out_rules ) {
    for ( const xmlNode* const pChild : ChildElements( in_pPattern ) )
        collectFrom( pChild, in_pElement, in_bRequired, out_rules );
}

/// The attributes that a pattern contributes to the element in whose content it stands.
void SchemaAdvisor::collectFrom( const xmlNode* in_pPattern, const xmlNode* in_pElement, bool in_bRequired,
                                 Rules& out_rules ) {
    const Step step( *this );
    if ( m_bLost )
        return;
    if ( isPattern( in_pPattern, "attribute" ) ) {
        Rule& rule = out_rules[getAttribute( in_pPattern, "name" )];
        rule.bRequired = rule.bRequired || in_bRequired;
        collectValues( in_pPattern, rule );
        rule.bAnyValue = rule.bAnyValue || rule.vecValues.empty();
    } else if ( isPattern( in_pPattern, "ref" ) ) {
        for ( const xmlNode* const pDefinition : getDefinitions( in_pPattern ) )
            collectAttributes( pDefinition, in_pElement, in_bRequired, out_rules );
    } else if ( isPattern( in_pPattern, "choice" ) ) {
        collectChoice( in_pPattern, in_pElement, in_bRequired, out_rules );
    } else if ( !isPattern( in_pPattern, "element" ) ) {
        const bool bOptional = isPattern( in_pPattern, "optional" ) || isPattern( in_pPattern, "zeroOrMore" );
        collectAttributes( in_pPattern, in_pElement, in_bRequired && !bOptional, out_rules );
    }
}

/// Of alternatives, the keyword that one attribute has mostly tells which is meant: what that one requires is required.
void SchemaAdvisor::collectChoice( const xmlNode* in_pChoice, const xmlNode* in_pElement, bool in_bRequired,
                                   Rules& out_rules ) {
    Patterns vecMeant;
    for ( const xmlNode* const pAlternative : ChildElements( in_pChoice ) ) {
        Rules rules;
        collectFrom( pAlternative, in_pElement, true, rules );
        const bool bMeant = std::all_of( rules.begin(), rules.end(), [in_pElement]( const auto& in_entry ) {
            const auto& [strName, rule] = in_entry;
            return rule.bAnyValue || std::find( rule.vecValues.begin(), rule.vecValues.end(),
                                                getAttribute( in_pElement, strName.c_str() ) ) != rule.vecValues.end();
        } );
        if ( bMeant )
            vecMeant.push_back( pAlternative );
    }
    if ( vecMeant.size() == 1 ) {
        collectFrom( vecMeant.front(), in_pElement, in_bRequired, out_rules );
        return;
    }
    for ( const xmlNode* const pAlternative : ChildElements( in_pChoice ) )
        collectFrom( pAlternative, in_pElement, false, out_rules );
}

/// The values that an attribute takes.
void SchemaAdvisor::collectValues( const xmlNode* in_pPattern, Rule& out_rule ) {
    const Step step( *this );
    if ( m_bLost )
        return;
    for ( const xmlNode* const pChild : ChildElements( in_pPattern ) ) {
        if ( isPattern( pChild, "value" ) ) {
            const XmlStringPtr pValue( xmlNodeGetContent( pChild ) );
            out_rule.vecValues.emplace_back( fromXml( pValue.get() ) );
        } else if ( isPattern( pChild, "ref" ) ) {
            for ( const xmlNode* const pDefinition : getDefinitions( pChild ) )
                collectValues( pDefinition, out_rule );
        } else if ( isPattern( pChild, "data" ) ) {
            out_rule.bAnyValue = true;
            out_rule.strDataType = getAttribute( pChild, "type" );
            for ( const xmlNode* const pParameter : ChildElements( pChild, "param" ) ) {
                if ( getAttribute( pParameter, "name" ) == "pattern" )
                    out_rule.strPattern = fromXml( XmlStringPtr( xmlNodeGetContent( pParameter ) ).get() );
            }
        } else if ( isPattern( pChild, "text" ) ) {
            out_rule.bAnyValue = true;
        } else {
            collectValues( pChild, out_rule );
        }
    }
}

/// What a reference refers to; the start of the grammar for none.
const SchemaAdvisor::Patterns& SchemaAdvisor::getDefinitions( const xmlNode* in_pRef ) const {
    static const Patterns s_vecNone;
    const auto it = m_mapDefinitions.find( in_pRef ? getAttribute( in_pRef, "name" ) : "" );
    return it == m_mapDefinitions.end() ? s_vecNone : it->second;
}

} // namespace Velquin::Pstn
