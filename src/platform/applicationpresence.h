#pragma once

#include "windowpresence.h"

namespace vexal {

/// The presence of this program's own windows: active, exposed and not minimised.
class ApplicationPresence : public WindowPresence
{
public:
    bool seen() const override;
};

} // namespace vexal
