#include "canvasview.h"

#include <algorithm>

namespace vexal {

namespace {

constexpr qreal clear = 24 + 3; ///< What is brought into view keeps 24 points from the edges, its mark included.

// Where along one axis the page begins: never further than its edges allow.
qreal beginning(qreal wanted, qreal page, qreal room)
{
    return std::clamp(wanted, std::min<qreal>(0, room - page), qreal(0));
}

QSizeF freeRoom(const Opening &opening)
{
    return {opening.box.width(), opening.box.height() - opening.foot};
}

QPointF corner(QPointF wanted, QSizeF page, const Opening &opening)
{
    const QSizeF room = freeRoom(opening);
    return {beginning(wanted.x(), page.width(), room.width()), beginning(wanted.y(), page.height(), room.height())};
}

// The view at a zoom in which the page's top left corner is at a place of the box.
View placedAt(QPointF topLeft, qreal zoom, const Opening &opening)
{
    View view{zoom, {}};
    const QSizeF page = opening.page * factorOf(view, opening.actual);
    const QPointF at = corner(topLeft, page, opening);
    view.centre = {(opening.box.width() / 2 - at.x()) / page.width(),
                   (opening.box.height() / 2 - at.y()) / page.height()};
    return view;
}

// How far a span has to move to lie between 0 and `room`; its beginning counts more than its end.
qreal wayInto(qreal room, qreal begin, qreal end)
{
    const qreal back = std::max<qreal>(0, end - room);
    return -std::min(back, begin);
}

} // namespace

qreal actualFactor(QSizeF fitted, QSizeF pixels, qreal devicePixelRatio)
{
    if (pixels.isEmpty() || fitted.isEmpty() || devicePixelRatio <= 0)
        return 0;
    return pixels.width() / (fitted.width() * devicePixelRatio);
}

qreal factorOf(const View &view, qreal actual)
{
    return std::clamp(view.zoom * actual, qreal(1), std::max<qreal>(1, closest * actual));
}

QRectF placeOf(const View &view, const Opening &opening)
{
    const QSizeF page = opening.page * factorOf(view, opening.actual);
    const QPointF wanted(opening.box.width() / 2 - view.centre.x() * page.width(),
                         opening.box.height() / 2 - view.centre.y() * page.height());
    return {corner(wanted, page, opening), page};
}

View zoomedBy(qreal times, const View &view, const Opening &opening, QPointF at)
{
    if (opening.actual <= 0)
        return view;
    return zoomedTo(factorOf(view, opening.actual) * times / opening.actual, view, opening, at);
}

View zoomedTo(qreal zoom, const View &view, const Opening &opening, QPointF at)
{
    if (opening.actual <= 0)
        return view;
    const qreal bounded = std::min(zoom, closest);
    if (bounded * opening.actual <= 1)
        return {};
    const QRectF before = placeOf(view, opening);
    const QPointF fraction((at.x() - before.x()) / before.width(), (at.y() - before.y()) / before.height());
    const QSizeF page = opening.page * factorOf({bounded, {}}, opening.actual);
    return placedAt({at.x() - fraction.x() * page.width(), at.y() - fraction.y() * page.height()}, bounded, opening);
}

View movedBy(QPointF points, const View &view, const Opening &opening)
{
    return placedAt(placeOf(view, opening).topLeft() + points, view.zoom, opening);
}

View revealing(const QRectF &place, const View &view, const Opening &opening)
{
    // A fitted page starts from where it rests, so that one finding is always shown at the same place.
    const bool fitted = factorOf(view, opening.actual) <= 1;
    const QRectF page = placeOf(fitted ? View() : view, opening);
    const QSizeF room = freeRoom(opening);
    const QRectF seen(page.x() + place.x() * page.width() - clear, page.y() + place.y() * page.height() - clear,
                      place.width() * page.width() + 2 * clear, place.height() * page.height() + 2 * clear);
    const QPointF way(wayInto(room.width(), seen.left(), seen.right()),
                      wayInto(room.height(), seen.top(), seen.bottom()));
    return placedAt(page.topLeft() + way, view.zoom, opening);
}

} // namespace vexal
