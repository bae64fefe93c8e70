#pragma once

#include "clock.h"

#include <chrono>
#include <memory>

namespace vexal {

/// A clock that a test moves by hand. Reads like the British do, unless told otherwise: 24 hours, day first.
class TestClock
{
public:
    explicit TestClock(const QDateTime &moment = QDateTime({2025, 11, 18}, {12, 0}, Qt::UTC),
                       const QTimeZone &zone = QTimeZone::utc(), const QLocale &locale = QLocale::c())
        : m_now(std::make_shared<QDateTime>(moment))
        , m_clock{[now = m_now] { return *now; }, zone, locale}
    {
    }

    /// The clock to hand over; moving this one moves it.
    const Clock &clock() const { return m_clock; }
    QDateTime now() const { return *m_now; }
    void moveOn(std::chrono::milliseconds by) { *m_now = m_now->addMSecs(by.count()); }

private:
    std::shared_ptr<QDateTime> m_now;
    Clock m_clock;
};

} // namespace vexal
