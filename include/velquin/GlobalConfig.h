#pragma once

#include <map>
#include <shared_mutex>
#include <string>

#include <velquin/ROConfiguration.h>

namespace Velquin {

/// The gateway's process-wide parameters. Any thread may call all operations.
class VELQUIN_CORE_EXPORT GlobalConfig : public ROConfiguration {
public:
    static GlobalConfig& getInstance();

    bool getString( const char* in_szName, std::string& out_strValue ) const override;
    /// Sets a parameter, and replaces its old value. Refuses a null name or value, with an assertion.
    /// @throws std::bad_alloc when memory ends; the parameter then keeps its old value
    void setString( const char* in_szName, const char* in_szValue );
    /// Removes a parameter.
    void remove( const char* in_szName );

    /// Sets the parameters in a file of `name=value` lines ('#' begins a comment line; blanks around name and value
    /// don't count; a line without '=' sets nothing). When the file can't be read, it sets no parameter, logs an ERROR
    /// on "marovane.core.GlobalConfig" and yields false.
    bool loadFile( const char* in_szPath );

private:
    GlobalConfig() = default;

    mutable std::shared_mutex m_mutex;
    std::map<std::string, std::string, std::less<>> m_mapValues;
};

} // namespace Velquin
