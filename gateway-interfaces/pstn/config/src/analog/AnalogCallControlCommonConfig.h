#pragma once

#include <string>

#include <velquin/Object.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

/// What FXO and FXS configurations have in common. Setters of text refuse null, with an assertion.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogCallControlCommonConfig : public virtual Object {
    PSTN_CONFIG_CLASS( AnalogCallControlCommonConfig );

public:
    /// The configuration's number, unique among the configurations of its kind; 0 until set.
    unsigned int getId() const noexcept { return m_uId; }
    void setId( unsigned int in_uId ) noexcept { m_uId = in_uId; }

    /// Name of the lines' tone set, any text; empty until set. Only the program sets it, never a configuration file.
    const char* getToneSetName() const noexcept { return m_strToneSetName.c_str(); }
    bool setToneSetName( const char* in_szToneSetName );

    /// Name for people, any text.
    const char* getDisplayName() const noexcept { return m_strDisplayName.c_str(); }
    bool setDisplayName( const char* in_szDisplayName );

private:
    unsigned int m_uId = 0;
    std::string m_strToneSetName;
    std::string m_strDisplayName;
};

} // namespace Velquin::Pstn
