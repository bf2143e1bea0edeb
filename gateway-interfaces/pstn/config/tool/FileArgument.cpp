#include "FileArgument.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <random>
#include <stdexcept>
#include <system_error>

#include "Terminal.h"
#include "Utf8Path.h"

namespace fs = std::filesystem;

FileArgument::FileArgument( const std::string& in_strArgument )
    : m_strPath( in_strArgument ), m_strName( nameOf( in_strArgument ) ) {
    if ( in_strArgument == STANDARD_INPUT )
        keepInput();
}

void FileArgument::keepInput() {
    std::random_device random;
    do
        m_folder = fs::temp_directory_path() / ( "pstnconfig-" + std::to_string( random() ) );
    while ( !fs::create_directory( m_folder ) );
    try {
        fs::permissions( m_folder, fs::perms::owner_all );
        const fs::path path = m_folder / "stdin.xml";
        m_strPath = toUtf8( path );
        std::ofstream file( path, std::ios::binary );
        setBinaryInput();
        char acPart[65536];
        while ( std::cin.read( acPart, sizeof( acPart ) ) || std::cin.gcount() > 0 )
            file.write( acPart, std::cin.gcount() );
        if ( std::cin.bad() || std::ferror( stdin ) != 0 ) // std::cin takes a failure for the end
            throw std::runtime_error( "can't read standard input" );
        file.close();
        if ( !file )
            throw std::runtime_error( "can't keep standard input in " + m_strPath );
    } catch ( ... ) {
        std::error_code ignored;
        fs::remove_all( m_folder, ignored );
        throw;
    }
}

FileArgument::~FileArgument() {
    if ( m_folder.empty() )
        return;
    std::error_code ignored;
    fs::remove_all( m_folder, ignored );
}

void FileArgument::rename( Velquin::Finding& inout_finding ) const {
    if ( m_strPath == m_strName )
        return;
    for ( std::string* const pText : { &inout_finding.strFile, &inout_finding.strMessage, &inout_finding.strText } ) {
        for ( std::size_t u = pText->find( m_strPath ); u != std::string::npos; u = pText->find( m_strPath, u ) )
            pText->replace( u, m_strPath.size(), m_strName );
    }
    for ( Velquin::Finding::Related& related : inout_finding.vecRelated ) {
        if ( related.strFile == m_strPath )
            related.strFile = m_strName;
    }
}
