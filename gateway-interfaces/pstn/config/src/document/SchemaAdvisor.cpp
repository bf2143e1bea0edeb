#include "document/SchemaAdvisor.h"

#include <algorithm>
#include <memory>

#include <libxml/xmlregexp.h>
#include <libxml/xmlschemastypes.h>

#include "reading/ChildElements.h"
#include "reading/ElementReader.h"

namespace Velquin::Pstn {

namespace {

constexpr unsigned int MAX_UNKNOWN_ATTRIBUTES = 10;
// Far beyond what describes one element, and soon reached by a schema that never ends.
constexpr unsigned int MAX_STEPS = 20'000;
constexpr unsigned int MAX_DEPTH = 500;
constexpr ReaderWording ATTRIBUTE_WORDING{ "] for element ", "] for element ", "Missing attribute [" };
constexpr ReaderWording CHILD_WORDING{ "] for element ", "", "Missing element [" };

std::string getAttribute( const xmlNode* in_pNode, const char* in_szName ) {
    return fromXml( XmlStringPtr( xmlGetNoNsProp( const_cast<xmlNode*>( in_pNode ), toXml( in_szName ) ) ).get() );
}

bool isPattern( const xmlNode* in_pNode, std::string_view in_strName ) {
    return in_strName == fromXml( in_pNode->name );
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

/// What a `data` pattern wants other than the value; empty when it takes it, as far as type and pattern tell.
std::string getHintOfData( const xmlNode* in_pData, const char* in_szValue ) {
    const std::string strType = getAttribute( in_pData, "type" );
    xmlSchemaType* const pType =
        xmlSchemaGetPredefinedType( toXml( strType.c_str() ), toXml( "http://www.w3.org/2001/XMLSchema" ) );
    if ( xmlSchemaValidatePredefinedType( pType, toXml( in_szValue ), nullptr ) > 0 )
        return describeDataType( strType );
    for ( const xmlNode* const pParameter : ChildElements( in_pData, "param" ) ) {
        if ( getAttribute( pParameter, "name" ) != "pattern" )
            continue;
        const std::string strPattern = fromXml( XmlStringPtr( xmlNodeGetContent( pParameter ) ).get() );
        if ( !matches( in_szValue, strPattern ) )
            return "The value must match " + strPattern;
    }
    return {};
}

/// Appends what isn't there yet.
template <class T>
void merge( std::vector<T>& inout_vecAll, const std::vector<T>& in_vecMore ) {
    for ( const T& one : in_vecMore ) {
        if ( std::find( inout_vecAll.begin(), inout_vecAll.end(), one ) == inout_vecAll.end() )
            inout_vecAll.push_back( one );
    }
}

} // namespace

SchemaAdvisor::SchemaAdvisor( const xmlDoc* in_pSchema, const Logger& in_logger ) : m_logger( in_logger ) {
    for ( const xmlNode* const pChild : ChildElements( xmlDocGetRootElement( in_pSchema ) ) ) {
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

void SchemaAdvisor::adviseOnAttributes( xmlNode* in_pElement ) {
    m_uSteps = 0;
    const ElementReader reader( in_pElement, m_logger, ATTRIBUTE_WORDING );
    for ( const Fault& fault : findFaults( reader, findPatterns( in_pElement ) ) ) {
        AttributeText text;
        if ( reader.findText( fault.strAttribute.c_str(), text ) == ReadResult::ABSENT )
            reader.reportMissing( fault.strAttribute.c_str() );
        else
            reader.reportInvalid( fault.strAttribute.c_str(), text.view(), fault.strHint );
    }
}

void SchemaAdvisor::adviseOnChildren( xmlNode* in_pElement ) {
    m_uSteps = 0;
    std::vector<std::string> vecMissing;
    for ( const xmlNode* const pPattern : findPatterns( in_pElement ) ) {
        vecMissing = findMissingAmong( pPattern, in_pElement );
        if ( vecMissing.empty() )
            break;
    }
    const ElementReader reader( in_pElement, m_logger, CHILD_WORDING );
    for ( const std::string& strName : vecMissing )
        reader.reportMissingChild( strName );
}

std::vector<xmlNode*> SchemaAdvisor::findMisfits( xmlNode* in_pRoot, std::string_view in_strName,
                                                  std::size_t in_uMost ) {
    std::vector<xmlNode*> vecMisfits;
    collectMisfits( in_pRoot, getDefinitions( nullptr ), in_strName, in_uMost, vecMisfits );
    return vecMisfits;
}

void SchemaAdvisor::collectMisfits( xmlNode* in_pElement, const Patterns& in_vecParents, std::string_view in_strName,
                                    std::size_t in_uMost, std::vector<xmlNode*>& out_vecMisfits ) {
    m_uSteps = 0;
    const Patterns& vecPatterns = findPatterns( in_vecParents, in_pElement );
    if ( in_strName == fromXml( in_pElement->name ) &&
         !findFaults( { in_pElement, m_logger, ATTRIBUTE_WORDING }, vecPatterns ).empty() )
        out_vecMisfits.push_back( in_pElement );
    for ( xmlNode* const pChild : ChildElements( in_pElement ) ) {
        if ( out_vecMisfits.size() >= in_uMost )
            return;
        collectMisfits( pChild, vecPatterns, in_strName, in_uMost, out_vecMisfits );
    }
}

/// What is wrong with the attributes of the element.
std::vector<SchemaAdvisor::Fault> SchemaAdvisor::findFaults( const AttributeReader& in_reader,
                                                             const Patterns& in_vecPatterns ) {
    Rules rules;
    for ( const xmlNode* const pPattern : in_vecPatterns )
        collectAttributes( pPattern, in_reader, in_vecPatterns.size() == 1, rules );
    // Half the rules would accuse attributes that are right.
    if ( m_bLost || in_vecPatterns.empty() )
        return {};

    std::vector<Fault> vecFaults;
    for ( const auto& [strName, rule] : rules ) {
        AttributeText text;
        if ( in_reader.findText( strName.c_str(), text ) == ReadResult::ABSENT ) {
            if ( rule.bRequired )
                vecFaults.push_back( { strName, {} } );
        } else if ( std::string strHint = getHint( rule, text.c_str() ); !strHint.empty() ) {
            vecFaults.push_back( { strName, std::move( strHint ) } );
        }
    }
    // A file of attributes only gets no line for each of them.
    unsigned int uUnknown = 0;
    for ( const xmlAttr* pAttribute = in_reader.getElement()->properties;
          pAttribute && uUnknown < MAX_UNKNOWN_ATTRIBUTES; pAttribute = pAttribute->next ) {
        const char* const szName = fromXml( pAttribute->name );
        if ( pAttribute->ns || rules.contains( szName ) )
            continue;
        vecFaults.push_back( { szName, "The element has no such attribute." } );
        ++uUnknown;
    }
    return vecFaults;
}

/// What the rule wants other than the value; empty when it takes it.
std::string SchemaAdvisor::getHint( const Rule& in_rule, const char* in_szValue ) {
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
    return strHint.empty() ? describe( vecValues ) : strHint;
}

/// What the content of a pattern requires of the children of the element and doesn't find, by their names.
std::vector<std::string> SchemaAdvisor::findMissingAmong( const xmlNode* in_pPattern, const xmlNode* in_pElement ) {
    std::vector<std::string> vecMissing;
    for ( const xmlNode* const pChild : ChildElements( in_pPattern ) )
        merge( vecMissing, findMissing( pChild, in_pElement ) );
    return vecMissing;
}

/// What a pattern requires of the children of the element in whose content it stands, alternatives as one text.
std::vector<std::string> SchemaAdvisor::findMissing( const xmlNode* in_pPattern, const xmlNode* in_pElement ) {
    const Step step( *this );
    if ( m_bLost || isPattern( in_pPattern, "optional" ) || isPattern( in_pPattern, "zeroOrMore" ) )
        return {};
    if ( isPattern( in_pPattern, "element" ) ) {
        const std::string strName = getAttribute( in_pPattern, "name" );
        if ( strName.empty() || XML::findFirstElement( in_pElement, strName.c_str() ) )
            return {};
        return { strName };
    }
    if ( isPattern( in_pPattern, "choice" ) ) {
        // Those alternatives count that miss least. Several orders of the same elements are one.
        std::vector<std::vector<std::string>> vecLeast;
        for ( const xmlNode* const pAlternative : ChildElements( in_pPattern ) ) {
            std::vector<std::string> vecMissing = findMissing( pAlternative, in_pElement );
            if ( vecMissing.empty() )
                return {};
            std::sort( vecMissing.begin(), vecMissing.end() );
            if ( !vecLeast.empty() && vecMissing.size() < vecLeast.front().size() )
                vecLeast.clear();
            if ( vecLeast.empty() || vecMissing.size() == vecLeast.front().size() )
                merge( vecLeast, { vecMissing } );
        }
        if ( vecLeast.size() == 1 )
            return vecLeast.front();
        std::string strAlternatives;
        for ( const std::vector<std::string>& vecMissing : vecLeast )
            strAlternatives.append( strAlternatives.empty() ? "" : " or " ).append( vecMissing.front() );
        return { strAlternatives };
    }
    if ( !isPattern( in_pPattern, "ref" ) )
        return findMissingAmong( in_pPattern, in_pElement );
    std::vector<std::string> vecMissing;
    for ( const xmlNode* const pDefinition : getDefinitions( in_pPattern ) )
        merge( vecMissing, findMissingAmong( pDefinition, in_pElement ) );
    return vecMissing;
}

/// The patterns of the element, found from the root down.
const SchemaAdvisor::Patterns& SchemaAdvisor::findPatterns( const xmlNode* in_pElement ) {
    const xmlNode* const pParent = in_pElement->parent;
    return findPatterns( pParent->type == XML_ELEMENT_NODE ? findPatterns( pParent ) : getDefinitions( nullptr ),
                         in_pElement );
}

/// The patterns of the element, which its parent's hold.
const SchemaAdvisor::Patterns& SchemaAdvisor::findPatterns( const Patterns& in_vecParents,
                                                            const xmlNode* in_pElement ) {
    const char* const szName = fromXml( in_pElement->name );
    const auto [it, bNew] = m_mapPatterns.try_emplace( { in_vecParents, szName } );
    if ( bNew ) {
        std::set<const xmlNode*> setSeen;
        for ( const xmlNode* const pParent : in_vecParents )
            collectElements( pParent, szName, setSeen, it->second );
    }
    return it->second;
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
void SchemaAdvisor::collectAttributes( const xmlNode* in_pPattern, const AttributeReader& in_reader, bool in_bRequired,
                                       Rules& out_rules ) {
    for ( const xmlNode* const pChild : ChildElements( in_pPattern ) )
        collectFrom( pChild, in_reader, in_bRequired, out_rules );
}

/// The attributes that a pattern contributes to the element in whose content it stands.
void SchemaAdvisor::collectFrom( const xmlNode* in_pPattern, const AttributeReader& in_reader, bool in_bRequired,
                                 Rules& out_rules ) {
    const Step step( *this );
    if ( m_bLost )
        return;
    if ( isPattern( in_pPattern, "attribute" ) ) {
        Rule& rule = out_rules[getAttribute( in_pPattern, "name" )];
        rule.bRequired = rule.bRequired || in_bRequired;
        collectValues( in_pPattern, rule );
        rule.bAnyValue = rule.bAnyValue || ( rule.vecValues.empty() && rule.vecData.empty() );
    } else if ( isPattern( in_pPattern, "ref" ) ) {
        for ( const xmlNode* const pDefinition : getDefinitions( in_pPattern ) )
            collectAttributes( pDefinition, in_reader, in_bRequired, out_rules );
    } else if ( isPattern( in_pPattern, "choice" ) ) {
        collectChoice( in_pPattern, in_reader, in_bRequired, out_rules );
    } else if ( !isPattern( in_pPattern, "element" ) ) {
        const bool bOptional = isPattern( in_pPattern, "optional" ) || isPattern( in_pPattern, "zeroOrMore" );
        collectAttributes( in_pPattern, in_reader, in_bRequired && !bOptional, out_rules );
    }
}

/// Whether the element has one of the rule's keywords, or has none and needs none.
bool SchemaAdvisor::agrees( const AttributeReader& in_reader, const std::string& in_strAttribute,
                            const Rule& in_rule ) {
    AttributeText text;
    if ( in_reader.findText( in_strAttribute.c_str(), text ) == ReadResult::ABSENT )
        return !in_rule.bRequired;
    return std::find( in_rule.vecValues.begin(), in_rule.vecValues.end(), text.view() ) != in_rule.vecValues.end();
}

/// Whether each has a rule of that kind for the attribute.
bool SchemaAdvisor::haveAll( const std::vector<Rules>& in_vecRules, const std::string& in_strAttribute,
                             bool ( Rule::*in_has )() const noexcept ) {
    return std::all_of( in_vecRules.begin(), in_vecRules.end(), [&]( const Rules& in_rules ) {
        const auto it = in_rules.find( in_strAttribute );
        return it != in_rules.end() && ( it->second.*in_has )();
    } );
}

/// Of alternatives, those are meant with which the element agrees most, in the attributes that have keywords in each of
/// them. What all that are meant require is required.
void SchemaAdvisor::collectChoice( const xmlNode* in_pChoice, const AttributeReader& in_reader, bool in_bRequired,
                                   Rules& out_rules ) {
    std::vector<Rules> vecAlternatives;
    for ( const xmlNode* const pAlternative : ChildElements( in_pChoice ) )
        collectFrom( pAlternative, in_reader, true, vecAlternatives.emplace_back() );
    std::vector<Rules> vecMeant;
    std::ptrdiff_t nMost = 0;
    for ( const Rules& rules : vecAlternatives ) {
        const auto nAgreeing = std::count_if( rules.begin(), rules.end(), [&]( const auto& in_entry ) {
            return haveAll( vecAlternatives, in_entry.first, &Rule::hasKeywordsOnly ) &&
                   agrees( in_reader, in_entry.first, in_entry.second );
        } );
        if ( nAgreeing > nMost )
            vecMeant.clear();
        if ( nAgreeing >= nMost )
            vecMeant.push_back( rules );
        nMost = std::max( nMost, nAgreeing );
    }
    for ( const Rules& rules : vecMeant ) {
        for ( const auto& [strName, rule] : rules ) {
            Rule& merged = out_rules[strName];
            merged.bRequired = merged.bRequired || ( in_bRequired && haveAll( vecMeant, strName, &Rule::isRequired ) );
            merged.bAnyValue = merged.bAnyValue || rule.bAnyValue;
            merge( merged.vecValues, rule.vecValues );
            merge( merged.vecData, rule.vecData );
        }
    }
}

/// The values that an attribute takes.
void SchemaAdvisor::collectValues( const xmlNode* in_pPattern, Rule& out_rule ) {
    const Step step( *this );
    if ( m_bLost )
        return;
    for ( const xmlNode* const pChild : ChildElements( in_pPattern ) ) {
        if ( isPattern( pChild, "value" ) ) {
            const XmlStringPtr pValue( xmlNodeGetContent( pChild ) );
            merge( out_rule.vecValues, { fromXml( pValue.get() ) } );
        } else if ( isPattern( pChild, "ref" ) ) {
            for ( const xmlNode* const pDefinition : getDefinitions( pChild ) )
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

/// What a reference refers to; the start of the grammar for none.
const SchemaAdvisor::Patterns& SchemaAdvisor::getDefinitions( const xmlNode* in_pRef ) const {
    static const Patterns s_vecNone;
    const auto it = m_mapDefinitions.find( in_pRef ? getAttribute( in_pRef, "name" ) : "" );
    return it == m_mapDefinitions.end() ? s_vecNone : it->second;
}

} // namespace Velquin::Pstn
