#pragma once

#include "Excerpt.h"
#include "Report.h"

/// How findings look.
struct TextStyle {
    bool bSource = false; ///< whether to show the lines of the file
    bool bColour = false;
    unsigned int uWidth = 100; ///< columns for the lines of the file
};

/// Tells findings as compilers do: `file:line:column: error: what is wrong [rule]`, then the line of the file with a
/// mark, then the places that belong to it. A verdict ends each file, a summary several files.
class TextReport : public Report {
public:
    explicit TextReport( std::ostream& inout_stream, const TextStyle& in_style = {} )
        : m_stream( inout_stream ), m_style( in_style ) {}

    void add( const CheckedFile& in_file ) override;
    void finish( const CheckTotals& in_totals ) override;

private:
    void print( const Velquin::Finding& in_finding );
    void printPlace( const std::string& in_strFile, const Velquin::SourceSpan& in_span );
    void printSource( const Velquin::SourceSpan& in_span, SourceCursor& inout_cursor );
    const char* colour( const char* in_szCode ) const { return m_style.bColour ? in_szCode : ""; }

    std::ostream& m_stream;
    TextStyle m_style;
    const CheckedFile* m_pFile = nullptr; ///< while it is added
    SourceCursor m_cursor;                ///< of findings, which come in the order of the file
    SourceCursor m_relatedCursor;         ///< of what belongs to them
};
