#include "pixels.h"

#include "difference.h"

#include <QThread>

#include <algorithm>

namespace vexal {

namespace {

qint64 area(QSize size)
{
    return qint64(size.width()) * size.height();
}

QImage scaledTo(const QImage &image, QSize level)
{
    return image.isNull() || image.size() == level
               ? image
               : image.scaled(level, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// The pixels of a picture at its own size: those that are known already, or decoded now.
QImage wholeOf(const Picture &picture, const QImage &known)
{
    return known.isNull() ? picture.decoded(picture.size()) : known;
}

} // namespace

QSize Source::size() const
{
    return other && area(other->size()) > area(picture.size()) ? other->size() : picture.size();
}

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

QSize Pixels::levelFor(const Source &source, QSize shown)
{
    const QSize own = source.size();
    return shown.width() >= own.width() || shown.height() >= own.height() ? own : shown.expandedTo({1, 1});
}

QSize Pixels::steppedLevelFor(const Source &source, QSize shown)
{
    const QSize least = shown.expandedTo({1, 1});
    QSize level = source.size();
    while (level.width() / 2 >= least.width() && level.height() / 2 >= least.height())
        level = {level.width() / 2, level.height() / 2};
    return level;
}

Pixels::Key Pixels::keyOf(const Source &source, QSize level)
{
    return {source.picture.id(), source.other ? source.other->id() : 0, level};
}

QImage Pixels::held(const Source &source, QSize level)
{
    const auto found = m_levels.find(keyOf(source, level));
    if (found == m_levels.end())
        return {};
    found->wanted = ++m_wanted;
    return found->image;
}

QImage Pixels::heldInstead(const Source &source)
{
    const Key wanted = keyOf(source, {});
    auto largest = m_levels.end();
    for (auto level = m_levels.begin(); level != m_levels.end(); ++level) {
        const bool same = level.key().picture == wanted.picture && level.key().other == wanted.other;
        if (same && (largest == m_levels.end() || area(level.key().size) > area(largest.key().size)))
            largest = level;
    }
    if (largest == m_levels.end())
        return {};
    largest->wanted = ++m_wanted;
    return largest->image;
}

void Pixels::load(const Source &source, QSize level, Urgency urgency, QObject *context, const Done &done)
{
    if (const QImage image = held(source, level); !image.isNull())
        return done(image);
    const Key key = keyOf(source, level);
    auto job = m_jobs.find(key);
    if (job == m_jobs.end()) {
        job = m_jobs.insert(key, Job{source, urgency, false, {}});
        m_queue.append(key);
    }
    job->urgency = std::max(job->urgency, urgency);
    job->waiters.append({context, done});
    startNext();
}

QImage Pixels::known(const Source &source) const
{
    return m_levels.value(keyOf(source, source.size())).image;
}

void Pixels::startNext()
{
    Key next;
    while (m_running < m_workers.maxThreadCount() && takeNext(next)) {
        ++m_running;
        Job &job = m_jobs[next];
        job.running = true;
        make(next, *job.source);
    }
}

void Pixels::make(const Key &key, const Source &source)
{
    const auto tell = [this, key](const QImage &image, const Key &wholeKey, const QImage &whole) {
        QMetaObject::invokeMethod(
            this, [this, key, image, wholeKey, whole] { finish(key, image, wholeKey, whole); }, Qt::QueuedConnection);
    };
    if (!source.other) {
        m_workers.start([key, picture = source.picture, tell] { tell(picture.decoded(key.size), key, {}); });
        return;
    }
    // What is known at full size already need not be made again.
    m_workers.start([=, whole = known(source), theirs = known(source.picture), ours = known(*source.other)] {
        const QImage full =
            whole.isNull() ? pageDifference(wholeOf(source.picture, theirs), wholeOf(*source.other, ours)) : whole;
        tell(scaledTo(full, key.size), keyOf(source, source.size()), full);
    });
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

void Pixels::finish(const Key &key, const QImage &image, const Key &wholeKey, const QImage &whole)
{
    --m_running;
    const Job job = m_jobs.take(key);
    if (!(wholeKey == key) && !whole.isNull() && !m_levels.contains(wholeKey))
        keep(wholeKey, whole);
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
