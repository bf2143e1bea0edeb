#include "loading/ContentLog.h"

#include <charconv>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include <velquin/Finding.h>
#include <velquin/InputFile.h>

#include "RuleNames.h"

namespace Velquin::Pstn {

namespace {

/// Appends the line, with its number in front, right-aligned in six columns.
void appendNumberedLine( std::string& inout_strText, unsigned long long in_ullLine, std::string_view in_strLine ) {
    char szNumber[20];
    const auto [pEnd, eError] = std::to_chars( std::begin( szNumber ), std::end( szNumber ), in_ullLine );
    const auto uDigits = static_cast<std::size_t>( pEnd - szNumber );
    inout_strText.append( uDigits < 6 ? 6 - uDigits : 0, ' ' ).append( szNumber, uDigits );
    inout_strText.append( ": " ).append( in_strLine ).append( "\n" );
}

} // namespace

bool logContent( const char* in_szConfigFile, const Logger& in_logger ) {
    std::ifstream stream;
    if ( !openInputFile( in_szConfigFile, stream ).empty() ) {
        Finding finding;
        finding.eKind = Finding::Kind::UNREADABLE_FILE;
        finding.strRule = Rules::UNREADABLE_FILE;
        finding.strText = std::string( "failed to open PSTN configuration file: " ) + in_szConfigFile;
        reportFinding( in_logger, std::move( finding ), __FILE__, __LINE__ );
        return false;
    }
    if ( !in_logger.isEnabledFor( Logger::INFO_LEVEL ) )
        return true;
    std::string strText = std::string( "PSTN configuration: " ) + in_szConfigFile + "\n";
    char szLine[2048];
    // A longer line comes in pieces. Each piece has the number of the line.
    for ( unsigned long long ullLine = 1; stream.getline( szLine, sizeof( szLine ) ) || stream.gcount() > 0; ) {
        appendNumberedLine( strText, ullLine, szLine );
        if ( stream.fail() && !stream.eof() && !stream.bad() )
            stream.clear();
        else
            ++ullLine;
    }
    in_logger.log( Logger::INFO_LEVEL, strText, __FILE__, __LINE__ );
    return true;
}

} // namespace Velquin::Pstn
