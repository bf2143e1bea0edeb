#pragma once

#include <string>
#include <string_view>

#include "CheckedFile.h"

/// A line of a file as a terminal shows it, cut to a width, and the line below that marks a piece of it.
struct Excerpt {
    std::string strLine;
    std::string strMark; ///< blanks, then ^~~~

    /// @param in_strLine UTF-8
    /// @param in_uOffset, in_ullCharacters where the piece begins, in bytes, and its length; nothing counts as one
    /// @param in_uWidth columns, 10 or more
    Excerpt( std::string_view in_strLine, std::size_t in_uOffset, unsigned long long in_ullCharacters,
             unsigned int in_uWidth );
};

/// A place in a file. A line may be as long as the file: on the same line, the cursor goes on from where it is.
class SourceCursor {
public:
    /// Moves to a column of a line, or to the line's end. Both count from 1.
    void moveTo( const CheckedFile& in_file, unsigned long long in_ullLine, unsigned long long in_ullColumn );

    /// The line; empty if there is none.
    std::string_view getLine() const { return m_strLine; }
    /// Bytes before the column.
    std::size_t getOffset() const { return m_uOffset; }

private:
    unsigned long long m_ullLine = 0;
    unsigned long long m_ullColumn = 1;
    std::string_view m_strLine;
    std::size_t m_uOffset = 0;
};
