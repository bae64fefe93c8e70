#pragma once

#include <QObject>

namespace vexal {

/// How the person wants every program to look. Where the desktop says nothing: light, and moving as usual.
struct Look
{
    bool dark = false;
    bool contrast = false;      ///< Lines and second-rank writing should be stronger.
    bool reducedMotion = false; ///< Nothing should travel or pulse.
    bool operator==(const Look &) const = default;
};

/// What the desktop says of the look, at any moment.
class DesktopLook : public QObject
{
    Q_OBJECT

public:
    /// The desktop has answered, or there is none to answer.
    virtual bool known() const = 0;
    virtual Look look() const = 0;

Q_SIGNALS:
    void becameKnown();
    /// The person has changed their mind.
    void changed();
};

} // namespace vexal
