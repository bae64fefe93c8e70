#pragma once

#include "networkpresence.h"

namespace vexal {

/// What NetworkManager says or, on a computer without it, whether any interface but the loopback is up with an address.
class SystemNetworkPresence : public NetworkPresence
{
public:
    SystemNetworkPresence();

    bool connected() const override;
};

} // namespace vexal
