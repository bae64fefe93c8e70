#pragma once

#include "drawing.h"

#include <QColor>
#include <QFont>

class QTextLayout;

namespace vexal {

/// Words over which a soft light passes. They wrap at the item's width; the implicit size is that of one line, and
/// of as many as that width makes of them.
class Gleam : public vexal::Drawing
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY lightChanged)
    Q_PROPERTY(QColor light MEMBER m_light NOTIFY lightChanged)
    Q_PROPERTY(qreal strength MEMBER m_strength NOTIFY lightChanged)
    Q_PROPERTY(qreal phase MEMBER m_phase NOTIFY lightChanged)

public:
    explicit Gleam(QQuickItem *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text);
    QFont font() const { return m_font; }
    void setFont(const QFont &font);

Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void lightChanged();

protected:
    void draw(QPainter &painter) const override;
    void geometryChange(const QRectF &now, const QRectF &before) override;

private:
    void measure();
    QBrush brush() const;

    QString m_text;
    QFont m_font;
    QColor m_color = Qt::black;
    QColor m_light = Qt::black;
    qreal m_strength = 1; // how much of the light's colour its middle has, 0 to 1
    qreal m_phase = -1;   // where the light begins, in widths of the item: at -1 and 1 it is beside the words
};

} // namespace vexal
