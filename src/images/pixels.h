#pragma once

#include "picture.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>

namespace vexal {

/// What pixels are made of: a picture, or the difference of two pages.
struct Source
{
    Source(const Picture &only)
        : picture(only)
    {
    }
    Source(const Picture &supplier, const Picture &ours)
        : picture(supplier)
        , other(ours)
    {
    }

    /// Its own size in pixels; of two pages that of the larger one.
    QSize size() const;

    Picture picture;
    std::optional<Picture> other;
};

/// The one place where decoded pixels are held, within a budget of bytes. What somebody still shows is never given up;
/// of the rest the level that was not wanted for longest goes first. Workers decode; answers arrive on the
/// user-interface thread.
class Pixels : public QObject
{
    Q_OBJECT

public:
    /// What all levels together may take, in bytes.
    static constexpr qint64 budget = 512LL * 1024 * 1024;

    /// How soon a level is needed.
    enum class Urgency {
        Ahead, ///< It may be shown next.
        Shown, ///< Somebody is looking at its place.
    };

    using Done = std::function<void(const QImage &)>;

    explicit Pixels(qint64 bytes = budget, QObject *parent = nullptr);
    /// Waits for the workers.
    ~Pixels() override;

    /// The size at which a source is decoded to be shown at a size in device pixels: that size, or its own where that
    /// is not larger.
    static QSize levelFor(const Source &source, QSize shown);
    /// The same while the shown size keeps changing: the smallest of its own size and the halves of it that is not
    /// smaller than what is shown, so that a few levels do for all sizes.
    static QSize steppedLevelFor(const Source &source, QSize shown);

    /// A source's level that is held; null when it is not.
    QImage held(const Source &source, QSize level);
    /// The largest level of a source that is held, to stand in for another; null when there is none.
    QImage heldInstead(const Source &source);
    /// Answers a level: at once when it is held, else when it is made; null when the picture turns out to be none. Of
    /// what is shown the largest is made first; what may be shown next is begun when all that is done. Nothing is
    /// answered to a context that has gone, and what nobody waits for any more is not begun. The difference of two
    /// pages is taken at their full size, whatever the level, and is held at that size as well.
    void load(const Source &source, QSize level, Urgency urgency, QObject *context, const Done &done);

    /// Something that is looked at is being made.
    bool isBusy() const;
    /// Bytes of all levels that are held.
    qint64 bytes() const { return m_bytes; }

Q_SIGNALS:
    /// All that is looked at is made.
    void rested();

private:
    struct Key
    {
        quint64 picture = 0;
        quint64 other = 0; ///< 0: the picture itself.
        QSize size;
        bool operator==(const Key &) const = default;
    };
    friend size_t qHash(const Key &key, size_t seed)
    {
        return qHashMulti(seed, key.picture, key.other, key.size.width(), key.size.height());
    }
    struct Level
    {
        QImage image;
        quint64 wanted = 0;
    };
    struct Waiter
    {
        QPointer<QObject> context;
        Done done;
    };
    struct Job
    {
        std::optional<Source> source;
        Urgency urgency = Urgency::Ahead;
        std::shared_ptr<std::atomic_bool> open; ///< Whoever takes this away has the job, or has called it off.
        QList<Waiter> waiters;
    };

    static Key keyOf(const Source &source, QSize level);
    void callOff();
    void handOver(const Key &key, const Job &job);
    void beginAhead();
    std::function<void()> work(const Key &key, const Source &source);
    std::function<void()> subtraction(const Key &key, const Source &source);
    void tell(const Key &key, const QImage &image, const Key &wholeKey, const QImage &whole);
    QImage known(const Source &source) const;
    void finish(const Key &key, const QImage &image, const Key &wholeKey, const QImage &whole);
    void keep(const Key &key, const QImage &image);
    void giveUp(qint64 bytes);

    qint64 m_budget;
    qint64 m_bytes = 0;
    quint64 m_wanted = 0;
    QHash<Key, Level> m_levels;
    QHash<Key, Job> m_jobs;
    QList<Key> m_later; ///< What may be shown next, in the order in which it was asked for.
    QThreadPool m_workers;
    QThreadPool m_aheadWorker; ///< For what may be shown: it never takes all processors from what comes to be.
};

} // namespace vexal
