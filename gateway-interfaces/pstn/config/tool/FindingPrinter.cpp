#include "FindingPrinter.h"

using Velquin::Finding;
using Velquin::Logger;

void FindingPrinter::print( const Finding& in_finding ) {
    const bool bError = in_finding.nLevel >= Logger::ERROR_LEVEL;
    ++( bError ? m_uErrors : m_uWarnings );
    m_bUnreadable = m_bUnreadable || in_finding.eKind == Finding::Kind::UNREADABLE_FILE;
    m_setFiles.insert( in_finding.strFile );

    m_stream << ( in_finding.strFile.empty() ? m_strFile : in_finding.strFile );
    if ( in_finding.ullLine != 0 )
        m_stream << ':' << in_finding.ullLine;
    m_stream << ( bError ? ": error: " : ": warning: " ) << Velquin::describeFinding( in_finding );
    if ( !in_finding.strElementPath.empty() )
        m_stream << " [" << in_finding.strElementPath << "]";
    m_stream << '\n';
}
