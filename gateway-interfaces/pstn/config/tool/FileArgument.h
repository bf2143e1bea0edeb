#pragma once

#include <filesystem>
#include <string>

#include <velquin/Finding.h>

/// A file that the command line names. What stands in standard input becomes a file that only its owner can read, since
/// the library reads files; it lives as long as the object.
class FileArgument {
public:
    static constexpr const char* STANDARD_INPUT = "-";

    /// @param in_strArgument a path, or "-" for standard input
    /// @throws std::runtime_error when standard input can't be read, or its file can't be written
    explicit FileArgument( const std::string& in_strArgument );
    FileArgument( const FileArgument& ) = delete;
    FileArgument& operator=( const FileArgument& ) = delete;
    ~FileArgument();

    /// How messages name a file of the command line.
    static std::string nameOf( const std::string& in_strArgument ) {
        return in_strArgument == STANDARD_INPUT ? "<stdin>" : in_strArgument;
    }

    const std::string& getPath() const { return m_strPath; }
    const std::string& getName() const { return m_strName; }

    /// Lets a finding name the file so, too.
    void rename( Velquin::Finding& inout_finding ) const;

private:
    void keepInput();

    std::filesystem::path m_folder; ///< of standard input
    std::string m_strPath;
    std::string m_strName;
};
