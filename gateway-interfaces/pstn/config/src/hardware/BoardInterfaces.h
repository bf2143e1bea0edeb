#pragma once

#include <utility>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/UniqueObjPtr.h>

#include "SourcePlace.h"
#include "hardware/InterfaceKind.h"
#include "reading/ElementEntries.h"

namespace Velquin::Pstn {

class XmlConfig;

/// Texts of the assertions with which a board's reader refuses an interface.
struct InterfaceAssertions {
    const char* szNone; ///< when there is no interface; null to log nothing more
    const char* szOtherClass;
};

/// Reads the children of a board's element, whatever their names, and adds them to the board as its interfaces.
template <class TKind, class TInterfaceXmlSerializer>
bool readInterfaces( xmlNode* in_pBoardElement, XmlConfig& in_xmlConfig, typename TKind::Board& inout_board,
                     TInterfaceXmlSerializer& in_interfaceXmlSerializer, const InterfaceAssertions& in_assertions,
                     SourcePlace in_where = SourcePlace::current() ) {
    const auto fail = [&in_where]( const char* in_szAssertion ) {
        if ( in_szAssertion )
            Assertion( false, in_szAssertion, in_where.szFile, in_where.nLine );
        return false;
    };
    return readEntries( ChildElements( in_pBoardElement ), [&]( xmlNode* in_pChild ) {
        UniqueObjPtr<InterfaceConfig> pInterface(
            in_interfaceXmlSerializer.read( in_pChild, in_xmlConfig, inout_board ) );
        if ( pInterface.isNull() )
            return fail( in_assertions.szNone );
        auto pOfKind = dynamicOwnerCast<typename TKind::Interface>( std::move( pInterface ) );
        if ( pOfKind.isNull() )
            return fail( in_assertions.szOtherClass );
        return TKind::addInterface( inout_board, pOfKind.release() );
    } );
}

/// Writes the interfaces of a board, ascending by identifier, into the board's element.
/// @param in_szNone logged at DEBUG, with the board's identifier, when there are no interfaces
template <class TKind, class TInterfaceXmlSerializer>
bool writeInterfaces( xmlNode* in_pBoardElement, const typename TKind::Board& in_board,
                      TInterfaceXmlSerializer& in_interfaceXmlSerializer, const char* in_szNone,
                      const Logger& in_logger ) {
    typename TKind::Interfaces vecInterfaces;
    if ( !TKind::getInterfaces( in_board, vecInterfaces ) ) {
        VELQUIN_REPORT_ERROR( in_logger, "failed to retrieve interfaces configuration for board " << in_board.getId() );
        return false;
    }
    if ( vecInterfaces.empty() )
        VELQUIN_LOG_DEBUG( in_logger, in_szNone << in_board.getId() );
    for ( const auto& hIfCfg : vecInterfaces ) {
        if ( !VELQUIN_ASSERT( !hIfCfg.isNull() ) )
            return false;
        if ( !in_interfaceXmlSerializer.write( in_pBoardElement, *hIfCfg ) ) {
            VELQUIN_REPORT_ERROR( in_logger, "failed to serialize interface" );
            return false;
        }
    }
    return true;
}

} // namespace Velquin::Pstn
