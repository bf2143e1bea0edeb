#include "document/InputFile.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace Velquin::Pstn {

std::string openInputFile( const char* in_szPath, std::ifstream& out_stream, std::ios::openmode in_eMode ) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status( in_szPath, error );
    if ( std::filesystem::exists( status ) && !std::filesystem::is_regular_file( status ) )
        return "it is not a regular file";
    errno = 0;
    out_stream.open( in_szPath, in_eMode );
    return out_stream ? std::string() : std::generic_category().message( errno ? errno : ENOENT );
}

} // namespace Velquin::Pstn
