#pragma once

#include "diskcache.h"
#include "pixels.h"

#include <QSet>

namespace vexal {

/// The one cache that turns a blob key into a picture: from the sample set, from memory, from the folder on disk, or
/// from the server, which is never asked twice at once for the same key. Everything runs on the user-interface thread
/// but the transfer and the decoding. Failures are silent: there is no picture then.
class Images : public QObject
{
    Q_OBJECT

public:
    /// More pictures than this are not kept in memory: it is emptied before the next is stored.
    static constexpr qsizetype mostInMemory = 400;

    /// Told the bytes of a key, or that there are none.
    using Fetched = std::function<void(std::optional<QByteArray>)>;
    /// How the bytes of a key are had. It answers once, unless the context goes first.
    using Fetch = std::function<void(const QString &key, QObject *context, const Fetched &fetched)>;
    using Done = std::function<void(const std::optional<Picture> &)>;

    /// Keeps pictures in `dir`, which is made with its parents.
    Images(const QString &dir, Fetch fetch, QObject *parent = nullptr);
    ~Images() override;

    /// The picture if it can be had without the network. One read from disk is in memory from then on.
    std::optional<Picture> cached(const QString &key);
    /// Answers the picture, or none: at once when it is cached, else when its download ends. Whoever asks for a key
    /// that is being downloaded waits for that download. Nothing is answered to a context that has gone; the download
    /// goes on.
    void image(const QString &key, QObject *context, const Done &done);

    /// Takes every file of a folder whose name ends in ".jpg" or ".png" and which is a picture for the sample of the
    /// key that is its name with "_" written as "/". Reads no pixels.
    void addSamples(const QString &folder);

    /// A picture whose pixels could not be read: forgets it, so that the next who asks fetches it. True when asking
    /// again is of use: once for a key.
    bool spoiled(const QString &key);

    /// Where the pixels of pictures are had.
    Pixels &pixels() { return m_pixels; }

    qsizetype inMemory() const { return m_memory.size(); }
    QString dir() const { return m_disk.folder(); }

    /// A fetch where there is no server: nothing is asked for.
    static void fetchNothing(const QString &, QObject *, const Fetched &fetched) { fetched(std::nullopt); }

private:
    struct Waiter
    {
        QPointer<QObject> context;
        Done done;
    };

    std::optional<Picture> sample(const QString &key);
    void download(const QString &key);
    void check(const QString &key, const QByteArray &bytes);
    void settle(const QString &key, const std::optional<Picture> &picture);
    void remember(const QString &key, const Picture &picture);

    QHash<QString, Picture> m_memory;
    QHash<QString, QList<Waiter>> m_inflight;
    QHash<QString, QString> m_samples; ///< Where the picture of each key lies.
    QHash<QString, Picture> m_openedSamples;
    QSet<QString> m_spoiled;
    DiskCache m_disk;
    Fetch m_fetch;
    Pixels m_pixels;
    QThreadPool m_workers;
};

} // namespace vexal
