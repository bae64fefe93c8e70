#include "pixels.h"

#include "difference.h"

#include <QThread>

#include <algorithm>
#include <bit>
#include <future>
#include <utility>

namespace vexal {

namespace {

qint64 area(QSize size)
{
    return qint64(size.width()) * size.height();
}

// What is largest on the screen goes first.
int rank(QSize level)
{
    return int(std::bit_width(quint64(area(level))));
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

// The difference of two pages, of which some pixels may be known. Both are decoded at once.
QImage differenceOf(const Source &source, const QImage &theirs, const QImage &ours)
{
    auto other = std::async(std::launch::async, wholeOf, *source.other, ours);
    return pageDifference(wholeOf(source.picture, theirs), other.get());
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
    m_aheadWorker.setMaxThreadCount(1);
}

Pixels::~Pixels()
{
    for (QThreadPool *workers : {&m_workers, &m_aheadWorker}) {
        workers->clear();
        workers->waitForDone();
    }
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
    callOff();
    const Key key = keyOf(source, level);
    auto job = m_jobs.find(key);
    const bool isNew = job == m_jobs.end();
    if (isNew)
        job = m_jobs.insert(key, Job{source, urgency, std::make_shared<std::atomic_bool>(true), {}});
    job->waiters.append({context, done});
    const bool isMoreUrgent = job->urgency < urgency;
    job->urgency = std::max(job->urgency, urgency);
    // One that has become more urgent may have been handed over before; the first worker to come takes it.
    if (urgency == Urgency::Shown && (isNew || isMoreUrgent))
        handOver(key, *job);
    if (urgency == Urgency::Ahead && isNew)
        m_later.append(key);
    // What is looked at may be asked for only after it, in the same turn.
    QMetaObject::invokeMethod(this, &Pixels::beginAhead, Qt::QueuedConnection);
}

void Pixels::handOver(const Key &key, const Job &job)
{
    const auto begin = [open = job.open, work = work(key, *job.source)] {
        if (open->exchange(false))
            work();
    };
    QThreadPool &workers = job.urgency == Urgency::Shown ? m_workers : m_aheadWorker;
    workers.start(begin, rank(key.size));
}

void Pixels::beginAhead()
{
    if (isBusy())
        return;
    for (const Key &key : std::exchange(m_later, {})) {
        if (const auto job = m_jobs.constFind(key); job != m_jobs.cend() && job->urgency == Urgency::Ahead)
            handOver(key, *job);
    }
}

// Takes jobs back whose askers have all gone, unless they are under way.
void Pixels::callOff()
{
    m_jobs.removeIf([](QHash<Key, Job>::iterator job) {
        const auto &waiters = job->waiters;
        const bool forgotten =
            std::none_of(waiters.cbegin(), waiters.cend(), [](const Waiter &waiter) { return waiter.context; });
        return forgotten && job->open->exchange(false);
    });
}

QImage Pixels::known(const Source &source) const
{
    return m_levels.value(keyOf(source, source.size())).image;
}

std::function<void()> Pixels::work(const Key &key, const Source &source)
{
    if (source.other)
        return subtraction(key, source);
    return [this, key, picture = source.picture] { tell(key, picture.decoded(key.size), key, {}); };
}

// What is known at full size already is not made again.
std::function<void()> Pixels::subtraction(const Key &key, const Source &source)
{
    return [=, this, whole = known(source), theirs = known(source.picture), ours = known(*source.other)] {
        const QImage full = whole.isNull() ? differenceOf(source, theirs, ours) : whole;
        tell(key, scaledTo(full, key.size), keyOf(source, source.size()), full);
    };
}

// Called by the workers.
void Pixels::tell(const Key &key, const QImage &image, const Key &wholeKey, const QImage &whole)
{
    QMetaObject::invokeMethod(
        this, [=, this] { finish(key, image, wholeKey, whole); }, Qt::QueuedConnection);
}

void Pixels::finish(const Key &key, const QImage &image, const Key &wholeKey, const QImage &whole)
{
    const Job job = m_jobs.take(key);
    if (!(wholeKey == key) && !whole.isNull())
        keep(wholeKey, whole);
    if (!image.isNull())
        keep(key, image);
    for (const Waiter &waiter : job.waiters) {
        if (waiter.context)
            waiter.done(image);
    }
    if (isBusy())
        return;
    beginAhead();
    Q_EMIT rested();
}

bool Pixels::isBusy() const
{
    return std::any_of(m_jobs.cbegin(), m_jobs.cend(), [](const Job &job) { return job.urgency == Urgency::Shown; });
}

void Pixels::keep(const Key &key, const QImage &image)
{
    // The same level may have been made for another one's sake meanwhile.
    m_bytes -= m_levels.take(key).image.sizeInBytes();
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
