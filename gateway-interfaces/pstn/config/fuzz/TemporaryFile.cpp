#include "TemporaryFile.h"

#include <fstream>
#include <random>
#include <system_error>

#include "FuzzTarget.h"

namespace Velquin::Pstn::Fuzz {

TemporaryFile::TemporaryFile( const char* in_szName ) {
    // Fuzzers run side by side.
    std::random_device random;
    do
        m_directory = std::filesystem::temp_directory_path() / ( "pstn-fuzz-" + std::to_string( random() ) );
    while ( !std::filesystem::create_directory( m_directory ) );
    m_strPath = ( m_directory / in_szName ).string();
}

TemporaryFile::~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove_all( m_directory, ignored );
}

void TemporaryFile::write( std::string_view in_strContent ) const {
    std::ofstream stream( m_strPath, std::ios::binary );
    stream.write( in_strContent.data(), static_cast<std::streamsize>( in_strContent.size() ) );
    stream.close();
    require( !stream.fail(), "the input can be written to a file" );
}

} // namespace Velquin::Pstn::Fuzz
