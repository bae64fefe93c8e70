#pragma once

#include "appearance.h"
#include "clock.h"

#include <QTimer>

#include <optional>

namespace vexal {

/// Tells those who speak of time when what they said may no longer hold. One timer for the whole window: it waits for
/// the first of the changes that were announced, a minute at most, so that a clock that was set or slept through is
/// noticed. It rests while the window is not seen, while time stands still, and while nobody spoke of time.
class PassingTime : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    PassingTime(Clock clock, const Appearance &appearance, QObject *parent = nullptr);

    /// The one of this engine; it goes by the clock of the engine's store.
    static PassingTime *create(QQmlEngine *engine, QJSEngine *);

    /// The screen says how long ago `moment` was, in the words of `relativeTime`.
    void told(const QDateTime &moment);
    /// What the screen says changes at `moment`.
    void expect(const QDateTime &moment);

    /// The timer runs.
    bool ticking() const { return m_timer.isActive(); }

Q_SIGNALS:
    /// What was said of time may be out of date: say it anew, and announce when it changes next.
    void passed();

private:
    bool flows() const;
    void resume();
    void goOn();
    void pass();

    Clock m_clock;
    const Appearance &m_appearance;
    QTimer m_timer;
    std::optional<QDateTime> m_next; ///< The first announced change.
};

/// When `relativeTime(moment)` will read otherwise than it does now; none when it never will.
std::optional<QDateTime> relativeTimeChange(const QDateTime &moment, const Clock &clock);

} // namespace vexal
