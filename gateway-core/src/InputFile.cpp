#include <velquin/InputFile.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#if defined( _WIN32 )
#include <windows.h>
#endif

namespace Velquin {

namespace {

namespace fs = std::filesystem;

constexpr const char* NO_REGULAR_FILE = "it is not a regular file";

#if defined( _WIN32 )
/// Whether the name means a device in every folder, with whatever ending. Only a program with a console can open CON.
bool isDeviceName( std::wstring in_strName ) {
    in_strName.resize( std::min( in_strName.find_first_of( L".:" ), in_strName.size() ) );
    in_strName.resize( in_strName.find_last_not_of( L' ' ) + 1 );
    for ( wchar_t& c : in_strName )
        c = c >= L'a' && c <= L'z' ? static_cast<wchar_t>( c - L'a' + L'A' ) : c;
    constexpr std::wstring_view NAMES[] = { L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$" };
    constexpr std::wstring_view NUMBERS = L"0123456789\u00B9\u00B2\u00B3";
    const bool bNumbered = in_strName.size() == 4 && NUMBERS.find( in_strName[3] ) != std::wstring_view::npos &&
                           ( in_strName.starts_with( L"COM" ) || in_strName.starts_with( L"LPT" ) );
    return bNumbered || std::count( std::begin( NAMES ), std::end( NAMES ), in_strName ) > 0;
}
#endif

/// Whether Windows opens something else than a file under this name; `status` doesn't know.
bool isDevice( [[maybe_unused]] const fs::path& in_path ) {
#if defined( _WIN32 )
    if ( isDeviceName( in_path.filename().wstring() ) )
        return true;
    const HANDLE hFile = CreateFileW( in_path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, 0, nullptr );
    if ( hFile == INVALID_HANDLE_VALUE )
        return false;
    // A raw disk is of the type of its files, but has none of their data.
    BY_HANDLE_FILE_INFORMATION information;
    const bool bFile = GetFileType( hFile ) == FILE_TYPE_DISK && GetFileInformationByHandle( hFile, &information );
    CloseHandle( hFile );
    return !bFile;
#else
    return false;
#endif
}

std::string open( const fs::path& in_path, std::ifstream& out_stream ) {
    std::error_code error;
    const fs::file_status status = fs::status( in_path, error );
    if ( ( fs::exists( status ) && !fs::is_regular_file( status ) ) || isDevice( in_path ) )
        return NO_REGULAR_FILE;
    errno = 0;
    out_stream.open( in_path, std::ios::in | std::ios::binary );
    return out_stream ? std::string() : std::generic_category().message( errno ? errno : ENOENT );
}

} // namespace

std::string openInputFile( const char* in_szPath, std::ifstream& out_stream ) {
    try {
        const std::string_view strPath( in_szPath );
        return open( std::u8string( strPath.begin(), strPath.end() ), out_stream );
    } catch ( const fs::filesystem_error& ) {
        return "its path is not in UTF-8";
    }
}

} // namespace Velquin
