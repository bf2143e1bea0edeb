#pragma once

#include <map>
#include <shared_mutex>
#include <string>

#include <velquin/ROConfiguration.h>

namespace Velquin {

/// The gateway's process-wide parameters. All operations may be called from any thread.
class VELQUIN_CORE_EXPORT GlobalConfig : public ROConfiguration {
public:
    static GlobalConfig& getInstance();

    bool getString( const char* in_szName, std::string& out_strValue ) const override;
    /// Sets a parameter, replacing the value that it may have. Refuses a null name or value, with an assertion.
    /// @throws std::bad_alloc when memory ends; the parameter is then as it was
    void setString( const char* in_szName, const char* in_szValue );
    /// Forgets a parameter.
    void remove( const char* in_szName );

    /// Sets the parameters that a file of `name=value` lines holds ('#' begins a comment line; blanks around name and
    /// value don't count). Yields false, with an ERROR line on "marovane.core.GlobalConfig", when the file can't be
    /// read; no parameter is set then.
    bool loadFile( const char* in_szPath );

private:
    GlobalConfig() = default;

    mutable std::shared_mutex m_mutex;
    std::map<std::string, std::string, std::less<>> m_mapValues;
};

} // namespace Velquin
