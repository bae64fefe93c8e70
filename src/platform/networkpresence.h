#pragma once

namespace vexal {

/// Whether this computer is on any network at all.
class NetworkPresence
{
public:
    virtual ~NetworkPresence() = default;

    /// At this moment; cheap enough to ask after every failed request.
    virtual bool connected() const = 0;
};

} // namespace vexal
