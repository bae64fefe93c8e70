#pragma once

#include "desk.h"

#include <QPoint>
#include <QStringList>

namespace vexal {

/// A person's hand on a desk's mouse and keyboard: what it does reaches whatever lies under the pointer and has the
/// keyboard, as it would on anybody's screen.
class Hand
{
public:
    explicit Hand(const Desk &desk)
        : m_desk(desk)
    {
    }

    /// Clicks with the left button, with a key held down if need be.
    void click(QPoint place, const QString &held = {}) const;
    void pointAt(QPoint place) const;
    /// Turns the wheel away from the person by so many notches, with a key held down.
    void turnWheel(int notches, const QString &held) const;
    /// Presses keys one after the other: "Tab", "ctrl+n".
    void press(const QStringList &keys) const;
    void write(const QString &text) const;

private:
    void does(const QStringList &arguments) const;

    const Desk &m_desk;
};

} // namespace vexal
