#pragma once

#include <string>

#include <velquin/Object.h>

namespace Velquin {

/// Read-only view of the gateway's parameters.
class VELQUIN_CORE_EXPORT ROConfiguration : public virtual Object {
public:
    /// The value of a string parameter. Yields false, and leaves the value alone, when the parameter is absent.
    virtual bool getString( const char* in_szName, std::string& out_strValue ) const = 0;
};

} // namespace Velquin
