#include "StandardInput.h"

#include <fstream>
#include <iostream>
#include <random>
#include <stdexcept>
#include <system_error>

#include "../Terminal.h"

namespace fs = std::filesystem;

StandardInput::StandardInput() {
    std::random_device random;
    do
        m_folder = fs::temp_directory_path() / ( "pstnconfig-" + std::to_string( random() ) );
    while ( !fs::create_directory( m_folder ) );
    try {
        fs::permissions( m_folder, fs::perms::owner_all );
        m_strPath = ( m_folder / "stdin.xml" ).string();
        std::ofstream file( m_strPath, std::ios::binary );
        setBinaryInput();
        char acPart[65536];
        while ( std::cin.read( acPart, sizeof( acPart ) ) || std::cin.gcount() > 0 )
            file.write( acPart, std::cin.gcount() );
        if ( std::cin.bad() )
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

StandardInput::~StandardInput() {
    std::error_code ignored;
    fs::remove_all( m_folder, ignored );
}
