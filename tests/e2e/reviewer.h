#pragma once

#include "hand.h"
#include "vexalprocess.h"

namespace vexal {

/// Somebody who sits before the client's window: they read what it shows, and act on it by mouse and keyboard alone.
class Reviewer : public Hand
{
public:
    /// What they look for in the window, as it is there now.
    using Thing = std::function<std::optional<Accessible>()>;

    Reviewer(const Desk &desk, const VexalProcess &vexal)
        : Hand(desk)
        , m_vexal(vexal)
    {
    }

    /// Where it is once it is there and moves no more; nowhere when it never is.
    static QRect restingPlace(const Thing &thing);

    /// Clicks on it with the mouse, with a key held down if need be. False when it is never there.
    bool clickOn(const Thing &thing, const QString &held = {}) const;
    bool clickOn(const QString &role, const QString &name, const QString &held = {}) const;
    bool clickOnButton(const QString &name) const;

    /// Goes there with the Tab key alone, or another that leads from one thing to the next. False when that leads
    /// there never.
    bool tabTo(const QString &role, const QString &name, const QString &key = QStringLiteral("Tab")) const;

private:
    bool step(const QString &key) const;

    const VexalProcess &m_vexal;
};

} // namespace vexal
