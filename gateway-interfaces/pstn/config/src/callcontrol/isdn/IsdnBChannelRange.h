#pragma once

#include <velquin/TSHandle.h>

#include "callcontrol/CallControlConfig.h"
#include "reading/ElementReader.h"

namespace Velquin::Pstn {

/// A `BChannelRange` element of an ISDN group: channels, and the channel group that they join.
struct IsdnBChannelRange {
    /// The reader's words for faults of the element.
    struct Wording {
        const ReaderWording& channelGroup; ///< of `channelGroupID`
        const ReaderWording& firstChannel;
        const ReaderWording& lastChannel;
        const char* szFirstChannelName; ///< the name under which a bad `firstChannel` is reported
    };

    TSHandle<ChannelGroupConfig> hChannelGroup;
    unsigned int uFirstChannel = 0;
    unsigned int uLastChannel = 0;

    /// Reads the element; false after an ERROR line. Takes a first channel greater than the last, with a WARNING.
    bool read( const AttributeReader& in_reader, const CallControlConfig& in_callControlConfig,
               const Wording& in_wording, const Logger& in_logger );

    /// Adds the channels of the interface to the channel group, with the ISDN group as their signalling. False after an
    /// ERROR line, which the channel group itself logs when it refuses them.
    bool addTo( const IsdnCommonConfig& in_isdnCommonConfig, const InterfaceConfig& in_interfaceConfig,
                const Logger& in_logger ) const;
};

} // namespace Velquin::Pstn
