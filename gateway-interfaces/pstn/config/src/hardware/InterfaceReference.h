#pragma once

#include <string>
#include <utility>

#include <velquin/Finding.h>

#include "hardware/InterfaceKind.h"
#include "reading/ElementReader.h"

namespace Velquin::Pstn {

/// An element that names a board in `boardID`, and one of its interfaces in `interfaceID`; without `interfaceID` it
/// names all interfaces. The two attributes are read one by one, since some readers read others in between. Faults are
/// reported in the reader's words.
template <class TKind>
class InterfaceReference {
public:
    InterfaceReference( const AttributeReader& in_reader, const Logger& in_logger, const NumberRule& in_rule ) noexcept
        : m_reader( in_reader ), m_logger( in_logger ), m_rule( in_rule ) {}

    /// Finds the board among those of the model.
    bool readBoard( const Config& in_config ) {
        AttributeText text;
        unsigned int uBoardId = 0;
        if ( !m_reader.requireText( "boardID", text ) || !m_reader.take( text, "boardID", m_rule, uBoardId ) )
            return false;
        m_hBoard = TKind::getBoard( in_config, uBoardId );
        if ( m_hBoard.isNull() )
            m_reader.reportInvalid( "boardID", text.view(), "Make sure to provide a valid board ID",
                                    Rules::UNKNOWN_BOARD );
        return !m_hBoard.isNull();
    }

    bool findInterfaceId() { return m_reader.findText( "interfaceID", m_interfaceId ); }

    /// Finds the named interface on the board. Call it only after findInterfaceId() was true.
    /// @param in_bNameBoard whether the log line about an unknown interface ends with the board's identifier
    bool readInterface( bool in_bNameBoard = true ) {
        unsigned int uInterfaceId = 0;
        if ( !m_reader.take( m_interfaceId, "interfaceID", m_rule, uInterfaceId ) )
            return false;
        auto hInterface = TKind::getInterface( *m_hBoard, uInterfaceId );
        if ( hInterface.isNull() ) {
            std::string strHint = "Make sure to provide a valid interface ID whithin the context of boardID=";
            if ( in_bNameBoard )
                strHint += std::to_string( m_hBoard->getId() );
            m_reader.reportInvalid(
                { "interfaceID", nullptr, m_interfaceId.view(), Rules::UNKNOWN_INTERFACE,
                  "there is no interface on board " + std::to_string( m_hBoard->getId() ) + " with this ID" },
                strHint );
            return false;
        }
        m_vecInterfaces.push_back( std::move( hInterface ) );
        return true;
    }

    /// Takes all interfaces of the board, ascending by identifier.
    /// @param in_szKind the word for the interfaces in the message when that fails
    bool takeAllInterfaces( const char* in_szKind ) {
        if ( TKind::getInterfaces( *m_hBoard, m_vecInterfaces ) )
            return true;
        VELQUIN_REPORT_ERROR( m_logger,
                              "failed to retrieve " << in_szKind << " interfaces of board ID=" << m_hBoard->getId() );
        return false;
    }

    const TSHandle<typename TKind::Board>& getBoard() const noexcept { return m_hBoard; }
    const typename TKind::Interfaces& getInterfaces() const noexcept { return m_vecInterfaces; }
    typename TKind::Interfaces releaseInterfaces() noexcept { return std::move( m_vecInterfaces ); }

private:
    AttributeReader m_reader;
    const Logger& m_logger;
    const NumberRule& m_rule;
    TSHandle<typename TKind::Board> m_hBoard;
    AttributeText m_interfaceId;
    typename TKind::Interfaces m_vecInterfaces;
};

} // namespace Velquin::Pstn
