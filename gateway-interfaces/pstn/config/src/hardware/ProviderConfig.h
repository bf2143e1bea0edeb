#pragma once

#include <string>

#include <velquin/Object.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

/// A family of telephony hardware drivers. Base of all providers.
class VELQUIN_PSTN_CONFIG_EXPORT ProviderConfig : public virtual Object {
    PSTN_CONFIG_CLASS( ProviderConfig );

public:
    /// The name under which the configuration keeps the provider.
    const char* getId() const noexcept { return m_strId.c_str(); }
    bool setId( const char* in_szId );

private:
    std::string m_strId;
};

} // namespace Velquin::Pstn
