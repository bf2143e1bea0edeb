#pragma once

#include <velquin/TSHandle.h>

#include "../reading/KeywordTable.h"
#include "DChannelConfig.h"
#include "InterfacePhysicalConfig.h"

namespace Velquin::Pstn {

/// How E1 (ITU-T G.704, G.703) or T1 (ANSI T1.403) spans are driven. A T1 configuration keeps the defaults of the E1
/// fields; an E1 configuration keeps the default of the line build-out.
class VELQUIN_PSTN_CONFIG_EXPORT DigitalInterfacePhysicalConfig : public InterfacePhysicalConfig {
    PSTN_CONFIG_CLASS( DigitalInterfacePhysicalConfig );

public:
    enum class MediaType { E1 = 1, T1 = 2 };
    enum class FramingType { ESF = 1, ESF_Japan = 2, D4 = 3, CRC4 = 4, NonCRC4 = 5 };
    enum class LineEncodingType { AMI = 1, B8ZS = 2, HDB3 = 3 };
    /// TERMINAL takes the clock from the line, NETWORK gives it.
    enum class ClockingMode { TERMINAL = 1, NETWORK = 2 };
    enum class LoopbackMode { DISABLED = 1 };
    /// Line build-out: attenuation of a long line, or the length of a short one.
    enum class LBOMode {
        LBO_0dB = 1,
        LBO_minus7_5dB = 2,
        LBO_minus15dB = 3,
        LBO_minus22_5dB = 4,
        LBO_0_110feet = 5,
        LBO_110_220feet = 6,
        LBO_220_330feet = 7,
        LBO_330_440feet = 8,
        LBO_440_550feet = 9,
        LBO_550_660feet = 10,
    };
    enum class RxSensitivity { RX_12dB = 1, RX_18dB = 2, RX_30dB = 3, RX_36dB = 4, RX_43dB = 5 };
    enum class E1Signaling { NONE = 1, CAS = 2, CCS = 3 };
    enum class E1Termination { E1_75ohm = 1, E1_120ohm = 2 };

    /// E1 until set.
    MediaType getMediaType() const noexcept { return m_eMediaType; }
    void setMediaType( MediaType in_eMediaType ) noexcept { m_eMediaType = in_eMediaType; }

    /// CRC4 until set.
    FramingType getFraming() const noexcept { return m_eFraming; }
    void setFraming( FramingType in_eFraming ) noexcept { m_eFraming = in_eFraming; }

    /// HDB3 until set.
    LineEncodingType getLineEncoding() const noexcept { return m_eLineEncoding; }
    void setLineEncoding( LineEncodingType in_eLineEncoding ) noexcept { m_eLineEncoding = in_eLineEncoding; }

    /// TERMINAL until set.
    ClockingMode getClockingMode() const noexcept { return m_eClockingMode; }
    void setClockingMode( ClockingMode in_eClockingMode ) noexcept { m_eClockingMode = in_eClockingMode; }

    /// DISABLED until set.
    LoopbackMode getLoopbackMode() const noexcept { return m_eLoopbackMode; }
    void setLoopbackMode( LoopbackMode in_eLoopbackMode ) noexcept { m_eLoopbackMode = in_eLoopbackMode; }

    /// LBO_0dB until set.
    LBOMode getLBOMode() const noexcept { return m_eLBOMode; }
    void setLBOMode( LBOMode in_eLBOMode ) noexcept { m_eLBOMode = in_eLBOMode; }

    /// RX_12dB until set.
    RxSensitivity getRxSensitivity() const noexcept { return m_eRxSensitivity; }
    void setRxSensitivity( RxSensitivity in_eRxSensitivity ) noexcept { m_eRxSensitivity = in_eRxSensitivity; }

    /// Off until set.
    bool isHighImpedanceEnable() const noexcept { return m_bHighImpedance; }
    void enableHighImpedance( bool in_bEnable ) noexcept { m_bHighImpedance = in_bEnable; }

    /// NONE until set.
    E1Signaling getE1Signaling() const noexcept { return m_eE1Signaling; }
    void setE1Signaling( E1Signaling in_eE1Signaling ) noexcept { m_eE1Signaling = in_eE1Signaling; }

    /// E1_120ohm until set.
    E1Termination getE1Termination() const noexcept { return m_eE1Termination; }
    void setE1Termination( E1Termination in_eE1Termination ) noexcept { m_eE1Termination = in_eE1Termination; }

    /// Null when the span has none.
    const TSHandle<DChannelConfig>& getDChannelConfig() const noexcept { return m_hDChannelConfig; }
    /// Takes ownership. Refuses null, with an assertion.
    bool setDChannelConfig( DChannelConfig* in_pDChannelConfig );
    bool hasDChannel() const noexcept { return !m_hDChannelConfig.isNull(); }

private:
    MediaType m_eMediaType = MediaType::E1;
    FramingType m_eFraming = FramingType::CRC4;
    LineEncodingType m_eLineEncoding = LineEncodingType::HDB3;
    ClockingMode m_eClockingMode = ClockingMode::TERMINAL;
    LoopbackMode m_eLoopbackMode = LoopbackMode::DISABLED;
    LBOMode m_eLBOMode = LBOMode::LBO_0dB;
    RxSensitivity m_eRxSensitivity = RxSensitivity::RX_12dB;
    bool m_bHighImpedance = false;
    E1Signaling m_eE1Signaling = E1Signaling::NONE;
    E1Termination m_eE1Termination = E1Termination::E1_120ohm;
    TSHandle<DChannelConfig> m_hDChannelConfig;
};

/// The format's keywords for the enumerations above.
namespace Keywords {

inline constexpr auto FRAMING = keywordTable<DigitalInterfacePhysicalConfig::FramingType>( {
    { "ESF", DigitalInterfacePhysicalConfig::FramingType::ESF },
    { "ESF_Japan", DigitalInterfacePhysicalConfig::FramingType::ESF_Japan },
    { "D4", DigitalInterfacePhysicalConfig::FramingType::D4 },
    { "CRC4", DigitalInterfacePhysicalConfig::FramingType::CRC4 },
    { "NonCRC4", DigitalInterfacePhysicalConfig::FramingType::NonCRC4 },
} );
inline constexpr auto LINE_ENCODING = keywordTable<DigitalInterfacePhysicalConfig::LineEncodingType>( {
    { "AMI", DigitalInterfacePhysicalConfig::LineEncodingType::AMI },
    { "B8ZS", DigitalInterfacePhysicalConfig::LineEncodingType::B8ZS },
    { "HDB3", DigitalInterfacePhysicalConfig::LineEncodingType::HDB3 },
} );
inline constexpr auto DIGITAL_CLOCKING = keywordTable<DigitalInterfacePhysicalConfig::ClockingMode>( {
    { "TERMINAL", DigitalInterfacePhysicalConfig::ClockingMode::TERMINAL },
    { "NETWORK", DigitalInterfacePhysicalConfig::ClockingMode::NETWORK },
} );
inline constexpr auto LOOPBACK_MODE = keywordTable<DigitalInterfacePhysicalConfig::LoopbackMode>( {
    { "DISABLED", DigitalInterfacePhysicalConfig::LoopbackMode::DISABLED },
} );
inline constexpr auto RECEIVER_SENSITIVITY = keywordTable<DigitalInterfacePhysicalConfig::RxSensitivity>( {
    { "12dB", DigitalInterfacePhysicalConfig::RxSensitivity::RX_12dB },
    { "18dB", DigitalInterfacePhysicalConfig::RxSensitivity::RX_18dB },
    { "30dB", DigitalInterfacePhysicalConfig::RxSensitivity::RX_30dB },
    { "36dB", DigitalInterfacePhysicalConfig::RxSensitivity::RX_36dB },
    { "43dB", DigitalInterfacePhysicalConfig::RxSensitivity::RX_43dB },
} );
inline constexpr auto E1_SIGNALING = keywordTable<DigitalInterfacePhysicalConfig::E1Signaling>( {
    { "NONE", DigitalInterfacePhysicalConfig::E1Signaling::NONE },
    { "CAS", DigitalInterfacePhysicalConfig::E1Signaling::CAS },
    { "CCS", DigitalInterfacePhysicalConfig::E1Signaling::CCS },
} );
inline constexpr auto E1_TERMINATION = keywordTable<DigitalInterfacePhysicalConfig::E1Termination>( {
    { "75ohm", DigitalInterfacePhysicalConfig::E1Termination::E1_75ohm },
    { "120ohm", DigitalInterfacePhysicalConfig::E1Termination::E1_120ohm },
} );
inline constexpr auto LINE_BUILD_OUT = keywordTable<DigitalInterfacePhysicalConfig::LBOMode>( {
    { "0dB", DigitalInterfacePhysicalConfig::LBOMode::LBO_0dB },
    { "-7.5dB", DigitalInterfacePhysicalConfig::LBOMode::LBO_minus7_5dB },
    { "-15dB", DigitalInterfacePhysicalConfig::LBOMode::LBO_minus15dB },
    { "-22.5dB", DigitalInterfacePhysicalConfig::LBOMode::LBO_minus22_5dB },
    { "0-110feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_0_110feet },
    { "110-220feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_110_220feet },
    { "220-330feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_220_330feet },
    { "330-440feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_330_440feet },
    { "440-550feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_440_550feet },
    { "550-660feet", DigitalInterfacePhysicalConfig::LBOMode::LBO_550_660feet },
} );

} // namespace Keywords

} // namespace Velquin::Pstn
