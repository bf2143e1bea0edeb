#include "Excerpt.h"

#include <algorithm>
#include <deque>

#include "../Cell.h"

namespace {

constexpr const char* CUT = "…";

/// The characters on one side of a place, the nearest first, as far as there is room.
struct Side {
    std::deque<Cell> cells;
    unsigned int uWidth = 0;
    bool bCut = false;

    Side( std::string_view in_strText, unsigned int in_uRoom, bool in_bLeft ) {
        while ( !in_strText.empty() ) {
            const Cell cell = in_bLeft ? getLastCell( in_strText ) : getFirstCell( in_strText );
            bCut = uWidth + cell.uWidth > in_uRoom;
            if ( bCut )
                break;
            cells.push_back( cell );
            uWidth += cell.uWidth;
            in_bLeft ? in_strText.remove_suffix( cell.uBytes ) : in_strText.remove_prefix( cell.uBytes );
        }
    }

    /// Leaves out the farthest until they fit, with the sign of a cut.
    void cut( unsigned int in_uRoom ) {
        bCut = bCut || uWidth > in_uRoom;
        while ( bCut && uWidth + 1 > in_uRoom && !cells.empty() ) {
            uWidth -= cells.back().uWidth;
            cells.pop_back();
        }
    }
};

} // namespace

Excerpt::Excerpt( std::string_view in_strLine, std::size_t in_uOffset, unsigned long long in_ullCharacters,
                  unsigned int in_uWidth ) {
    Side right( in_strLine.substr( in_uOffset ), in_uWidth, false );
    Side left( in_strLine.substr( 0, in_uOffset ), in_uWidth, true );
    // A third of the width shows what stands before, or more, if less stands behind.
    left.cut( std::max( in_uWidth / 3, right.bCut ? 0 : in_uWidth - right.uWidth ) );
    const unsigned int uIndent = left.uWidth + ( left.bCut ? 1 : 0 );
    right.cut( in_uWidth - uIndent );

    strLine = left.bCut ? CUT : "";
    for ( auto it = left.cells.rbegin(); it != left.cells.rend(); ++it )
        strLine += it->strShown;
    unsigned int uMarked = 0;
    for ( const Cell& cell : right.cells ) {
        strLine += cell.strShown;
        if ( in_ullCharacters > 0 ) {
            uMarked += cell.uWidth;
            --in_ullCharacters;
        }
    }
    strLine += right.bCut ? CUT : "";
    strMark = std::string( uIndent, ' ' ) + '^' + std::string( std::max( uMarked, 1U ) - 1, '~' );
}

void SourceCursor::moveTo( const CheckedFile& in_file, unsigned long long in_ullLine,
                           unsigned long long in_ullColumn ) {
    if ( m_ullLine != in_ullLine )
        m_strLine = in_file.getLine ? in_file.getLine( in_ullLine ) : std::string_view();
    if ( m_ullLine != in_ullLine || in_ullColumn < m_ullColumn ) {
        m_ullLine = in_ullLine;
        m_ullColumn = 1;
        m_uOffset = 0;
    }
    while ( m_ullColumn < in_ullColumn && m_uOffset < m_strLine.size() ) {
        do
            ++m_uOffset;
        while ( m_uOffset < m_strLine.size() && isContinuation( m_strLine[m_uOffset] ) );
        ++m_ullColumn;
    }
}
