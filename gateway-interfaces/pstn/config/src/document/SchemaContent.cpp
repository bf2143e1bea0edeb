#include "document/SchemaContent.h"

#include <algorithm>

#include "document/Element.h"

namespace Velquin::Pstn {

namespace {

constexpr std::size_t MAX_MISPLACED = 10; // a file full of them gets no line for each

bool isOneOf( const xmlNode* in_pPattern, std::initializer_list<std::string_view> in_names ) {
    return std::any_of( in_names.begin(), in_names.end(),
                        [in_pPattern]( std::string_view in_strName ) { return isPattern( in_pPattern, in_strName ); } );
}

} // namespace

SchemaContent::SchemaContent( SchemaPatterns& in_patterns, const SchemaPatterns::Patterns& in_vecPatterns ) {
    in_patterns.beginElement();
    for ( const xmlNode* const pPattern : in_vecPatterns )
        collectContent( in_patterns, pPattern, true, false );
    m_bOpen = m_bOpen || in_vecPatterns.empty() || in_patterns.isLost();
}

/// The names of the children that a pattern takes.
SchemaContent::Names SchemaContent::collect( SchemaPatterns& in_patterns, const xmlNode* in_pPattern ) {
    const SchemaPatterns::Step step( in_patterns );
    if ( in_patterns.isLost() )
        return 0;
    if ( isPattern( in_pPattern, "element" ) )
        return takeName( getPatternAttribute( in_pPattern, "name" ) );
    if ( isPattern( in_pPattern, "attribute" ) ) {
        const std::string strName = getPatternAttribute( in_pPattern, "name" );
        m_bPrefixes = m_bPrefixes || strName.find( ':' ) != std::string::npos;
        return 0;
    }
    if ( isPattern( in_pPattern, "ref" ) ) {
        Names all = 0;
        for ( const xmlNode* const pDefinition : in_patterns.getDefinitions( in_pPattern ) ) {
            const Names names = collectContent( in_patterns, pDefinition, true, false );
            allow( all, names ); // several definitions may stand for an interleave
            allow( names, all );
            all |= names;
        }
        return all;
    }
    m_bText = m_bText || isOneOf( in_pPattern, { "text", "data", "value", "list", "mixed" } );
    const bool bInterleave = isOneOf( in_pPattern, { "interleave", "mixed" } );
    const Names names = collectContent( in_patterns, in_pPattern, !isPattern( in_pPattern, "choice" ), bInterleave );
    if ( isOneOf( in_pPattern, { "zeroOrMore", "oneOrMore" } ) )
        allow( names, names );
    return names;
}

/// @param in_bForward whether each part of the pattern may stand in front of the next
/// @param in_bBackward whether each part may stand in front of the one before
SchemaContent::Names SchemaContent::collectContent( SchemaPatterns& in_patterns, const xmlNode* in_pPattern,
                                                    bool in_bForward, bool in_bBackward ) {
    Names all = 0;
    for ( const xmlNode* const pPart : ChildPatterns( in_pPattern ) ) {
        const Names names = collect( in_patterns, pPart );
        if ( in_bForward )
            allow( all, names );
        if ( in_bBackward )
            allow( names, all );
        all |= names;
    }
    return all;
}

SchemaContent::Names SchemaContent::takeName( std::string_view in_strName ) {
    const auto it = std::find( m_vecNames.begin(), m_vecNames.end(), in_strName );
    const auto uName = static_cast<std::size_t>( it - m_vecNames.begin() );
    if ( uName == MAX_NAMES ) {
        m_bOpen = true;
        return 0;
    }
    if ( it == m_vecNames.end() )
        m_vecNames.emplace_back( in_strName );
    return Names{ 1 } << uName;
}

void SchemaContent::allow( Names in_first, Names in_behind ) noexcept {
    for ( std::size_t u = 0; u < m_vecNames.size(); ++u ) {
        if ( ( in_behind >> u & 1 ) != 0 )
            m_aInFront[u] |= in_first;
    }
}

std::vector<SchemaContent::Misplaced> SchemaContent::findMisplaced( std::vector<Child> in_vecChildren ) const {
    std::vector<Misplaced> vecMisplaced;
    if ( m_bOpen )
        return vecMisplaced;
    std::vector<std::size_t> vecNames;
    for ( const Child& child : in_vecChildren ) {
        const auto it = std::find( m_vecNames.begin(), m_vecNames.end(), child.strName );
        if ( it == m_vecNames.end() )
            return vecMisplaced;
        vecNames.push_back( static_cast<std::size_t>( it - m_vecNames.begin() ) );
    }
    while ( vecMisplaced.size() < MAX_MISPLACED ) {
        const std::vector<std::size_t> vecConflicts = countConflicts( vecNames );
        // Of two that keep each other from their places, the second is the one too many.
        const auto itWorst = std::max_element( vecConflicts.rbegin(), vecConflicts.rend() );
        if ( itWorst == vecConflicts.rend() || *itWorst == 0 )
            break;
        const auto nWorst = vecConflicts.rend() - itWorst - 1;
        vecMisplaced.push_back( explain( in_vecChildren, vecNames, static_cast<std::size_t>( nWorst ) ) );
        in_vecChildren.erase( in_vecChildren.begin() + nWorst );
        vecNames.erase( vecNames.begin() + nWorst );
    }
    return vecMisplaced;
}

/// For each child, the number of those that can't stand on that side of it.
std::vector<std::size_t> SchemaContent::countConflicts( const std::vector<std::size_t>& in_vecNames ) const {
    std::vector<std::size_t> vecConflicts( in_vecNames.size() );
    std::array<std::size_t, MAX_NAMES> aInFront{};
    std::array<std::size_t, MAX_NAMES> aBehind{};
    for ( const std::size_t uName : in_vecNames )
        ++aBehind[uName];
    for ( std::size_t u = 0; u < in_vecNames.size(); ++u ) {
        const std::size_t uName = in_vecNames[u];
        --aBehind[uName];
        for ( std::size_t uOther = 0; uOther < m_vecNames.size(); ++uOther ) {
            vecConflicts[u] += mayPrecede( uOther, uName ) ? 0 : aInFront[uOther];
            vecConflicts[u] += mayPrecede( uName, uOther ) ? 0 : aBehind[uOther];
        }
        ++aInFront[uName];
    }
    return vecConflicts;
}

SchemaContent::Misplaced SchemaContent::explain( const std::vector<Child>& in_vecChildren,
                                                 const std::vector<std::size_t>& in_vecNames,
                                                 std::size_t in_uChild ) const {
    const std::size_t uName = in_vecNames[in_uChild];
    for ( std::size_t u = 0; u < in_uChild; ++u ) {
        if ( mayPrecede( in_vecNames[u], uName ) )
            continue;
        return { in_vecChildren[in_uChild].pElement, in_vecChildren[u].pElement,
                 in_vecNames[u] == uName               ? Reason::TWICE
                 : mayPrecede( uName, in_vecNames[u] ) ? Reason::BELONGS_FORWARD
                                                       : Reason::EXCLUDED };
    }
    std::size_t uLast = in_vecNames.size() - 1;
    while ( uLast > in_uChild && mayPrecede( uName, in_vecNames[uLast] ) )
        --uLast;
    return { in_vecChildren[in_uChild].pElement, in_vecChildren[uLast].pElement,
             in_vecNames[uLast] == uName               ? Reason::TWICE
             : mayPrecede( in_vecNames[uLast], uName ) ? Reason::BELONGS_BEHIND
                                                       : Reason::EXCLUDED };
}

} // namespace Velquin::Pstn
