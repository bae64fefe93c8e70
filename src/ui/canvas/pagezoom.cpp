#include "pagezoom.h"

#include <cmath>

namespace vexal {

PageZoom::PageZoom(QObject *parent)
    : QObject(parent)
{
}

Opening PageZoom::opening(QSizeF fitted) const
{
    return {m_box, fitted, actualFactor(m_page, m_pixels, m_ratio), m_foot};
}

void PageZoom::setBox(QSizeF box)
{
    if (m_box == box)
        return;
    m_box = box;
    Q_EMIT changed();
}

void PageZoom::setPage(QSizeF page)
{
    if (m_page == page)
        return;
    m_page = page;
    Q_EMIT changed();
}

void PageZoom::setPixels(QSizeF pixels)
{
    if (m_pixels == pixels)
        return;
    m_pixels = pixels;
    Q_EMIT changed();
}

void PageZoom::setRatio(qreal devicePixelRatio)
{
    if (m_ratio == devicePixelRatio)
        return;
    m_ratio = devicePixelRatio;
    Q_EMIT changed();
}

void PageZoom::setFoot(qreal foot)
{
    if (m_foot == foot)
        return;
    const bool opensOrCloses = (foot > 0) != (m_foot > 0);
    m_foot = foot;
    opensOrCloses ? glide(atMark()) : Q_EMIT changed();
}

void PageZoom::setMark(const QRectF &mark)
{
    if (m_mark == mark)
        return;
    m_mark = mark;
    glide(atMark());
}

qreal PageZoom::factor() const
{
    return factorOf(m_view, opening().actual);
}

// A fitted page has no place of its own: it lies where its mark is seen.
View PageZoom::shown() const
{
    return zoomed() || m_mark.width() < 0 ? m_view : revealing(m_mark, View(), opening());
}

View PageZoom::atMark() const
{
    return zoomed() && m_mark.width() >= 0 ? revealing(m_mark, m_view, opening()) : m_view;
}

int PageZoom::percent() const
{
    const qreal whole = opening().actual;
    return whole > 0 ? int(std::lround(factor() / whole * 100)) : 100;
}

QRectF PageZoom::place(QSizeF fitted) const
{
    return placeOf(shown(), opening(fitted));
}

void PageZoom::fit()
{
    set({});
}

void PageZoom::actual(QPointF at, QSizeF fitted)
{
    set(zoomedTo(1, shown(), opening(fitted), at));
}

void PageZoom::toggle(QPointF at, QSizeF fitted)
{
    zoomed() ? fit() : actual(at, fitted);
}

void PageZoom::zoomBy(qreal times, QPointF at, QSizeF fitted)
{
    set(zoomedBy(times, shown(), opening(fitted), at));
}

void PageZoom::moveBy(qreal x, qreal y, QSizeF fitted)
{
    if (zoomed())
        set(movedBy({x, y}, m_view, opening(fitted)));
}

void PageZoom::reveal(const QRectF &place)
{
    if (zoomed())
        glide(revealing(place, m_view, opening()));
}

void PageZoom::set(const View &view)
{
    m_view = view;
    Q_EMIT changed();
}

// Who hears of the change while it glides lets it travel.
void PageZoom::glide(const View &view)
{
    m_gliding = true;
    Q_EMIT glidingChanged();
    set(view);
    m_gliding = false;
    Q_EMIT glidingChanged();
}

} // namespace vexal
