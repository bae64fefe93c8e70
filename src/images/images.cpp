#include "images.h"

#include <QDirIterator>

using namespace Qt::StringLiterals;

namespace vexal {

Images::Images(const QString &dir, Fetch fetch, QObject *parent)
    : QObject(parent)
    , m_disk(dir)
    , m_fetch(std::move(fetch))
{
    m_workers.setMaxThreadCount(2);
}

Images::~Images()
{
    m_workers.waitForDone();
}

std::optional<Picture> Images::cached(const QString &key)
{
    if (auto found = sample(key))
        return found;
    if (const auto found = m_memory.constFind(key); found != m_memory.cend())
        return *found;
    auto picture = m_disk.read(key);
    for (const QString &doubted : m_disk.takeDoubted())
        m_memory.remove(doubted);
    if (picture)
        remember(key, *picture);
    return picture;
}

void Images::image(const QString &key, QObject *context, const Done &done)
{
    if (key.isEmpty())
        return done(std::nullopt);
    if (const auto picture = cached(key))
        return done(picture);
    const bool underWay = m_inflight.contains(key);
    m_inflight[key].append({context, done});
    if (!underWay)
        download(key);
}

void Images::download(const QString &key)
{
    m_fetch(key, this, [this, key](const std::optional<QByteArray> &bytes) {
        if (bytes)
            check(key, *bytes);
        else
            settle(key, std::nullopt);
    });
}

// Bytes are a picture when their pixels can be read; only then are they kept.
void Images::check(const QString &key, const QByteArray &bytes)
{
    const auto picture = Picture::fromBytes(bytes);
    if (!picture)
        return settle(key, std::nullopt);
    m_workers.start([this, key, bytes, picture] {
        const bool reads = !picture->decoded(picture->size()).isNull();
        const auto checked = [this, key, bytes, picture, reads] {
            if (!reads)
                return settle(key, std::nullopt);
            const auto kept = m_disk.write(key, bytes);
            settle(key, kept ? kept : picture);
        };
        QMetaObject::invokeMethod(this, checked, Qt::QueuedConnection);
    });
}

void Images::settle(const QString &key, const std::optional<Picture> &picture)
{
    const QList<Waiter> waiters = m_inflight.take(key);
    if (picture)
        remember(key, *picture);
    for (const Waiter &waiter : waiters) {
        if (waiter.context)
            waiter.done(picture);
    }
}

void Images::remember(const QString &key, const Picture &picture)
{
    if (m_memory.size() > mostInMemory)
        m_memory.clear();
    m_memory.insert(key, picture);
}

void Images::addSamples(const QString &folder)
{
    QDirIterator files(folder, {u"*.jpg"_s, u"*.png"_s}, QDir::Files | QDir::Hidden | QDir::CaseSensitive);
    while (files.hasNext()) {
        const QString path = files.next();
        m_samples.insert(files.fileName().replace(u'_', u'/'), path);
    }
}

// A sample's picture, opened when it is asked for. A file that is none is no sample.
std::optional<Picture> Images::sample(const QString &key)
{
    const auto path = m_samples.constFind(key);
    if (path == m_samples.cend())
        return std::nullopt;
    if (const auto opened = m_openedSamples.constFind(key); opened != m_openedSamples.cend())
        return *opened;
    auto picture = Picture::fromFile(*path);
    if (picture)
        m_openedSamples.insert(key, *picture);
    else
        m_samples.erase(path);
    return picture;
}

bool Images::spoiled(const QString &key)
{
    // A sample's picture is as it is; what the disk holds under its key is somebody else's.
    if (m_samples.contains(key))
        return false;
    m_memory.remove(key);
    m_disk.remove(key);
    const bool again = !m_spoiled.contains(key);
    m_spoiled.insert(key);
    return again;
}

} // namespace vexal
