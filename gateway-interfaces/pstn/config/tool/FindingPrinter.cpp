#include "FindingPrinter.h"

using Velquin::Finding;
using Velquin::Logger;

namespace {

/// The message of the finding without its place.
std::string describe( const Finding& in_finding ) {
    switch ( in_finding.eKind ) {
    case Finding::Kind::MISSING_ATTRIBUTE:
        return "missing attribute \"" + in_finding.strAttribute + "\"";
    case Finding::Kind::MISSING_ELEMENT:
        return "missing element \"" + in_finding.strAttribute + "\"";
    case Finding::Kind::INVALID_VALUE:
        return "invalid value \"" + in_finding.strValue + "\" of attribute \"" + in_finding.strAttribute + "\"" +
               ( in_finding.strHint.empty() ? "" : ": " + in_finding.strHint );
    case Finding::Kind::OTHER:
    case Finding::Kind::UNREADABLE_FILE:
        break;
    }
    return in_finding.strMessage.empty() ? in_finding.strText : in_finding.strMessage;
}

/// The text on one line, without blanks at its end.
std::string toLine( std::string in_strText ) {
    Velquin::makePrintable( in_strText );
    in_strText.erase( in_strText.find_last_not_of( ' ' ) + 1 );
    return in_strText;
}

} // namespace

void FindingPrinter::print( const Finding& in_finding ) {
    const bool bError = in_finding.nLevel >= Logger::ERROR_LEVEL;
    ++( bError ? m_uErrors : m_uWarnings );
    m_bUnreadable = m_bUnreadable || in_finding.eKind == Finding::Kind::UNREADABLE_FILE;
    m_setFiles.insert( in_finding.strFile );

    m_stream << ( in_finding.strFile.empty() ? m_strFile : in_finding.strFile );
    if ( in_finding.ullLine != 0 )
        m_stream << ':' << in_finding.ullLine;
    m_stream << ( bError ? ": error: " : ": warning: " ) << toLine( describe( in_finding ) );
    if ( !in_finding.strElementPath.empty() )
        m_stream << " [" << in_finding.strElementPath << "]";
    m_stream << '\n';
}
