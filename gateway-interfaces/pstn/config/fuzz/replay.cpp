// Runs a target on kept inputs: replay FILE|DIRECTORY...
// Exit code 0: all inputs ran; 2: a file or directory is missing, or a directory is empty. A fault prints the name of
// its input and aborts.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "FuzzTarget.h"

namespace fs = std::filesystem;

namespace {

void run( const fs::path& in_file ) {
    std::cout << in_file.string() << std::endl;
    std::ifstream stream( in_file, std::ios::binary );
    stream.exceptions( std::ios::badbit | std::ios::failbit );
    const std::string strInput{ std::istreambuf_iterator<char>( stream ), {} };
    LLVMFuzzerTestOneInput( reinterpret_cast<const std::uint8_t*>( strInput.data() ), strInput.size() );
}

} // namespace

int main( int argc, char** argv ) try {
    std::vector<fs::path> vecFiles;
    for ( const fs::path argument : std::vector<std::string>( argv + 1, argv + argc ) ) {
        if ( !fs::is_directory( argument ) ) {
            vecFiles.push_back( argument );
            continue;
        }
        const std::size_t uBefore = vecFiles.size();
        std::copy( fs::directory_iterator( argument ), fs::directory_iterator(), std::back_inserter( vecFiles ) );
        if ( vecFiles.size() == uBefore ) {
            std::cerr << "no input in " << argument.string() << '\n';
            return 2;
        }
    }
    if ( vecFiles.empty() ) {
        std::cerr << "usage: replay FILE|DIRECTORY...\n";
        return 2;
    }
    std::sort( vecFiles.begin(), vecFiles.end() );
    for ( const fs::path& file : vecFiles )
        run( file );
    return 0;
} catch ( const std::exception& exception ) {
    std::cerr << exception.what() << '\n';
    return 2;
}
