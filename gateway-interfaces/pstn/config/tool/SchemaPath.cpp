#include "SchemaPath.h"

#include <filesystem>
#include <system_error>

#include "Utf8Path.h"

#if defined( _WIN32 )
#include <windows.h>
#endif

namespace fs = std::filesystem;

namespace {

/// Path of the running program. Only the operating system knows it when the shell found the program in its search path.
fs::path getProgramPath( const char* in_szProgram ) {
#if defined( _WIN32 )
    wchar_t szPath[32768];
    const DWORD uLength = GetModuleFileNameW( nullptr, szPath, 32768 );
    return uLength > 0 ? fs::path( szPath ) : toPath( in_szProgram );
#else
    std::error_code error;
    const fs::path path = fs::read_symlink( "/proc/self/exe", error );
    return error ? fs::path( in_szProgram ) : path;
#endif
}

} // namespace

std::string getDefaultSchemaPath( const char* in_szProgram ) {
    const fs::path folder = getProgramPath( in_szProgram ).parent_path().parent_path();
    return toUtf8( ( folder / "share" / "velquin-pstn-config" / "pstnConfig.rng" ).lexically_normal() );
}
