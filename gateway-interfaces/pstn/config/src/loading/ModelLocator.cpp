#include "loading/ModelLocator.h"

#include <algorithm>
#include <map>

#include "document/Element.h"
#include "reading/ChildElements.h"
#include "reading/Number.h"

namespace Velquin::Pstn {

namespace {

std::string readText( const xmlNode* in_pElement, const char* in_szAttribute ) {
    AttributeText text;
    static_cast<void>( findAttribute( in_pElement, in_szAttribute, text ) );
    return text.c_str();
}

/// An identifier or a channel, as its reader reads it where the reader takes it.
unsigned long long readNumber( const xmlNode* in_pElement, const char* in_szAttribute ) {
    AttributeText text;
    static_cast<void>( findAttribute( in_pElement, in_szAttribute, text ) );
    return parseNumber<unsigned int>( text.view(), NumberPolicy::LEADING ).value_or( 0 );
}

/// Takes the first name off a path of names.
std::string_view takeName( std::string_view& inout_strNames ) {
    const std::string_view strName = inout_strNames.substr( 0, inout_strNames.find( '/' ) );
    inout_strNames.remove_prefix( std::min( strName.size() + 1, inout_strNames.size() ) );
    return strName;
}

bool isNamed( const xmlNode* in_pElement, std::string_view in_strName ) {
    const std::string_view strName = getElementName( in_pElement );
    return in_strName.ends_with( '*' ) ? strName.starts_with( in_strName.substr( 0, in_strName.size() - 1 ) )
                                       : strName == in_strName;
}

} // namespace

ModelLocator::Place ModelLocator::find( bool in_bAnalog, unsigned int in_uBoardId,
                                        std::optional<unsigned int> in_uInterfaceId ) {
    const Key board( in_bAnalog ? ANALOG_BOARD : DIGITAL_BOARD, in_uBoardId );
    return find( in_uInterfaceId ? board.with( *in_uInterfaceId ) : board );
}

ModelLocator::Place ModelLocator::find( const Key& in_key, std::string_view in_strBelow ) {
    const std::uint32_t uElement = findElement( in_key, in_strBelow );
    return uElement == NONE ? Place{} : Place{ m_vecElements[uElement].pElement, composePath( uElement ) };
}

bool ModelLocator::contains( const Key& in_key ) {
    return findElement( in_key, {} ) != NONE;
}

std::size_t ModelLocator::countChildren( const Key& in_key, std::string_view in_strBelow ) {
    const std::uint32_t uElement = findElement( in_key, in_strBelow );
    return uElement == NONE ? 0 : m_vecElements[uElement].uEndOfChildren - m_vecElements[uElement].uFirstChild;
}

std::size_t ModelLocator::countRanges( unsigned int in_uBoardId, unsigned int in_uInterfaceId ) {
    gather();
    const Key board( "", in_uBoardId );
    std::size_t uRanges = 0;
    for ( const Key& key : { board.with( in_uInterfaceId ), board.with( ALL_INTERFACES ) } ) {
        const auto it = m_mapRanges.find( key.getText() );
        uRanges += it == m_mapRanges.end() ? 0 : it->second;
    }
    return uRanges;
}

bool ModelLocator::mayBeFilled( std::string_view in_strChannelGroup ) {
    gather();
    return m_bUnknownGroup || m_setFilledGroups.contains( std::string( in_strChannelGroup ) );
}

void ModelLocator::gather() {
    if ( !m_vecElements.empty() )
        return;
    m_vecElements.push_back( { m_pRoot, NONE, 0, 0, 0 } );
    for ( std::uint32_t u = 0; u < m_vecElements.size(); ++u ) {
        AttributeText group;
        if ( findAttribute( m_vecElements[u].pElement, "channelGroupID", group ) )
            m_setFilledGroups.emplace( group.view() );
        gatherChildren( u );
    }
    // As the loader does, take the first section of each name.
    for ( const char* const szSection : { "boards", "providers", "physicalInterfaceConfigs",
                                          "callControl/channelGroups", "callControl/isdn", "callControl/analog" } ) {
        const std::uint32_t uSection = findChild( 0, szSection );
        if ( uSection == NONE )
            continue;
        if ( isNamed( m_vecElements[uSection].pElement, "boards" ) )
            indexBoards( uSection );
        else
            indexEntries( uSection );
    }
    m_bUnknownGroup =
        std::any_of( m_setFilledGroups.begin(), m_setFilledGroups.end(), [this]( const std::string& in_strGroup ) {
            return !m_mapElements.contains( Key( "channelGroup", in_strGroup ).getText() );
        } );
}

void ModelLocator::gatherChildren( std::uint32_t in_uParent ) {
    // Not xmlGetNodePath: it would count the siblings again for each path.
    std::map<std::string_view, std::uint32_t> mapCounts;
    const auto uFirst = static_cast<std::uint32_t>( m_vecElements.size() );
    for ( const xmlNode* const pChild : ChildElements( m_vecElements[in_uParent].pElement ) )
        m_vecElements.push_back( { pChild, in_uParent, ++mapCounts[getElementName( pChild )], 0, 0 } );
    m_vecElements[in_uParent].uFirstChild = uFirst;
    m_vecElements[in_uParent].uEndOfChildren = static_cast<std::uint32_t>( m_vecElements.size() );
    for ( std::uint32_t u = uFirst; u < m_vecElements.size(); ++u ) {
        if ( mapCounts[getElementName( m_vecElements[u].pElement )] == 1 )
            m_vecElements[u].uPosition = 0;
    }
}

void ModelLocator::indexBoards( std::uint32_t in_uBoards ) {
    for ( std::uint32_t u = m_vecElements[in_uBoards].uFirstChild; u < m_vecElements[in_uBoards].uEndOfChildren; ++u ) {
        const Element& board = m_vecElements[u];
        const Key key( isNamed( board.pElement, "tirvanaAnalogBoard" ) ? ANALOG_BOARD : DIGITAL_BOARD,
                       readNumber( board.pElement, "ID" ) );
        add( key, u );
        for ( std::uint32_t uInterface = board.uFirstChild; uInterface < board.uEndOfChildren; ++uInterface )
            add( key.with( readNumber( m_vecElements[uInterface].pElement, "ID" ) ), uInterface );
    }
}

void ModelLocator::indexEntries( std::uint32_t in_uSection ) {
    const Element& section = m_vecElements[in_uSection];
    const bool bProviders = isNamed( section.pElement, "providers" );
    const bool bGroups = isNamed( section.pElement, "channelGroups" );
    for ( std::uint32_t u = section.uFirstChild; u < section.uEndOfChildren; ++u ) {
        const Element& entry = m_vecElements[u];
        const char* const szName = getElementName( entry.pElement );
        const Key key = bProviders ? Key( szName )
                        : bGroups  ? Key( "channelGroup", readText( entry.pElement, "ID" ) )
                                   : Key( szName, readNumber( entry.pElement, "ID" ) );
        add( key, u );
        for ( const char* const szReferences : { "applyTo", "members" } ) {
            const std::uint32_t uReferences = findChild( u, szReferences );
            if ( uReferences != NONE )
                indexReferences( uReferences, key );
        }
    }
}

void ModelLocator::indexReferences( std::uint32_t in_uReferences, const Key& in_entry ) {
    const Element& references = m_vecElements[in_uReferences];
    for ( std::uint32_t u = references.uFirstChild; u < references.uEndOfChildren; ++u ) {
        const Element& reference = m_vecElements[u];
        AttributeText interfaceId;
        const std::string strInterface = findAttribute( reference.pElement, "interfaceID", interfaceId )
                                             ? std::to_string( readNumber( reference.pElement, "interfaceID" ) )
                                             : ALL_INTERFACES;
        const unsigned long long ullBoard = readNumber( reference.pElement, "boardID" );
        const Key key = in_entry.with( ullBoard, strInterface );
        add( key, u );
        const std::size_t uRanges = reference.uEndOfChildren - reference.uFirstChild;
        if ( uRanges != 0 )
            m_mapRanges[Key( "", ullBoard, strInterface ).getText()] += uRanges;
        for ( std::uint32_t uRange = reference.uFirstChild; uRange < reference.uEndOfChildren; ++uRange ) {
            const xmlNode* const pRange = m_vecElements[uRange].pElement;
            const std::string strGroup = readText( pRange, "channelGroupID" );
            add( key.with( readNumber( pRange, "firstChannel" ), readNumber( pRange, "lastChannel" ), strGroup ),
                 uRange );
        }
    }
}

void ModelLocator::add( const Key& in_key, std::uint32_t in_uElement ) {
    m_mapElements.try_emplace( in_key.getText(), in_uElement );
}

std::uint32_t ModelLocator::findElement( const Key& in_key, std::string_view in_strBelow ) {
    gather();
    const auto it = m_mapElements.find( in_key.getText() );
    return it == m_mapElements.end() ? NONE : findChild( it->second, in_strBelow );
}

/// The first child of the first name, in it the first child of the next name, and so on.
std::uint32_t ModelLocator::findChild( std::uint32_t in_uElement, std::string_view in_strNames ) const {
    std::uint32_t uFound = in_uElement;
    while ( !in_strNames.empty() && uFound != NONE ) {
        const std::string_view strName = takeName( in_strNames );
        const Element& parent = m_vecElements[uFound];
        if ( strName == ".." ) {
            uFound = parent.uParent;
            continue;
        }
        std::uint32_t uChild = parent.uFirstChild;
        while ( uChild < parent.uEndOfChildren && !isNamed( m_vecElements[uChild].pElement, strName ) )
            ++uChild;
        uFound = uChild < parent.uEndOfChildren ? uChild : NONE;
    }
    return uFound;
}

std::string ModelLocator::composePath( std::uint32_t in_uElement ) const {
    const Element& element = m_vecElements[in_uElement];
    if ( element.uParent == NONE || hasNamespace( element.pElement ) )
        return getElementPath( element.pElement );
    std::string strPath = composePath( element.uParent ) + "/" + getElementName( element.pElement );
    if ( element.uPosition != 0 )
        strPath.append( "[" ).append( std::to_string( element.uPosition ) ).append( "]" );
    return strPath;
}

} // namespace Velquin::Pstn
