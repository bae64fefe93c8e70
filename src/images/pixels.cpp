#include "pixels.h"

#include <QThread>

#include <algorithm>

namespace vexal {

Pixels::Pixels(qint64 bytes, QObject *parent)
    : QObject(parent)
    , m_budget(bytes)
{
    m_workers.setMaxThreadCount(std::clamp(QThread::idealThreadCount(), 2, 4));
}

Pixels::~Pixels()
{
    m_workers.waitForDone();
}

QSize Pixels::levelFor(const Picture &picture, QSize shown)
{
    const QSize own = picture.size();
    return shown.width() >= own.width() || shown.height() >= own.height() ? own : shown.expandedTo({1, 1});
}

QImage Pixels::held(const Picture &picture, QSize level)
{
    const auto found = m_levels.find({picture.id(), level});
    if (found == m_levels.end())
        return {};
    found->wanted = ++m_wanted;
    return found->image;
}

void Pixels::load(const Picture &picture, QSize level, Urgency urgency, QObject *context, const Done &done)
{
    if (const QImage image = held(picture, level); !image.isNull())
        return done(image);
    const Key key{picture.id(), level};
    auto job = m_jobs.find(key);
    if (job == m_jobs.end()) {
        job = m_jobs.insert(key, Job{picture, urgency, false, {}});
        m_queue.append(key);
    }
    job->urgency = std::max(job->urgency, urgency);
    job->waiters.append({context, done});
    startNext();
}

void Pixels::startNext()
{
    Key next;
    while (m_running < m_workers.maxThreadCount() && takeNext(next)) {
        ++m_running;
        Job &job = m_jobs[next];
        job.running = true;
        m_workers.start([this, next, picture = *job.picture] {
            const QImage image = picture.decoded(next.size);
            QMetaObject::invokeMethod(
                this, [this, next, image] { finish(next, image); }, Qt::QueuedConnection);
        });
    }
}

// Takes the most urgent job off the queue; jobs whose askers have all gone are dropped on the way.
bool Pixels::takeNext(Key &next)
{
    m_queue.removeIf([this](const Key &key) {
        const auto &waiters = m_jobs[key].waiters;
        const bool forgotten =
            std::none_of(waiters.cbegin(), waiters.cend(), [](const Waiter &waiter) { return waiter.context; });
        if (forgotten)
            m_jobs.remove(key);
        return forgotten;
    });
    const auto urgent = std::max_element(m_queue.cbegin(), m_queue.cend(), [this](const Key &a, const Key &b) {
        return m_jobs[a].urgency < m_jobs[b].urgency;
    });
    if (urgent == m_queue.cend())
        return false;
    next = *urgent;
    m_queue.erase(urgent);
    return true;
}

void Pixels::finish(const Key &key, const QImage &image)
{
    --m_running;
    const Job job = m_jobs.take(key);
    if (!image.isNull())
        keep(key, image);
    startNext();
    for (const Waiter &waiter : job.waiters) {
        if (waiter.context)
            waiter.done(image);
    }
}

void Pixels::keep(const Key &key, const QImage &image)
{
    giveUp(m_bytes + image.sizeInBytes() - m_budget);
    m_bytes += image.sizeInBytes();
    m_levels.insert(key, {image, ++m_wanted});
}

// Gives up at least so many bytes of levels that nobody shows, those first that were not wanted for longest.
void Pixels::giveUp(qint64 bytes)
{
    while (bytes > 0) {
        auto oldest = m_levels.end();
        for (auto level = m_levels.begin(); level != m_levels.end(); ++level) {
            const bool shown = !level->image.isDetached();
            if (!shown && (oldest == m_levels.end() || level->wanted < oldest->wanted))
                oldest = level;
        }
        if (oldest == m_levels.end())
            return;
        bytes -= oldest->image.sizeInBytes();
        m_bytes -= oldest->image.sizeInBytes();
        m_levels.erase(oldest);
    }
}

} // namespace vexal
