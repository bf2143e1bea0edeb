#include "TextReport.h"

#include <algorithm>
#include <iomanip>

#include "../Printable.h"

using Velquin::Finding;
using Velquin::SourceSpan;

namespace {

constexpr const char* BOLD = "\x1b[1m";
constexpr const char* RED = "\x1b[1;31m";
constexpr const char* GREEN = "\x1b[1;32m";
constexpr const char* MAGENTA = "\x1b[1;35m";
constexpr const char* CYAN = "\x1b[1;36m";
constexpr const char* PLAIN = "\x1b[0m";

constexpr int NUMBER_WIDTH = 5;
constexpr unsigned int MARGIN = NUMBER_WIDTH + 3; ///< of a line of the file: its number, then " | "
constexpr unsigned int LEAST_WIDTH = 20;

struct VerdictText {
    const char* szText;
    const char* szColour;
};
constexpr VerdictText VERDICT_TEXTS[VERDICTS] = {
    { "valid", GREEN }, { "loads in part", RED }, { "invalid", RED }, { "not checked", RED } };

const char* getSeverityColour( const std::string& in_strSeverity ) {
    return in_strSeverity == "error" ? RED : in_strSeverity == "warning" ? MAGENTA : CYAN;
}

std::string count( unsigned int in_uCount, const char* in_szWhat ) {
    return std::to_string( in_uCount ) + " " + in_szWhat + ( in_uCount == 1 ? "" : "s" );
}

/// " (2 errors, 1 warning)"; empty when there is nothing to count.
std::string describe( const MistakeCounts& in_counts ) {
    std::string strText;
    const auto add = [&strText]( unsigned int in_uCount, const char* in_szWhat ) {
        if ( in_uCount > 0 )
            strText += ( strText.empty() ? " (" : ", " ) + count( in_uCount, in_szWhat );
    };
    add( in_counts.uErrors, "error" );
    add( in_counts.uWarnings, "warning" );
    add( in_counts.uNotes, "note" );
    return strText.empty() ? strText : strText + ")";
}

} // namespace

void TextReport::add( const CheckedFile& in_file ) {
    m_pFile = &in_file;
    m_cursor = m_relatedCursor = {};
    for ( const Finding& finding : in_file.vecFindings )
        print( finding );
    const VerdictText& verdict = VERDICT_TEXTS[static_cast<std::size_t>( in_file.eVerdict )];
    m_stream << colour( BOLD ) << printable( in_file.strFile ) << ": " << colour( verdict.szColour ) << verdict.szText
             << colour( PLAIN ) << describe( in_file.counts ) << '\n';
    m_pFile = nullptr;
}

void TextReport::finish( const CheckTotals& in_totals ) {
    if ( in_totals.getFiles() < 2 )
        return;
    m_stream << count( in_totals.getFiles(), "file" ) << ": ";
    const char* szSeparator = "";
    for ( std::size_t u = 0; u < VERDICTS; ++u ) {
        if ( in_totals.auFiles[u] == 0 )
            continue;
        m_stream << szSeparator << in_totals.auFiles[u] << ' ' << VERDICT_TEXTS[u].szText;
        szSeparator = ", ";
    }
    m_stream << describe( in_totals.counts ) << '\n';
}

void TextReport::print( const Finding& in_finding ) {
    const std::string strSeverity = getSeverityName( in_finding );
    printPlace( in_finding.strFile, getSpan( in_finding ) );
    m_stream << colour( getSeverityColour( strSeverity ) ) << strSeverity << ": " << colour( PLAIN ) << colour( BOLD )
             << printable( Velquin::describeFinding( in_finding ) ) << colour( PLAIN );
    if ( !in_finding.strRule.empty() || in_finding.bEcho )
        m_stream << " [" << in_finding.strRule << ( in_finding.strRule.empty() || !in_finding.bEcho ? "" : ", " )
                 << ( in_finding.bEcho ? "echo" : "" ) << ']';
    m_stream << '\n';

    // The mark stands under a wrong value, unless that is empty or on another line.
    const SourceSpan& value = in_finding.valueSpan;
    const bool bValue = in_finding.eKind == Finding::Kind::INVALID_VALUE && value.ullLine == in_finding.span.ullLine &&
                        value.ullEndColumn > value.ullColumn;
    if ( in_finding.strFile == m_pFile->strFile )
        printSource( bValue ? value : getSpan( in_finding ), m_cursor );
    for ( const Finding::Related& related : in_finding.vecRelated ) {
        printPlace( related.strFile, getSpan( related ) );
        m_stream << colour( CYAN ) << "note: " << colour( PLAIN ) << printable( related.strLabel ) << '\n';
        if ( related.strFile == m_pFile->strFile )
            printSource( getSpan( related ), m_relatedCursor );
    }
}

void TextReport::printPlace( const std::string& in_strFile, const SourceSpan& in_span ) {
    m_stream << colour( BOLD ) << printable( in_strFile.empty() ? m_pFile->strFile : in_strFile );
    if ( in_span.ullLine != 0 )
        m_stream << ':' << in_span.ullLine;
    if ( in_span.ullColumn != 0 )
        m_stream << ':' << in_span.ullColumn;
    m_stream << ": " << colour( PLAIN );
}

void TextReport::printSource( const SourceSpan& in_span, SourceCursor& inout_cursor ) {
    if ( !m_style.bSource || in_span.ullLine == 0 )
        return;
    inout_cursor.moveTo( *m_pFile, in_span.ullLine, std::max( in_span.ullColumn, 1ULL ) );
    if ( inout_cursor.getLine().empty() )
        return;
    const Excerpt excerpt( inout_cursor.getLine(), inout_cursor.getOffset(), in_span.ullEndColumn - in_span.ullColumn,
                           std::max( m_style.uWidth, MARGIN + LEAST_WIDTH ) - MARGIN );
    m_stream << std::setw( NUMBER_WIDTH ) << in_span.ullLine << " | " << excerpt.strLine << '\n';
    if ( in_span.ullColumn != 0 )
        m_stream << std::setw( NUMBER_WIDTH ) << ' ' << " | " << colour( GREEN ) << excerpt.strMark << colour( PLAIN )
                 << '\n';
}
