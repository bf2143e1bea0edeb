#pragma once

#include <velquin/Assertion.h>
#include <velquin/Finding.h>

#include "hardware/InterfaceKind.h"
#include "reading/XmlNodeFwd.h"

namespace Velquin::Pstn {

/// Writes the interfaces of a board, ascending by identifier, under the board's element.
/// @param in_szNone what is logged at DEBUG, with the board's identifier, when there are none
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
