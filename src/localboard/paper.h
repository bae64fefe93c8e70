#pragma once

#include <QBuffer>
#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPdfWriter>
#include <QString>

namespace vexal::local {

/// A4 sheets that are filled from the top, one after the other, into a PDF. Lengths are points.
class Paper
{
public:
    /// How a paragraph looks.
    struct Style
    {
        double size;
        QFont::Weight weight = QFont::Normal;
        QColor color = QColor(0x0F, 0x0B, 0x0A);
    };

    static constexpr double left = 54;
    static constexpr double right = 541;
    static constexpr double top = 54;
    static constexpr double bottom = 788;

    explicit Paper(const QString &title);
    Paper(const Paper &) = delete;
    Paper &operator=(const Paper &) = delete;

    /// For what is no text: draws in points from the sheet's upper left corner.
    QPainter &painter() { return m_painter; }

    /// Where the next paragraph begins, and the sheet it is on, from 1.
    double y() const { return m_y; }
    int sheet() const { return m_sheet; }

    void moveTo(double y) { m_y = y; }
    void skip(double height) { m_y += height; }

    /// Turns to a new sheet when less than \a height is left on this one.
    void ensure(double height);

    /// A new sheet, unless this one is still empty.
    void nextSheet();

    /// Sets \a text between \a x and the right edge, over as many lines and sheets as it takes.
    void paragraph(const QString &text, const Style &style, double x = left);

    /// Ends the document and gives its bytes.
    QByteArray finish();

    static QFont font(const Style &style);

private:
    QBuffer m_bytes;
    QPdfWriter m_writer;
    QPainter m_painter;
    double m_y = top;
    int m_sheet = 1;
};

} // namespace vexal::local
