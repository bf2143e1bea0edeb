#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace Velquin::Pstn::Fuzz {

/// A file in a directory of its own. The object removes both at its end. A load takes file names, not bytes.
class TemporaryFile {
public:
    explicit TemporaryFile( const char* in_szName );
    TemporaryFile( const TemporaryFile& ) = delete;
    TemporaryFile& operator=( const TemporaryFile& ) = delete;
    ~TemporaryFile();

    const char* getPath() const noexcept { return m_strPath.c_str(); }
    /// Replaces the content.
    void write( std::string_view in_strContent ) const;
    void write( const std::uint8_t* in_pData, std::size_t in_uSize ) const {
        write( { reinterpret_cast<const char*>( in_pData ), in_uSize } );
    }

private:
    std::filesystem::path m_directory;
    std::string m_strPath;
};

} // namespace Velquin::Pstn::Fuzz
