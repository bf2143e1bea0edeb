#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// The path that a text in UTF-8 names: all paths are in UTF-8, on every system.
/// @throws std::filesystem::filesystem_error on Windows, if the text is no UTF-8
inline std::filesystem::path toPath( std::string_view in_strUtf8 ) {
    return std::u8string( in_strUtf8.begin(), in_strUtf8.end() );
}

/// The path in UTF-8.
inline std::string toUtf8( const std::filesystem::path& in_path ) {
    const std::u8string strUtf8 = in_path.u8string();
    return { strUtf8.begin(), strUtf8.end() };
}
