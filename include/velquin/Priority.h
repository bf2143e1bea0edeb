#pragma once

#include <string>

#include <velquin/Export.h>

namespace Velquin {

/// Priority of a thread.
class VELQUIN_CORE_EXPORT Priority {
public:
    enum Code { LOWEST = 0, LOW = 1, NORMAL = 2, HIGH = 3, HIGHEST = 4 };

    /// NORMAL.
    Priority() noexcept = default;
    Priority( Code in_eCode ) noexcept : m_nCode( in_eCode ) {}
    /// The priority of that name (exact comparison, for instance "NORMAL"); invalid for an unknown name.
    explicit Priority( const std::string& in_strName ) noexcept;

    bool isValid() const noexcept { return m_nCode != INVALID; }
    /// The name; empty for an invalid priority.
    const char* getName() const noexcept;
    /// The code; -1 for an invalid priority.
    int getCode() const noexcept { return m_nCode; }

    /// The known names, from the lowest to the highest: "LOWEST, LOW, NORMAL, HIGH, HIGHEST".
    static std::string getSupportedPrioritiesDescription();

    friend bool operator==( const Priority&, const Priority& ) noexcept = default;

private:
    static constexpr int INVALID = -1;

    int m_nCode = NORMAL;
};

} // namespace Velquin
