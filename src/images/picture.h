#pragma once

#include <QByteArray>
#include <QImage>
#include <QSharedDataPointer>
#include <QSize>
#include <QString>

#include <optional>

namespace vexal {

/// More pixels than this, or more bytes of a file, are no picture of ours: a proof of A2 at 600 dots an inch has 139
/// million, and what is larger comes from nobody who means well.
inline constexpr qint64 mostPixels = 160'000'000;
inline constexpr qint64 mostBytes = 256'000'000;

/// A picture without its pixels: how large it is, and the way back to its bytes. A cheap value; copies are the same
/// picture.
class Picture
{
public:
    /// The picture in a file, if the file's head says that it is one. Reads no pixels.
    static std::optional<Picture> fromFile(const QString &path);
    /// The picture in these bytes, if their head says that they are one. Reads no pixels.
    static std::optional<Picture> fromBytes(const QByteArray &bytes);

    /// Width and height in pixels, upright: as the camera's orientation, if one is noted, asks for.
    QSize size() const;
    /// Tells pictures apart: the same for copies, another for every picture that is opened.
    quint64 id() const;

    /// Its pixels at a size, by averaging, so that no stroke is lost; at its own size when that is not larger. Null
    /// when the bytes are gone or spoiled. Takes long: to be called by a worker.
    QImage decoded(QSize level) const;

private:
    struct Data;

    explicit Picture(QExplicitlySharedDataPointer<Data> data);
    static std::optional<Picture> opened(QExplicitlySharedDataPointer<Data> data);

    QExplicitlySharedDataPointer<Data> m_data;

public:
    Picture(const Picture &other);
    Picture &operator=(const Picture &other);
    ~Picture();
};

} // namespace vexal
