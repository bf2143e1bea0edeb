#pragma once

#include <velquin/TSHandle.h>

#include "callcontrol/CallControlConfig.h"
#include "reading/ElementReader.h"

namespace Velquin::Pstn {

/// A `BChannelRange` element of an ISDN group: channels, and the channel group to which they go.
struct IsdnBChannelRange {
    /// The words in which a reader tells what is wrong with the element.
    struct Wording {
        const ReaderWording& channelGroup; ///< of `channelGroupID`
        const ReaderWording& firstChannel;
        const ReaderWording& lastChannel;
        const char* szFirstChannelName; ///< as which a bad `firstChannel` is reported
    };

    TSHandle<ChannelGroupConfig> hChannelGroup;
    unsigned int uFirstChannel = 0;
    unsigned int uLastChannel = 0;

    /// Reads the element; false after an ERROR line. A first channel beyond the last is taken, with a WARNING.
    bool read( const AttributeReader& in_reader, const CallControlConfig& in_callControlConfig,
               const Wording& in_wording, const Logger& in_logger );

    /// Adds the channels of the interface, governed by the ISDN group, to the channel group; false after an ERROR line,
    /// which is the channel group's own when that refuses them.
    bool addTo( const IsdnCommonConfig& in_isdnCommonConfig, const InterfaceConfig& in_interfaceConfig,
                const Logger& in_logger ) const;
};

} // namespace Velquin::Pstn
