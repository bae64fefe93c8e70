#include "post.h"

#include "type.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

void postSnail(Canvas &canvas, QPointF at, double width, const QColor &shell, const QColor &body, bool left)
{
    const auto placed = left ? canvas.mirrored(at, width / 240) : canvas.placed(at, width / 240);
    canvas.fill(ellipse({0, 2}, 118, 8), ink(0x000000, 0.14));
    canvas.stroke(outline("M96 -66 C104 -86 108 -96 118 -104 M82 -68 C82 -88 84 -98 88 -110"_L1), body, 6);
    canvas.fill(circle({119, -106}, 8), body);
    canvas.fill(circle({88, -112}, 8), body);
    canvas.fill(circle({121, -107}, 3.4), ink(0x20262E));
    canvas.fill(circle({90, -113}, 3.4), ink(0x20262E));
    canvas.fill(
        outline(
            "M-118 0 C-96 -6 -70 -22 -40 -22 L52 -22 C60 -30 62 -48 70 -60 C80 -76 108 -72 110 -50 C112 -24 96 0 60 0 Z"_L1),
        body);
    canvas.stroke(outline("M92 -38 Q100 -34 106 -40"_L1), ink(0x20262E), 3);
    canvas.fill(circle({94, -50}, 4), ink(0xE9785A, 0.5));
    canvas.fill(circle({0, -66}, 60), shell);
    canvas.stroke(
        outline(
            "M-50 -48 C-40 -112 46 -112 44 -62 C42 -28 -24 -26 -24 -62 C-22 -84 14 -84 14 -62 C12 -52 0 -50 -4 -58"_L1),
        mix(shell, Qt::black, 0.26), 8);
    canvas.fill(ellipse({-20, -98}, 17, 9), ink(0xFFFFFF, 0.28));
    canvas.stroke(outline("M-44 -104 L40 -26"_L1), ink(0x6B4A34), 5);
    canvas.fill(box({18, -44, 58, 38}, 7), ink(0xA9683C));
    canvas.fill(
        outline("M18 -40 C18 -44 22 -44 26 -44 L70 -44 C74 -44 76 -42 76 -38 L76 -30 C60 -18 34 -18 18 -30 Z"_L1),
        ink(0xC07E4C));
    canvas.fill(circle({47, -24}, 4), ink(0xF2C879));
    canvas.fill(polygon({{28, -44}, {34, -58}, {58, -52}, {54, -44}}), ink(0xFBF4E6));
}

void balloon(Canvas &canvas, QPointF at, double height, const QColor &light, const QColor &dark)
{
    const auto placed = canvas.placed(at, height / 300);
    canvas.stroke(outline("M-30 -98 L-17 -38 M30 -98 L17 -38 M-8 -92 L-6 -38 M8 -92 L6 -38"_L1), ink(0x5A4436), 2.4);
    const QPainterPath bag = outline(
        "M0 -300 C70 -300 104 -246 98 -196 C92 -150 56 -124 34 -92 L-34 -92 C-56 -124 -92 -150 -98 -196 C-104 -246 -70 "
        "-300 0 -300 Z"_L1);
    canvas.fill(bag, light);
    {
        const auto clip = canvas.clipped(bag);
        canvas.fill(outline("M0 -304 C-60 -280 -66 -170 -20 -88 L20 -88 C66 -170 60 -280 0 -304 Z"_L1), dark);
        canvas.fill(outline("M0 -304 C-24 -280 -26 -170 -8 -88 L8 -88 C26 -170 24 -280 0 -304 Z"_L1), light);
        canvas.fill(outline("M-2 -304 C-110 -290 -110 -170 -40 -88 L-60 -88 L-130 -200 L-80 -310 Z"_L1), dark);
        canvas.fill(outline("M2 -304 C110 -290 110 -170 40 -88 L60 -88 L130 -200 L80 -310 Z"_L1),
                    mix(dark, Qt::black, 0.12));
        canvas.fill(box({-110, -216, 220, 17}), ink(0xFBF1DC));
        canvas.fill(ellipse({-48, -256}, 16, 26), ink(0xFFFFFF, 0.25));
    }
    canvas.fill(box({-32, -96, 64, 8}, 3), mix(dark, Qt::black, 0.3));
    canvas.fill(outline("M-22 -40 L22 -40 L17 0 L-17 0 Z"_L1), ink(0xA9683C));
    canvas.stroke(outline("M-20 -28 H20 M-19 -14 H19 M-8 -40 L-6 0 M8 -40 L6 0"_L1), ink(0x7A4A2A), 2);
    canvas.fill(box({-25, -44, 50, 8}, 3), ink(0x7A4A2A));
}

void mountain(Canvas &canvas, QPointF at, double width, const QColor &rock)
{
    const auto placed = canvas.placed(at, width / 200);
    canvas.fill(outline("M-100 0 C-70 -40 -30 -120 -4 -150 C4 -156 10 -152 16 -142 C40 -100 70 -40 100 0 Z"_L1), rock);
    canvas.fill(
        outline(
            "M4 -154 C10 -152 14 -146 16 -142 C40 -100 70 -40 100 0 L24 0 C34 -40 2 -60 22 -100 C14 -120 6 -130 4 -154 Z"_L1),
        mix(rock, Qt::black, 0.14));
    canvas.fill(
        outline(
            "M-4 -150 C4 -156 10 -152 16 -142 L38 -104 C28 -110 24 -96 14 -106 C6 -94 -4 -108 -12 -98 C-18 -104 -24 -96 -32 -106 Z"_L1),
        ink(0xFBF6EC));
}

void compass(Canvas &canvas, QPointF at, double radius, const QColor &colour, const QColor &accent)
{
    const auto placed = canvas.placed(at, radius / 100);
    canvas.stroke(circle({0, 0}, 70), colour, 3);
    canvas.stroke(circle({0, 0}, 62), colour, 1.6);
    for (int i = 0; i < 8; ++i) {
        const auto turned = canvas.placed({0, 0}, 1, 45.0 * i);
        const double length = i % 2 == 0 ? 100 : 58;
        canvas.fill(polygon({{0, -length}, {-13, -17}, {0, 0}}), i == 0 ? accent : colour);
        canvas.fill(polygon({{0, -length}, {13, -17}, {0, 0}}), mix(i == 0 ? accent : colour, Qt::white, 0.6));
    }
    const Type north{Face::BookmanDemi, 30, accent};
    canvas.fill(words(u"N"_s, north).translated(-advance(u"N"_s, north) / 2, -108), accent);
}

void stampPaper(Canvas &canvas, const QColor &paper, const QColor &ground)
{
    QPainterPath edge = box({-50, -60, 100, 120});
    QPainterPath teeth;
    for (int i = 0; i <= 10; ++i) {
        teeth.addEllipse(QPointF(-50.0 + 10 * i, -60), 3, 3);
        teeth.addEllipse(QPointF(-50.0 + 10 * i, 60), 3, 3);
    }
    for (int i = 1; i < 12; ++i) {
        teeth.addEllipse(QPointF(-50, -60.0 + 10 * i), 3, 3);
        teeth.addEllipse(QPointF(50, -60.0 + 10 * i), 3, 3);
    }
    canvas.fill(edge - teeth, paper);
    canvas.fill(box({-41, -51, 82, 102}), ground);
}

void postmark(Canvas &canvas, QPointF at, double radius, const QString &town, const QString &date, const QColor &colour)
{
    const auto placed = canvas.placed(at, radius / 100, -12);
    canvas.stroke(circle({0, 0}, 98), colour, 5);
    canvas.stroke(circle({0, 0}, 66), colour, 3);
    const Type rim{Face::GothicDemi, 22, colour, 90};
    canvas.fill(wordsRound(town, rim, 74), colour);
    const Type middle{Face::GothicDemi, 27, colour, 20};
    canvas.fill(words(date, middle).translated(-advance(date, middle) / 2, 9), colour);
    for (int i = 0; i < 4; ++i)
        canvas.stroke(outline("M106 0 C130 -16 150 16 176 0 C202 -16 222 16 248 0 C274 -16 294 16 320 0"_L1)
                          .translated(0, -39.0 + 26 * i),
                      colour, 4.4);
}

} // namespace vexal::sample
