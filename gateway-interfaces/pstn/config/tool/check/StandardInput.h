#pragma once

#include <filesystem>
#include <string>

/// What stands in standard input, as a file that only its owner can read: the library reads files. The file lives as
/// long as the object.
class StandardInput {
public:
    static constexpr const char* NAME = "<stdin>";

    /// @throws std::runtime_error when standard input can't be read, or the file can't be written
    StandardInput();
    StandardInput( const StandardInput& ) = delete;
    StandardInput& operator=( const StandardInput& ) = delete;
    ~StandardInput();

    const std::string& getPath() const { return m_strPath; }

private:
    std::filesystem::path m_folder;
    std::string m_strPath;
};
