#pragma once

#include <string>

#include <velquin/TSHandle.h>

#include "../physical/AnalogInterfacePhysicalConfig.h"
#include "../reading/KeywordTable.h"
#include "InterfaceConfig.h"

namespace Velquin::Pstn {

/// An analog port.
class VELQUIN_PSTN_CONFIG_EXPORT AnalogInterfaceConfig : public InterfaceConfig {
    PSTN_CONFIG_CLASS( AnalogInterfaceConfig );

public:
    enum class MediaType {
        FXO = 1, ///< foreign exchange office: the gateway plays the telephone
        FXS = 2, ///< foreign exchange station: the gateway plays the exchange
    };

    /// How the port is driven; null until a physical configuration is applied.
    const TSHandle<AnalogInterfacePhysicalConfig>& getPhysicalConfig() const noexcept { return m_hPhysicalConfig; }
    /// Refuses null, with an assertion.
    bool setPhysicalConfig( TSHandle<AnalogInterfacePhysicalConfig> in_hPhysicalConfig );

    /// FXO until set.
    MediaType getMediaType() const noexcept { return m_eMediaType; }
    void setMediaType( MediaType in_eMediaType ) noexcept { m_eMediaType = in_eMediaType; }

    /// Number and name of the telephone on an FXS port, which identify the caller. Empty for an FXO port. The setters
    /// refuse null, with an assertion.
    const char* getPhoneNumber() const noexcept { return m_strPhoneNumber.c_str(); }
    bool setPhoneNumber( const char* in_szPhoneNumber );
    const char* getCallerName() const noexcept { return m_strCallerName.c_str(); }
    bool setCallerName( const char* in_szCallerName );

    const char* getUniqueId( bool in_bShort ) const override { return composeUniqueId( in_bShort, "ai" ); }

private:
    TSHandle<AnalogInterfacePhysicalConfig> m_hPhysicalConfig;
    MediaType m_eMediaType = MediaType::FXO;
    std::string m_strPhoneNumber;
    std::string m_strCallerName;
};

/// Whether the interface is an analog port.
inline bool isAnalog( const InterfaceConfig& in_interface ) noexcept {
    return dynamic_cast<const AnalogInterfaceConfig*>( &in_interface ) != nullptr;
}

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto ANALOG_MEDIA_TYPE = keywordTable<AnalogInterfaceConfig::MediaType>( {
    { "FXO", AnalogInterfaceConfig::MediaType::FXO },
    { "FXS", AnalogInterfaceConfig::MediaType::FXS },
} );

} // namespace Keywords

} // namespace Velquin::Pstn
