#include <velquin/GlobalConfig.h>

#include <fstream>
#include <mutex>
#include <string>

#include <log4cplus/helpers/property.h>
#include <log4cplus/streams.h>

#include <velquin/Assertion.h>
#include <velquin/Finding.h>
#include <velquin/InputFile.h>

namespace Velquin {

namespace {

class GlobalConfigLog {
    VELQUIN_LOGGER();
};

VELQUIN_LOGGER_IMPL( GlobalConfigLog, "marovane.core.GlobalConfig" );

/// Whether a line can set a parameter. Properties would read the files that lines "include FILE" name: the same file
/// again and again, until the stack ends, if a file includes itself.
bool isSetting( const log4cplus::tstring& in_strLine ) {
    const std::size_t uBegin = in_strLine.find_first_not_of( LOG4CPLUS_TEXT( " \t" ) );
    return in_strLine.find( LOG4CPLUS_TEXT( '=' ) ) != log4cplus::tstring::npos &&
           in_strLine.compare( uBegin, 8, LOG4CPLUS_TEXT( "include " ) ) != 0;
}

bool refuseFile( const char* in_szPath, const std::string& in_strReason ) {
    Finding finding;
    finding.eKind = Finding::Kind::UNREADABLE_FILE;
    finding.strRule = "unreadable-file";
    finding.strFile = in_szPath;
    finding.strText = "Parameter file " + finding.strFile + " can't be read: " + in_strReason;
    reportFinding( GlobalConfigLog::getLogger(), std::move( finding ), __FILE__, __LINE__ );
    return false;
}

} // namespace

GlobalConfig& GlobalConfig::getInstance() {
    // Never destroyed: static objects may ask for parameters to the end.
    static GlobalConfig& s_instance = *new GlobalConfig();
    return s_instance;
}

bool GlobalConfig::getString( const char* in_szName, std::string& out_strValue ) const try {
    if ( !VELQUIN_ASSERT( in_szName ) )
        return false;
    const std::shared_lock lock( m_mutex );
    const auto it = m_mapValues.find( in_szName );
    if ( it == m_mapValues.end() )
        return false;
    out_strValue = it->second;
    return true;
}
VELQUIN_CATCH_AND_RETURN( GlobalConfigLog::getLogger(), false )

void GlobalConfig::setString( const char* in_szName, const char* in_szValue ) {
    if ( !VELQUIN_ASSERT( in_szName ) || !VELQUIN_ASSERT( in_szValue ) )
        return;
    std::string strName( in_szName );
    std::string strValue( in_szValue );
    const std::unique_lock lock( m_mutex );
    m_mapValues.insert_or_assign( std::move( strName ), std::move( strValue ) );
}

void GlobalConfig::remove( const char* in_szName ) {
    if ( !VELQUIN_ASSERT( in_szName ) )
        return;
    const std::unique_lock lock( m_mutex );
    if ( const auto it = m_mapValues.find( in_szName ); it != m_mapValues.end() )
        m_mapValues.erase( it );
}

bool GlobalConfig::loadFile( const char* in_szPath ) try {
    if ( !VELQUIN_ASSERT( in_szPath ) )
        return false;
    // Properties takes a file that can't be read for an empty one.
    std::ifstream file;
    if ( const std::string strWhy = openInputFile( in_szPath, file ); !strWhy.empty() )
        return refuseFile( in_szPath, strWhy );
    log4cplus::tostringstream settings;
    for ( std::string strBytes; std::getline( file, strBytes ); ) {
        const log4cplus::tstring& strLine = LOG4CPLUS_STRING_TO_TSTRING( strBytes );
        if ( isSetting( strLine ) )
            settings << strLine << LOG4CPLUS_TEXT( '\n' );
    }
    if ( file.bad() )
        return refuseFile( in_szPath, "reading failed" );
    log4cplus::tistringstream lines( settings.str() );
    const log4cplus::helpers::Properties properties( lines );

    decltype( m_mapValues ) mapValues;
    for ( const log4cplus::tstring& strName : properties.propertyNames() )
        mapValues.emplace( LOG4CPLUS_TSTRING_TO_STRING( strName ),
                           LOG4CPLUS_TSTRING_TO_STRING( properties.getProperty( strName ) ) );
    const std::unique_lock lock( m_mutex );
    mapValues.merge( m_mapValues );
    m_mapValues.swap( mapValues );
    return true;
}
VELQUIN_CATCH_AND_RETURN( GlobalConfigLog::getLogger(), false )

} // namespace Velquin
