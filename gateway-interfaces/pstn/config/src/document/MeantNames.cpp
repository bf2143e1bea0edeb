#include "document/MeantNames.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "RuleNames.h"
#include "Suggestion.h"
#include "document/Element.h"
#include "reading/ChildElements.h"

namespace Velquin::Pstn {

namespace {

/// The only candidate that begins or ends as the name does; empty when there is none.
std::string findAffine( const std::string& in_strName, std::span<const std::string> in_candidates ) {
    constexpr std::size_t LEAST = 3; // a shorter one begins too many
    const auto isAffine = []( std::string_view in_strLong, std::string_view in_strShort ) {
        return in_strShort.size() >= LEAST &&
               ( in_strLong.starts_with( in_strShort ) || in_strLong.ends_with( in_strShort ) );
    };
    std::string strAffine;
    for ( const std::string& strCandidate : in_candidates ) {
        if ( !isAffine( strCandidate, in_strName ) && !isAffine( in_strName, strCandidate ) )
            continue;
        if ( !strAffine.empty() )
            return {};
        strAffine = strCandidate;
    }
    return strAffine;
}

/// How many names of attributes and children of an element are missing or wrong under other patterns, and so on in its
/// children.
/// @param in_uDepth down to which children
std::size_t countWrongNames( SchemaPatterns& in_patterns, const xmlNode* in_pElement,
                             const SchemaPatterns::Patterns& in_vecPatterns, unsigned int in_uDepth ) {
    if ( in_vecPatterns.empty() )
        return 1;
    in_patterns.beginElement();
    const auto vecFaults = AttributeRules( in_patterns, in_vecPatterns, in_pElement ).findFaults();
    auto uWrong = static_cast<std::size_t>(
        std::count_if( vecFaults.begin(), vecFaults.end(), []( const AttributeRules::Fault& in_fault ) {
            return in_fault.szRule != std::string_view( Rules::INVALID_VALUE );
        } ) );
    uWrong += in_patterns.findMissingChildren( in_pElement, in_vecPatterns ).size();
    for ( const xmlNode* const pChild : ChildElements( in_pElement ) ) {
        if ( in_uDepth > 0 )
            uWrong += countWrongNames( in_patterns, pChild, in_patterns.find( in_vecPatterns, pChild ), in_uDepth - 1 );
    }
    return uWrong;
}

bool isEmpty( const xmlNode* in_pElement ) {
    return !in_pElement->properties && ChildElements( in_pElement ).empty();
}

constexpr unsigned int MAX_DEPTH = 10; // the format has less

/// The name of the only other child of the parent into which all fits that is in an element; empty when there is none,
/// or the element fits its own name.
std::string findFitting( const NameScope& in_scope, const xmlNode* in_pElement ) {
    constexpr std::size_t LEAST_WRONG = 2; // one mistake doesn't make it another element
    auto& [patterns, vecParents, vecNames] = in_scope;
    const SchemaPatterns::Patterns& vecOwn = patterns.find( vecParents, in_pElement );
    const bool bKnown = !vecOwn.empty();
    if ( isEmpty( in_pElement ) || ( bKnown && vecNames.size() == 1 ) ||
         ( bKnown && countWrongNames( patterns, in_pElement, vecOwn, 1 ) < LEAST_WRONG ) )
        return {};
    std::string strFitting;
    for ( const std::string& strName : vecNames ) {
        if ( strName == getElementName( in_pElement ) ||
             countWrongNames( patterns, in_pElement, patterns.find( vecParents, strName ), MAX_DEPTH ) > 0 )
            continue;
        if ( !strFitting.empty() )
            return {};
        strFitting = strName;
    }
    return strFitting;
}

/// For each unknown name the one that is meant: the nearest of the missing ones, which it is taken off; the nearest of
/// all; the missing one, then any, that begins or ends as it does; or the missing one that is left when one is left of
/// each.
/// @param inout_vecMeant the names that are known to be meant, or empty ones
void matchNames( const std::vector<std::string>& in_vecUnknown, std::span<const std::string> in_known,
                 std::vector<std::string>& inout_vecMissing, std::vector<MeantName>& inout_vecMeant ) {
    inout_vecMeant.resize( in_vecUnknown.size() );
    const auto match = [&]( const auto& in_find, bool in_bLikely ) {
        for ( std::size_t u = 0; u < in_vecUnknown.size(); ++u ) {
            std::string& strMeant = inout_vecMeant[u].strName;
            if ( strMeant.empty() ) {
                strMeant = in_find( in_vecUnknown[u], inout_vecMissing );
                if ( strMeant.empty() )
                    strMeant = in_find( in_vecUnknown[u], in_known );
                inout_vecMeant[u].bLikely = in_bLikely && !strMeant.empty();
            }
            std::erase_if( inout_vecMissing, [&strMeant]( const std::string& in_strAlternatives ) {
                return !strMeant.empty() && isAmong( strMeant, in_strAlternatives );
            } );
        }
    };
    match( &findNearest, true );
    match( &findAffine, false );
    const auto isUnknown = []( const MeantName& in_meant ) { return in_meant.strName.empty(); };
    if ( inout_vecMissing.size() == 1 &&
         std::count_if( inout_vecMeant.begin(), inout_vecMeant.end(), isUnknown ) == 1 ) {
        std::find_if( inout_vecMeant.begin(), inout_vecMeant.end(), isUnknown )->strName = inout_vecMissing[0];
        inout_vecMissing.clear();
    }
}

} // namespace

std::string MeantName::describe( const std::string& in_strWritten, std::span<const std::string> in_known ) const {
    if ( strName.empty() )
        return describeNames( in_strWritten, in_known );
    std::string strQuoted = "\"" + strName + "\"";
    if ( bLikely )
        return "did you mean " + strQuoted + "?";
    constexpr std::string_view OR = " or ";
    if ( const std::size_t uOr = strQuoted.find( OR ); uOr != std::string::npos )
        strQuoted.replace( uOr, OR.size(), "\" or \"" );
    return "expected " + strQuoted;
}

void joinFaults( std::span<const std::string> in_known, std::vector<AttributeRules::Fault>& inout_vecFaults ) {
    const auto getNames = [&inout_vecFaults]( std::string_view in_strRule ) {
        std::vector<std::string> vecNames;
        for ( const AttributeRules::Fault& fault : inout_vecFaults ) {
            if ( in_strRule == fault.szRule )
                vecNames.push_back( fault.strAttribute );
        }
        return vecNames;
    };
    std::vector<std::string> vecMissing = getNames( Rules::MISSING_ATTRIBUTE );
    std::vector<MeantName> vecMeant;
    matchNames( getNames( Rules::UNKNOWN_ATTRIBUTE ), in_known, vecMissing, vecMeant );
    std::erase_if( inout_vecFaults, [&vecMissing]( const AttributeRules::Fault& in_fault ) {
        return in_fault.szRule == std::string_view( Rules::MISSING_ATTRIBUTE ) &&
               std::find( vecMissing.begin(), vecMissing.end(), in_fault.strAttribute ) == vecMissing.end();
    } );
    auto itMeant = vecMeant.begin();
    for ( AttributeRules::Fault& fault : inout_vecFaults ) {
        if ( fault.szRule == std::string_view( Rules::UNKNOWN_ATTRIBUTE ) )
            fault.strAdvice = itMeant++->describe( fault.strAttribute, in_known );
    }
}

std::string findHolder( const NameScope& in_scope, const xmlNode* in_pElement ) {
    auto& [patterns, vecParents, vecNames] = in_scope;
    std::vector<std::string> vecHolders;
    std::vector<std::string> vecFitting;
    for ( const std::string& strName : vecNames ) {
        patterns.beginElement();
        const auto& vecPatterns = patterns.find( patterns.find( vecParents, strName ), in_pElement );
        if ( vecPatterns.empty() )
            continue;
        vecHolders.push_back( strName );
        if ( countWrongNames( patterns, in_pElement, vecPatterns, MAX_DEPTH ) == 0 )
            vecFitting.push_back( strName );
    }
    return vecHolders.size() == 1 ? vecHolders[0] : vecFitting.size() == 1 ? vecFitting[0] : std::string();
}

ChildNames nameChildren( const NameScope& in_scope, const SchemaContent& in_content,
                         const std::vector<xmlNode*>& in_vecChildren, std::vector<std::string>& inout_vecMissing ) {
    std::vector<SchemaContent::Child> vecKnown;
    std::vector<std::string> vecWritten;
    std::vector<MeantName> vecMeant;
    ChildNames names;
    const auto isKnown = [&in_scope]( const xmlNode* in_pChild ) {
        return !in_scope.patterns.find( in_scope.vecParents, in_pChild ).empty();
    };
    for ( xmlNode* const pChild : in_vecChildren ) {
        const std::string strFitting = findFitting( in_scope, pChild );
        if ( isKnown( pChild ) )
            vecKnown.push_back( { pChild, getElementName( pChild ) } );
        if ( isKnown( pChild ) && strFitting.empty() )
            continue;
        names.vecWrong.push_back( { pChild, {} } );
        vecWritten.emplace_back( getElementName( pChild ) );
        vecMeant.push_back( { strFitting, !strFitting.empty() } );
    }
    matchNames( vecWritten, in_scope.vecNames, inout_vecMissing, vecMeant );
    for ( std::size_t u = 0; u < vecMeant.size(); ++u )
        names.vecWrong[u].meant = vecMeant[u];
    auto itWrong = names.vecWrong.begin();
    for ( xmlNode* const pChild : in_vecChildren ) {
        if ( itWrong == names.vecWrong.end() || itWrong->pElement != pChild )
            names.vecReadable.push_back( { pChild, getElementName( pChild ) } );
        else if ( const MeantName& meant = itWrong++->meant; meant.bLikely )
            names.vecReadable.push_back( { pChild, meant.strName } );
    }
    const auto vecMisplaced = in_content.findMisplaced( names.vecReadable );
    if ( std::any_of( names.vecReadable.begin(), names.vecReadable.end(), [&]( const SchemaContent::Child& in_child ) {
             return in_child.isRenamed() &&
                    std::any_of( vecMisplaced.begin(), vecMisplaced.end(), [&in_child]( const auto& in_misplaced ) {
                        return in_misplaced.pChild == in_child.pElement || in_misplaced.pOther == in_child.pElement;
                    } );
         } ) ) {
        names.vecReadable = std::move( vecKnown );
        std::erase_if( names.vecWrong,
                       [&isKnown]( const ChildNames::Wrong& in_wrong ) { return isKnown( in_wrong.pElement ); } );
    }
    return names;
}

} // namespace Velquin::Pstn
