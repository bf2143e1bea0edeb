#pragma once

namespace Velquin::Pstn {

/// The caller's place in the source, when current() is a default argument.
struct SourcePlace {
    const char* szFile;
    int nLine;
    const char* szOperation;

    static constexpr SourcePlace current( const char* in_szFile = __builtin_FILE(), int in_nLine = __builtin_LINE(),
                                          const char* in_szOperation = __builtin_FUNCTION() ) {
        return { in_szFile, in_nLine, in_szOperation };
    }
};

} // namespace Velquin::Pstn
