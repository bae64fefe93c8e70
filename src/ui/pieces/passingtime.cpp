#include "passingtime.h"

#include "store.h"

#include <QQmlEngine>

#include <algorithm>

using namespace std::chrono_literals;

namespace vexal {

namespace {

// Changes that lie closer together are told together.
constexpr std::chrono::milliseconds shortest = 1s;
constexpr std::chrono::milliseconds longest = 1min;
// So that the timer, which has a clock of its own, never comes too early.
constexpr std::chrono::milliseconds late = 20ms;

QDateTime after(const QDateTime &moment, std::chrono::milliseconds by)
{
    return moment.addMSecs(by.count());
}

} // namespace

PassingTime::PassingTime(Clock clock, const Appearance &appearance, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
    , m_appearance(appearance)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &PassingTime::pass);
    connect(&appearance, &Appearance::seenChanged, this, &PassingTime::resume);
    connect(&appearance, &Appearance::restingChanged, this, &PassingTime::resume);
}

PassingTime *PassingTime::create(QQmlEngine *engine, QJSEngine *)
{
    const auto *store = engine->property("store").value<Store *>();
    Q_ASSERT_X(store, "PassingTime", "an engine shows screens before it was given a store");
    return new PassingTime(store->clock(), Appearance::of(*engine));
}

void PassingTime::told(const QDateTime &moment)
{
    if (const auto change = relativeTimeChange(moment, m_clock))
        expect(*change);
}

void PassingTime::expect(const QDateTime &moment)
{
    if (m_next && *m_next <= moment)
        return;
    m_next = moment;
    goOn();
}

// What changed while nobody looked is told as soon as somebody does.
void PassingTime::resume()
{
    if (m_next && flows() && *m_next <= m_clock.now())
        pass();
    else
        goOn();
}

bool PassingTime::flows() const
{
    return m_appearance.seen() && !m_appearance.resting();
}

void PassingTime::goOn()
{
    m_timer.stop();
    if (!m_next || !flows())
        return;
    const std::chrono::milliseconds wait(m_clock.now().msecsTo(*m_next));
    m_timer.start(std::clamp(wait + late, shortest, longest));
}

void PassingTime::pass()
{
    m_next.reset();
    Q_EMIT passed();
}

std::optional<QDateTime> relativeTimeChange(const QDateTime &moment, const Clock &clock)
{
    const QDateTime now = clock.now().toTimeZone(clock.zone);
    const QDateTime then = moment.toTimeZone(clock.zone);
    const std::chrono::milliseconds ago(then.msecsTo(now));
    const QDateTime midnight = now.date().addDays(1).startOfDay(clock.zone);
    if (ago < 50s)
        return after(then, 50s);
    if (ago < 1h)
        return after(then, std::chrono::floor<std::chrono::minutes>(ago) + 1min);
    if (then.date() == now.date())
        return std::min(after(then, std::chrono::floor<std::chrono::hours>(ago) + 1h), midnight);
    if (then.date() == now.date().addDays(-1))
        return midnight;
    return ago < 24h * 6 ? std::optional(after(then, 24h * 6)) : std::nullopt;
}

} // namespace vexal
