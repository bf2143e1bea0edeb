#pragma once

#include <velquin/LimitedObjPtr.h>
#include <velquin/Object.h>

#include "../PstnConfigClass.h"
#include "../PstnConfigExport.h"

namespace Velquin::Pstn {

class AnalogFxoConfig;
class AnalogFxsConfig;
class InterfaceConfig;
class IsdnCommonConfig;

/// Consecutive channels of one interface, including the first and the last, and their signalling: at most one of ISDN,
/// FXO and FXS. The references keep nothing alive. Their setters refuse null, with an assertion.
class VELQUIN_PSTN_CONFIG_EXPORT BChannelRangeConfig : public virtual Object {
    PSTN_CONFIG_CLASS( BChannelRangeConfig );

public:
    /// Timeslots of a span, or 1 for an analog port; 0 until set. The first may be greater than the last: nothing
    /// checks that here.
    unsigned int getFirstChannel() const noexcept { return m_uFirstChannel; }
    void setFirstChannel( unsigned int in_uFirstChannel ) noexcept { m_uFirstChannel = in_uFirstChannel; }
    unsigned int getLastChannel() const noexcept { return m_uLastChannel; }
    void setLastChannel( unsigned int in_uLastChannel ) noexcept { m_uLastChannel = in_uLastChannel; }

    /// The interface that has the channels; null until set.
    const LimitedObjPtr<const InterfaceConfig>& getInterfaceConfig() const noexcept { return m_pInterfaceConfig; }
    bool setInterfaceConfig( const LimitedObjPtr<const InterfaceConfig>& in_pInterfaceConfig );

    const LimitedObjPtr<const IsdnCommonConfig>& getIsdnCommonConfig() const noexcept { return m_pIsdnCommonConfig; }
    bool setIsdnCommonConfig( const LimitedObjPtr<const IsdnCommonConfig>& in_pIsdnCommonConfig );

    const LimitedObjPtr<const AnalogFxoConfig>& getFxoConfig() const noexcept { return m_pFxoConfig; }
    bool setFxoConfig( const LimitedObjPtr<const AnalogFxoConfig>& in_pFxoConfig );

    const LimitedObjPtr<const AnalogFxsConfig>& getFxsConfig() const noexcept { return m_pFxsConfig; }
    bool setFxsConfig( const LimitedObjPtr<const AnalogFxsConfig>& in_pFxsConfig );

private:
    unsigned int m_uFirstChannel = 0;
    unsigned int m_uLastChannel = 0;
    LimitedObjPtr<const InterfaceConfig> m_pInterfaceConfig;
    LimitedObjPtr<const IsdnCommonConfig> m_pIsdnCommonConfig;
    LimitedObjPtr<const AnalogFxoConfig> m_pFxoConfig;
    LimitedObjPtr<const AnalogFxsConfig> m_pFxsConfig;
};

} // namespace Velquin::Pstn
