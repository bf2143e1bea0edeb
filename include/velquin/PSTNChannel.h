#pragma once

namespace Velquin {

/// A channel of the public switched telephone network.
class PSTNChannel {
public:
    /// Direction of the calls that a channel carries, seen from the gateway.
    enum Direction { IN = 0, OUT = 1, BIDIR = 2 };
};

} // namespace Velquin
