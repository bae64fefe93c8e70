#pragma once

#include "plan.h"

/// The country of the Lantern Fox: what its pages have in common.
namespace vexal::sample::fox {

inline constexpr QSize page{1360, 1700};
inline constexpr QRectF picture{0, 0, 1360, 1266}; ///< Over the strip of text.

QColor paper();
QColor black();
QColor cream();

/// The light of a picture: the sky from its top to its foot, the hills from far to near, and the grass in front. By day
/// there are no stars.
struct Light
{
    QList<QColor> sky;
    QColor far;
    QColor middle;
    QColor near;
    QColor front;
    QColor star;
};

Light night();
Light dusk();
Light day();
Light deepNight();
Light dawn();
Light morning();

/// A thing of the picture: nothing of it shows on the strip of text.
void add(Sheet &sheet, const QString &name, Art art);

/// Paper and sky.
Sheet country(const Light &light, quint64 seed);
/// The far hills, then (behind everything that stands on them) the near one with its grass.
void farHills(Sheet &sheet, const Light &light, quint64 seed);
void nearHill(Sheet &sheet, const Light &light, quint64 seed, const QColor &petal = {});
void firs(Sheet &sheet, const QColor &colour, const QList<QPointF> &feet, double height);
/// The strip with the words and the folio.
void tell(Sheet &sheet, const QString &folio, const QStringList &lines);

QList<Leaf> frontMatter(); ///< i, ii and 1.
QList<Leaf> setOut();      ///< 2 to 6.
Leaf theLine();            ///< 7.
QList<Leaf> waitUp();      ///< 8 to 11.
QList<Leaf> comeHome();    ///< 12 to 14.

} // namespace vexal::sample::fox
