#include "document/SchemaPatterns.h"

#include <algorithm>

#include "document/Element.h"

namespace Velquin::Pstn {

namespace {

// One element needs far fewer steps. A schema that never ends reaches the limit soon.
constexpr unsigned int MAX_STEPS = 20'000;
constexpr unsigned int MAX_DEPTH = 500;

constexpr std::string_view RELAX_NG = "http://relaxng.org/ns/structure/1.0";

/// Whether a pattern holds what this file doesn't follow: names that are no attributes, grammars in grammars, and
/// definitions that are alternatives. With half of the schema, a right file would look wrong.
bool isBeyond( const xmlNode* in_pPattern ) {
    for ( const xmlNode* const pChild : ChildPatterns( in_pPattern ) ) {
        const bool bNamed = isPattern( pChild, "element" ) || isPattern( pChild, "attribute" );
        if ( ( bNamed && getPatternAttribute( pChild, "name" ).empty() ) || isPattern( pChild, "div" ) ||
             isPattern( pChild, "grammar" ) || getPatternAttribute( pChild, "combine" ) == "choice" ||
             isBeyond( pChild ) )
            return true;
    }
    return false;
}

} // namespace

xmlNode* ChildPatterns::Iterator::skipAnnotations( xmlNode* in_pElement ) {
    while ( in_pElement && !isOfNamespace( in_pElement, RELAX_NG ) )
        in_pElement = XML::findNextElement( in_pElement );
    return in_pElement;
}

std::string getPatternAttribute( const xmlNode* in_pPattern, const char* in_szName ) {
    AttributeText text;
    static_cast<void>( findAttribute( in_pPattern, in_szName, text ) );
    return text.c_str();
}

bool isPattern( const xmlNode* in_pPattern, std::string_view in_strName ) {
    return in_strName == getElementName( in_pPattern );
}

bool isAmong( const std::string& in_strName, const std::string& in_strAlternatives ) {
    return in_strAlternatives.find( in_strName ) != std::string::npos &&
           ( " or " + in_strAlternatives + " or " ).find( " or " + in_strName + " or " ) != std::string::npos;
}

SchemaPatterns::SchemaPatterns( const xmlDoc* in_pSchema ) {
    const xmlNode* const pGrammar = xmlDocGetRootElement( in_pSchema );
    m_bLost = isBeyond( pGrammar );
    for ( const xmlNode* const pChild : ChildPatterns( pGrammar ) ) {
        if ( isPattern( pChild, "define" ) )
            m_mapDefinitions[getPatternAttribute( pChild, "name" )].push_back( pChild );
        else if ( isPattern( pChild, "start" ) )
            m_mapDefinitions[""].push_back( pChild );
    }
}

SchemaPatterns::Step::Step( SchemaPatterns& in_patterns ) : m_patterns( in_patterns ) {
    m_patterns.m_bLost = m_patterns.m_bLost || ++m_patterns.m_uSteps > MAX_STEPS || m_patterns.m_uDepth >= MAX_DEPTH;
    ++m_patterns.m_uDepth;
}

std::vector<std::string> SchemaPatterns::findMissingChildren( const xmlNode* in_pElement ) {
    beginElement();
    return findMissingChildren( in_pElement, find( in_pElement ) );
}

std::vector<std::string> SchemaPatterns::findMissingChildren( const xmlNode* in_pElement,
                                                              const Patterns& in_vecPatterns ) {
    std::vector<std::string> vecMissing;
    for ( const xmlNode* const pPattern : in_vecPatterns ) {
        vecMissing = findMissingAmong( pPattern, in_pElement );
        if ( vecMissing.empty() )
            break;
    }
    return vecMissing;
}

/// The names of the children that the content of a pattern requires and the element lacks.
std::vector<std::string> SchemaPatterns::findMissingAmong( const xmlNode* in_pPattern, const xmlNode* in_pElement ) {
    std::vector<std::string> vecMissing;
    for ( const xmlNode* const pChild : ChildPatterns( in_pPattern ) )
        merge( vecMissing, findMissing( pChild, in_pElement ) );
    return vecMissing;
}

/// The names of the children that a pattern requires and the element around it lacks. Alternatives are one text.
std::vector<std::string> SchemaPatterns::findMissing( const xmlNode* in_pPattern, const xmlNode* in_pElement ) {
    const Step step( *this );
    if ( m_bLost || isPattern( in_pPattern, "optional" ) || isPattern( in_pPattern, "zeroOrMore" ) )
        return {};
    if ( isPattern( in_pPattern, "element" ) ) {
        const std::string strName = getPatternAttribute( in_pPattern, "name" );
        if ( XML::findFirstElement( in_pElement, strName.c_str() ) )
            return {};
        return { strName };
    }
    if ( isPattern( in_pPattern, "choice" ) ) {
        // The alternatives that lack least count. Several orders of the same elements count as one.
        std::vector<std::vector<std::string>> vecLeast;
        for ( const xmlNode* const pAlternative : ChildPatterns( in_pPattern ) ) {
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

const SchemaPatterns::Patterns& SchemaPatterns::find( const xmlNode* in_pElement ) {
    const xmlNode* const pParent = in_pElement->parent;
    return find( pParent->type == XML_ELEMENT_NODE ? find( pParent ) : getDefinitions( nullptr ), in_pElement );
}

const SchemaPatterns::Patterns& SchemaPatterns::find( const Patterns& in_vecParents, const xmlNode* in_pElement ) {
    return find( in_vecParents, std::string( getElementName( in_pElement ) ) );
}

const SchemaPatterns::Patterns& SchemaPatterns::find( const Patterns& in_vecParents, const std::string& in_strName ) {
    const auto [it, bNew] = m_mapPatterns.try_emplace( { in_vecParents, in_strName } );
    if ( bNew ) {
        std::set<const xmlNode*> setSeen;
        for ( const xmlNode* const pParent : in_vecParents )
            collectElements( pParent, in_strName, setSeen, it->second );
    }
    return it->second;
}

std::vector<std::string> SchemaPatterns::findChildNames( const Patterns& in_vecPatterns ) {
    std::set<const xmlNode*> setSeen;
    Patterns vecElements;
    for ( const xmlNode* const pPattern : in_vecPatterns )
        collectElements( pPattern, {}, setSeen, vecElements );
    std::vector<std::string> vecNames;
    for ( const xmlNode* const pElement : vecElements )
        merge( vecNames, { getPatternAttribute( pElement, "name" ) } );
    return vecNames;
}

/// Collects the `element` patterns of that name, or of any name for an empty one, that stand directly in the content of
/// a pattern.
void SchemaPatterns::collectElements( const xmlNode* in_pPattern, std::string_view in_strName,
                                      std::set<const xmlNode*>& inout_setSeen, Patterns& out_vecPatterns ) {
    const Step step( *this );
    if ( m_bLost || !inout_setSeen.insert( in_pPattern ).second )
        return;
    for ( const xmlNode* const pChild : ChildPatterns( in_pPattern ) ) {
        if ( isPattern( pChild, "element" ) ) {
            if ( in_strName.empty() || getPatternAttribute( pChild, "name" ) == in_strName )
                out_vecPatterns.push_back( pChild );
        } else if ( isPattern( pChild, "ref" ) ) {
            for ( const xmlNode* const pDefinition : getDefinitions( pChild ) )
                collectElements( pDefinition, in_strName, inout_setSeen, out_vecPatterns );
        } else {
            collectElements( pChild, in_strName, inout_setSeen, out_vecPatterns );
        }
    }
}

const SchemaPatterns::Patterns& SchemaPatterns::getDefinitions( const xmlNode* in_pRef ) const {
    static const Patterns s_vecNone;
    const auto it = m_mapDefinitions.find( in_pRef ? getPatternAttribute( in_pRef, "name" ) : "" );
    return it == m_mapDefinitions.end() ? s_vecNone : it->second;
}

} // namespace Velquin::Pstn
