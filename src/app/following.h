#pragma once

class QWindow;

namespace vexal {

class Appearance;
class DesktopLook;

/// Makes the window look as the desktop's people want it, now and from now on. The look outlives the appearance.
void followLook(Appearance &appearance, const DesktopLook &look);

/// Lets the appearance know whether the window can be seen. The window outlives the appearance.
void followWindow(Appearance &appearance, QWindow &window);

} // namespace vexal
