#pragma once

namespace vexal {

/// The number on the program's icon in the desktop's launcher.
class LauncherBadge
{
public:
    virtual ~LauncherBadge() = default;

    /// Shows the count, or no badge for 0.
    virtual void show(int count) = 0;
};

} // namespace vexal
