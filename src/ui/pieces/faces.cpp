#include "faces.h"

#include "palette.h"

#include <QStringList>

#include <array>

namespace vexal {
namespace {
constexpr std::array<QRgb, 6> kGrounds{0x7A4E8C, 0x2F6E78, 0x8A6A2F, 0xA2485A, 0x4A6396, 0x5B6B3A};

constexpr qreal kReadable = 4.5;

QColor readableUnderWhite(QColor colour)
{
    colour.setAlpha(255);
    while (contrast(Qt::white, colour) < kReadable)
        colour = colour.darker(110);
    return colour;
}

// A letter may be two units long, and some letters get longer in upper case.
QString firstLetter(const QString &word)
{
    return word.first(word.at(0).isHighSurrogate() && word.size() > 1 ? 2 : 1).toUpper();
}
} // namespace

QString initials(const QString &name)
{
    const QStringList words = name.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    const QString first = firstLetter(words.first());
    return words.size() > 1 ? first + firstLetter(words.last()) : first;
}

QColor faceColour(const QString &email, const QString &own)
{
    if (const QColor colour = QColor::fromString(own); colour.isValid())
        return readableUnderWhite(colour);
    // FNV-1a: Qt's own hash differs from run to run.
    quint32 hash = 2166136261U;
    for (const char byte : email.toUtf8())
        hash = (hash ^ static_cast<quint8>(byte)) * 16777619U;
    return QColor::fromRgb(kGrounds[hash % kGrounds.size()]);
}
} // namespace vexal
