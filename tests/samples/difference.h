#pragma once

#include <QImage>
#include <QList>
#include <QRectF>

/// Where two pictures of one size differ, told from the noise that a lossy format leaves.
class Difference
{
public:
    Difference(const QImage &one, const QImage &other);

    /// How many pixels of the area, in fractions of the page, differ so much that an eye sees it.
    int seenIn(const QRectF &area) const;
    /// The first pixel that differs and lies in none of the areas nor close to one; (-1, -1) when there is none.
    QPoint firstOutside(const QList<QRectF> &areas) const;

private:
    QRect pixels(const QRectF &area) const;
    int at(int x, int y) const;

    QImage m_one;
    QImage m_other;
};
