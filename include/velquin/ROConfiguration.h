#pragma once

#include <string>

#include <velquin/Object.h>

namespace Velquin {

/// Read-only view of the gateway's parameters.
class VELQUIN_CORE_EXPORT ROConfiguration : public virtual Object {
public:
    /// Gets the value of a string parameter. When the parameter is absent, it leaves the value alone and yields false.
    virtual bool getString( const char* in_szName, std::string& out_strValue ) const = 0;
};

} // namespace Velquin
