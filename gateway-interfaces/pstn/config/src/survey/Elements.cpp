#include "survey/Elements.h"

#include <algorithm>

#include "document/Element.h"
#include "reading/ChildElements.h"
#include "reading/Number.h"

namespace Velquin::Pstn {

namespace {

void appendTree( const xmlNode* in_pElement, std::vector<const xmlNode*>& out_vecElements ) {
    out_vecElements.push_back( in_pElement );
    for ( const xmlNode* const pChild : ChildElements( in_pElement ) )
        appendTree( pChild, out_vecElements );
}

} // namespace

std::string getValue( const xmlNode* in_pElement, const char* in_szAttribute ) {
    AttributeText text;
    static_cast<void>( findAttribute( in_pElement, in_szAttribute, text ) );
    return text.c_str();
}

std::optional<unsigned int> getNumber( const xmlNode* in_pElement, const char* in_szAttribute ) {
    return parseNumber<unsigned int>( getValue( in_pElement, in_szAttribute ), NumberPolicy::LEADING );
}

bool isSameIdentifier( std::string_view in_strX, std::string_view in_strY ) {
    const auto uX = parseNumber<unsigned int>( in_strX, NumberPolicy::WHOLE );
    return in_strX == in_strY || ( uX && uX == parseNumber<unsigned int>( in_strY, NumberPolicy::WHOLE ) );
}

bool isNamed( const xmlNode* in_pElement, std::string_view in_strName ) {
    return in_strName == getElementName( in_pElement );
}

bool isWithin( const xmlNode* in_pElement, const xmlNode* in_pAncestor ) {
    while ( in_pElement && in_pElement != in_pAncestor )
        in_pElement = getParentElement( in_pElement );
    return in_pElement != nullptr;
}

std::vector<const xmlNode*> getChain( const xmlNode* in_pElement ) {
    std::vector<const xmlNode*> vecChain;
    for ( const xmlNode* p = in_pElement; p && getParentElement( p ); p = getParentElement( p ) )
        vecChain.push_back( p );
    std::reverse( vecChain.begin(), vecChain.end() );
    return vecChain;
}

std::vector<const xmlNode*> getTree( const xmlNode* in_pElement ) {
    std::vector<const xmlNode*> vecElements;
    appendTree( in_pElement, vecElements );
    return vecElements;
}

std::vector<const xmlNode*> getChildren( const xmlNode* in_pElement ) {
    std::vector<const xmlNode*> vecChildren;
    for ( const xmlNode* const pChild : ChildElements( in_pElement ) )
        vecChildren.push_back( pChild );
    return vecChildren;
}

std::vector<const xmlNode*> getBoards( const xmlNode* in_pRoot, bool in_bAnalog ) {
    std::vector<const xmlNode*> vecBoards;
    for ( const xmlNode* const pSection : ChildElements( in_pRoot, "boards" ) ) {
        for ( const xmlNode* const pBoard : ChildElements( pSection ) ) {
            if ( isAnalog( pBoard ) == in_bAnalog )
                vecBoards.push_back( pBoard );
        }
    }
    return vecBoards;
}

const xmlNode* findById( const std::vector<const xmlNode*>& in_vecElements, std::string_view in_strId ) {
    const auto it = std::find_if( in_vecElements.begin(), in_vecElements.end(), [in_strId]( const xmlNode* in_p ) {
        return isSameIdentifier( getValue( in_p, "ID" ), in_strId );
    } );
    return it == in_vecElements.end() ? nullptr : *it;
}

bool isReference( const xmlNode* in_pElement ) {
    const xmlNode* const pParent = getParentElement( in_pElement );
    return pParent && ( isNamed( pParent, "applyTo" ) || isNamed( pParent, "members" ) );
}

bool isWholeBoard( const xmlNode* in_pElement ) {
    return isReference( in_pElement ) && getValue( in_pElement, "interfaceID" ).empty();
}

const xmlNode* getReference( const xmlNode* in_pElement ) {
    return isReference( in_pElement ) ? in_pElement : getParentElement( in_pElement );
}

bool meanOneLine( const xmlNode* in_pX, const xmlNode* in_pY ) {
    const auto uX = getNumber( in_pX, "interfaceID" );
    const auto uY = getNumber( in_pY, "interfaceID" );
    return getNumber( in_pX, "boardID" ) == getNumber( in_pY, "boardID" ) && ( !uX || !uY || uX == uY ) &&
           isAnalog( in_pX ) == isAnalog( in_pY );
}

bool shareChannel( const xmlNode* in_pX, const xmlNode* in_pY ) {
    return getValue( in_pX, "channelGroupID" ) == getValue( in_pY, "channelGroupID" ) &&
           getNumber( in_pX, "firstChannel" ) <= getNumber( in_pY, "lastChannel" ) &&
           getNumber( in_pY, "firstChannel" ) <= getNumber( in_pX, "lastChannel" ) &&
           meanOneLine( getReference( in_pX ), getReference( in_pY ) );
}

bool sharesChannelWith( const xmlNode* in_pRange, const xmlNode* in_pReference ) {
    constexpr unsigned int MAX_RANGES = 64; // no line has as many channels
    unsigned int uRanges = 0;
    for ( const xmlNode* const pOther : ChildElements( in_pReference ) ) {
        if ( pOther != in_pRange && shareChannel( in_pRange, pOther ) )
            return true;
        if ( ++uRanges == MAX_RANGES )
            break;
    }
    return false;
}

bool sharesChannelWithin( const xmlNode* in_pRange ) {
    return !isReference( in_pRange ) && sharesChannelWith( in_pRange, getParentElement( in_pRange ) );
}

bool isAnalog( const xmlNode* in_pElement ) {
    const auto vecChain = getChain( in_pElement );
    return std::any_of( vecChain.begin(), vecChain.end(), []( const xmlNode* in_pOne ) {
        return std::string_view( getElementName( in_pOne ) ).find( "nalog" ) != std::string_view::npos;
    } );
}

} // namespace Velquin::Pstn
