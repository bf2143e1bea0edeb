#pragma once

#include <velquin/Export.h>

namespace Velquin::Media {

/// Format of a media stream.
class VELQUIN_CORE_EXPORT Format {
public:
    /// G.711 at 8,000 samples a second: mu-law and A-law (ITU-T G.711).
    enum Type { UNKNOWN = 0, PCMU = 1, PCMA = 2 };

    /// Makes this the format of that type.
    void initFrom( Type in_eType ) noexcept;
    /// UNKNOWN until initFrom.
    Type getType() const noexcept { return m_eType; }

    friend bool operator==( const Format&, const Format& ) noexcept = default;

private:
    Type m_eType = UNKNOWN;
};

} // namespace Velquin::Media
