#pragma once

#include <QPointF>
#include <QRectF>

namespace vexal {

/// How closely a page is looked at, and where. It says nothing of a page's size, so it holds for every page, on both
/// panes and in every mode.
struct View
{
    qreal zoom = 0;                     ///< Device pixels a pixel of the page; 0: the page is fitted.
    QPointF centre = QPointF(0.5, 0.5); ///< What of the page is in the middle of the pane, in fractions of the page.
    bool operator==(const View &) const = default;
};

/// What a page is seen through. Points throughout.
struct Opening
{
    QSizeF box;       ///< The pane's box.
    QSizeF page;      ///< The page as it is fitted into the box.
    qreal actual = 0; ///< Times the fitted size at which a pixel of the page is one of the screen; 0: not known.
    qreal foot = 0;   ///< How much of the box, from below, something lies over.
};

/// A page is never shown larger than this: 8 screen pixels a page pixel.
inline constexpr qreal closest = 8;

/// How many times its fitted size a page of these pixels has where each of them is one of the screen; 0 when the pixels
/// are not known.
qreal actualFactor(QSizeF fitted, QSizeF pixels, qreal devicePixelRatio);

/// How many times its fitted size a page is shown: 1 (fitted) or more.
qreal factorOf(const View &view, qreal actual);

/// Where the page lies in the pane, from the box's top left corner. A page that is fitted lies in that corner; a larger
/// one covers the box, or what is free of it, and is moved no further than its edges.
QRectF placeOf(const View &view, const Opening &opening);

/// The view that shows the page `times` as large and keeps what is under the point where it is. Fitted when that is
/// not larger than the fitted page; unchanged where the page's pixels are not known.
View zoomedBy(qreal times, const View &view, const Opening &opening, QPointF at);
/// The same at a number of device pixels a pixel of the page.
View zoomedTo(qreal zoom, const View &view, const Opening &opening, QPointF at);

/// The view moved along with a hand that moves the paper by so many points.
View movedBy(QPointF points, const View &view, const Opening &opening);

/// The view moved as little as shows a place of the page (in fractions) whole and clear of what lies over the foot; its
/// upper left corner when it is too large for that.
View revealing(const QRectF &place, const View &view, const Opening &opening);

} // namespace vexal
