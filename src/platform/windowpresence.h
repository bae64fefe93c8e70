#pragma once

namespace vexal {

/// Whether the person can be looking at the program.
class WindowPresence
{
public:
    virtual ~WindowPresence() = default;

    /// The program is the active one, and a window of it is on the screen.
    virtual bool seen() const = 0;
};

} // namespace vexal
