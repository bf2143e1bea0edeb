#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <velquin/Finding.h>

#include "../FileArgument.h"

/// "error", "warning" or "note".
const char* getSeverityName( const Velquin::Finding& in_finding );

/// Where a finding, or what belongs to it, stands.
/// @return the line alone when the column is unknown
template <class T>
Velquin::SourceSpan getSpan( const T& in_place ) {
    return in_place.span.ullLine != 0 ? in_place.span : Velquin::SourceSpan{ in_place.ullLine, 0, 0 };
}

/// Numbers of mistakes.
struct MistakeCounts {
    unsigned int uErrors = 0;
    unsigned int uWarnings = 0;
    unsigned int uNotes = 0;

    /// Counts a finding, unless it is an echo.
    void add( const Velquin::Finding& in_finding );
    void add( const MistakeCounts& in_other );
};

/// What the gateway would do with a file.
enum class Verdict {
    VALID,
    PARTIAL, ///< load it, and leave out what it can't read
    INVALID,
    UNCHECKED, ///< unknown: the file or the schema can't be read
};
inline constexpr std::size_t VERDICTS = 4;

/// What a check found in a file.
struct CheckedFile {
    /// The line of that number, empty if there is none. Views live as long as the object.
    using LineSource = std::function<std::string_view( unsigned long long )>;

    std::string strFile; ///< as the reports name it
    std::vector<Velquin::Finding> vecFindings;
    Verdict eVerdict = Verdict::VALID;
    MistakeCounts counts;
    LineSource getLine;

    void add( Velquin::Finding in_finding );
};

/// What all files have together.
struct CheckTotals {
    unsigned int auFiles[VERDICTS] = {};
    MistakeCounts counts;

    void add( const CheckedFile& in_file );
    unsigned int getFiles( Verdict in_eVerdict ) const { return auFiles[static_cast<std::size_t>( in_eVerdict )]; }
    unsigned int getFiles() const;
};

/// How to check.
struct CheckRequest {
    std::string strSchema;
    bool bLogContent = false;
    bool bEchoes = false;                ///< whether to report findings that follow from others, too
    std::set<std::string> setDisabled{}; ///< rules whose warnings and notes nobody wants
};

/// Checks a file. The verdict is that of XmlConfig::load.
CheckedFile checkFile( const FileArgument& in_input, const CheckRequest& in_request );
