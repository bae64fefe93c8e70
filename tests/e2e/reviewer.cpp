#include "reviewer.h"

#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr int patience = 60'000; ///< Milliseconds for a thing to be there and at rest.
constexpr int mostSteps = 150;   ///< More than there are stops for the keyboard in the window.

} // namespace

QRect Reviewer::restingPlace(const Thing &thing)
{
    QRect place;
    const auto rests = [&] {
        const auto there = thing();
        const QRect before = std::exchange(place, there ? there->place() : QRect());
        return there && place == before;
    };
    return QTest::qWaitFor(rests, patience) ? place : QRect();
}

bool Reviewer::clickOn(const Thing &thing, const QString &held) const
{
    const QRect place = restingPlace(thing);
    if (!place.isNull())
        click(place.center(), held);
    return !place.isNull();
}

bool Reviewer::clickOn(const QString &role, const QString &name, const QString &held) const
{
    return clickOn([&] { return m_vexal.find(role, name); }, held);
}

bool Reviewer::clickOnButton(const QString &name) const
{
    return clickOn(u"push button"_s, name);
}

/// A key takes a moment to arrive: whoever looked too early would go past what they seek.
bool Reviewer::step(const QString &key) const
{
    const auto before = m_vexal.focus();
    press({key});
    const auto hasMoved = [&] {
        const auto now = m_vexal.focus();
        return now && now != before;
    };
    return QTest::qWaitFor(hasMoved, patience);
}

bool Reviewer::tabTo(const QString &role, const QString &name, const QString &key) const
{
    QStringList way;
    for (int i = 0; i < mostSteps && step(key); ++i) {
        const auto there = m_vexal.focus();
        if (there && there->role() == role && there->name() == name)
            return true;
        way.append(there ? there->role() + u" “"_s + there->name() + u'”' : u"nowhere"_s);
    }
    qWarning("The %s key never came to the %s “%s”, but to: %s", qPrintable(key), qPrintable(role), qPrintable(name),
             qPrintable(way.join(u", ")));
    return false;
}

} // namespace vexal
