#include "music.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

void staff(Canvas &canvas, QPointF at, double width, double gap, const QColor &colour)
{
    for (int i = 0; i < 5; ++i) {
        QPainterPath line(at + QPointF(0, gap * i));
        line.lineTo(at + QPointF(width, gap * i));
        canvas.stroke(line, colour, gap * 0.09, Qt::FlatCap);
    }
    QPainterPath ends(at + QPointF(width, 0));
    ends.lineTo(at + QPointF(width, gap * 4));
    canvas.stroke(ends, colour, gap * 0.12, Qt::FlatCap);
    const auto clef = canvas.placed(at + QPointF(gap * 1.7, gap * 3), gap / 20);
    canvas.stroke(outline("M2 4 C-14 2 -12 -20 4 -20 C22 -20 24 14 -2 16 C-30 16 -32 -20 -12 -38 C4 -52 16 -68 12 -86 "
                          "C10 -98 0 -96 -4 -82 C-8 "
                          "-66 2 -20 8 24 C12 44 -8 48 -14 38"_L1),
                  colour, 4.6);
    canvas.fill(circle({-12, 36}, 6.4), colour);
}

void notes(Canvas &canvas, QPointF at, double width, double gap, const QString &steps, const QColor &colour)
{
    const double stride = (width - 5 * gap) / static_cast<double>(steps.size());
    double x = at.x() + 4.6 * gap;
    for (qsizetype i = 0; i < steps.size(); ++i, x += stride) {
        const QChar step = steps.at(i);
        if (step == u'h')
            continue;
        if (step == u'-') {
            QPainterPath bar({x, at.y()});
            bar.lineTo(x, at.y() + 4 * gap);
            canvas.stroke(bar, colour, gap * 0.11, Qt::FlatCap);
            continue;
        }
        const bool half = i + 1 < steps.size() && steps.at(i + 1) == u'h';
        const int height = step.digitValue();
        const auto note = canvas.placed({x, at.y() + gap * (4 - height * 0.5)}, gap / 20);
        const bool up = height < 5;
        QPainterPath stem(up ? QPointF(11, -2) : QPointF(-11, 2));
        stem.lineTo(up ? QPointF(11, -68) : QPointF(-11, 68));
        canvas.stroke(stem, colour, 2.6, Qt::FlatCap);
        const auto tilt = canvas.placed({0, 0}, 1, -22);
        if (half)
            canvas.stroke(ellipse({0, 0}, 10.4, 7.4), colour, 4);
        else
            canvas.fill(ellipse({0, 0}, 12.6, 9.4), colour);
    }
}

} // namespace vexal::sample
