#pragma once

#include "canvasview.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vexal {

/// How closely the canvas looks at its pages, and where; the same on both panes. Points are those of a pane's box.
class PageZoom : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QSizeF box MEMBER m_box WRITE setBox NOTIFY changed FINAL)
    Q_PROPERTY(QSizeF page MEMBER m_page WRITE setPage NOTIFY changed FINAL)
    Q_PROPERTY(QSizeF pixels MEMBER m_pixels WRITE setPixels NOTIFY changed FINAL)
    Q_PROPERTY(qreal devicePixelRatio MEMBER m_ratio WRITE setRatio NOTIFY changed FINAL)
    Q_PROPERTY(qreal foot MEMBER m_foot WRITE setFoot NOTIFY changed FINAL)
    Q_PROPERTY(QRectF mark MEMBER m_mark WRITE setMark NOTIFY changed FINAL)
    Q_PROPERTY(qreal factor READ factor NOTIFY changed FINAL)
    Q_PROPERTY(bool zoomed READ zoomed NOTIFY changed FINAL)
    Q_PROPERTY(int percent READ percent NOTIFY changed FINAL)
    Q_PROPERTY(bool gliding READ gliding NOTIFY glidingChanged FINAL)

public:
    explicit PageZoom(QObject *parent = nullptr);

    /// The pane's box, in points.
    void setBox(QSizeF box);
    /// The supplier's page as it is fitted into the box.
    void setPage(QSizeF page);
    /// The pixels of the supplier's page; empty while they are not known, which leaves the page fitted.
    void setPixels(QSizeF pixels);
    void setRatio(qreal devicePixelRatio);
    /// How much of the box, from below, something lies over.
    void setFoot(qreal foot);
    /// The place of the supplier's page, in fractions of it, that is to be seen; of a negative width for none. A fitted
    /// page always keeps it clear of the foot; a zoomed one is brought there once.
    void setMark(const QRectF &mark);

    /// How many times its fitted size a page is shown.
    qreal factor() const;
    /// It is shown larger than fitted.
    bool zoomed() const { return factor() > 1; }
    /// Screen pixels for a hundred pixels of the page.
    int percent() const;
    /// The change being told is one that travels; others are at once.
    bool gliding() const { return m_gliding; }

    /// Where a page that is fitted at a size lies in its pane. Read again when `changed` is told.
    Q_INVOKABLE QRectF place(QSizeF fitted) const;

    Q_INVOKABLE void fit();
    /// A screen pixel a page pixel, around a point of the pane.
    Q_INVOKABLE void actual(QPointF at, QSizeF fitted);
    /// Fits a page that is zoomed, and shows one that is fitted at its own pixels.
    Q_INVOKABLE void toggle(QPointF at, QSizeF fitted);
    Q_INVOKABLE void zoomBy(qreal times, QPointF at, QSizeF fitted);
    Q_INVOKABLE void moveBy(qreal x, qreal y, QSizeF fitted);
    /// Brings a place of the supplier's page, in fractions of it, into view when the page is zoomed.
    Q_INVOKABLE void reveal(const QRectF &place);

Q_SIGNALS:
    void changed();
    void glidingChanged();

private:
    Opening opening() const { return opening(m_page); }
    Opening opening(QSizeF fitted) const;
    View shown() const;
    View atMark() const;
    void set(const View &view);
    void glide(const View &view);

    QSizeF m_box;
    QSizeF m_page;
    QSizeF m_pixels;
    qreal m_ratio = 1;
    qreal m_foot = 0;
    bool m_gliding = false;
    QRectF m_mark = QRectF(0, 0, -1, -1);
    View m_view;
};

} // namespace vexal
