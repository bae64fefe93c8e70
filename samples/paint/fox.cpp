#include "fox.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

void ear(Canvas &canvas, const Coat &coat, bool right)
{
    const auto side = [right](const QPainterPath &path) { return right ? mirrored(path) : path; };
    canvas.fill(side(outline("M-66 -10 C-70 -40 -68 -70 -60 -90 C-40 -80 -22 -62 -10 -40 Z"_L1)), coat.fur);
    canvas.fill(
        side(outline("M-58 -34 C-60 -52 -60 -64 -56 -76 C-44 -68 -34 -58 -28 -44 C-40 -44 -50 -40 -58 -34 Z"_L1)),
        coat.dark);
}

/// Its middle is between the eyes, its ears reach up to -90 and its nose is at 62.
void head(Canvas &canvas, const Coat &coat, bool asleep)
{
    ear(canvas, coat, false);
    ear(canvas, coat, true);
    const QPainterPath face = outline(
        "M0 70 C-18 64 -34 46 -62 28 C-76 18 -80 4 -66 -10 C-58 -34 -30 -46 0 -46 C30 -46 58 -34 66 -10 C80 4 76 "
        "18 62 28 C34 46 18 64 0 70 Z"_L1);
    canvas.fill(face, coat.fur);
    {
        const auto clip = canvas.clipped(face);
        const QPainterPath cheek = outline("M0 74 C-4 50 -12 30 -28 18 C-44 8 -62 8 -84 14 L-84 74 Z"_L1);
        canvas.fill(cheek, coat.bib);
        canvas.fill(mirrored(cheek), coat.bib);
        canvas.fill(outline("M-9 -48 C-5 -26 -4 -10 0 6 C4 -10 5 -26 9 -48 Z"_L1), ink(coat.shade.rgb(), 0.5));
    }
    canvas.fill(ellipse({0, 62}, 12, 9), coat.dark);
    canvas.fill(ellipse({-3, 59}, 3.6, 2.4), ink(0xFFFFFF, 0.5));
    if (asleep) {
        const QPainterPath lid = outline("M-42 4 C-36 14 -24 14 -18 6"_L1);
        canvas.stroke(lid, coat.dark, 4.5);
        canvas.stroke(mirrored(lid), coat.dark, 4.5);
        return;
    }
    for (const double x : {-30.0, 30.0}) {
        canvas.fill(ellipse({x, 4}, 8, 10), coat.dark);
        canvas.fill(circle({x + 2.6, 0.4}, 2.9), Qt::white);
    }
}

void scarf(Canvas &canvas, const Coat &coat)
{
    if (!coat.scarf.isValid())
        return;
    canvas.fill(outline("M-46 -6 C-30 12 30 12 46 -6 C52 4 50 16 42 22 C24 34 -24 34 -42 22 C-50 16 -52 4 -46 -6 Z"_L1),
                coat.scarf);
    canvas.fill(outline("M22 20 C30 40 30 58 24 78 L46 74 C50 54 46 36 38 18 Z"_L1), mix(coat.scarf, Qt::black, 0.12));
    canvas.stroke(outline("M25 66 L47 62"_L1), mix(coat.scarf, Qt::white, 0.35), 5, Qt::FlatCap);
}

void sitting(Canvas &canvas, const Coat &coat)
{
    // the tail, its tip in the colour of the bib
    const QPainterPath tail = outline(
        "M46 -2 C98 12 156 -14 164 -74 C168 -104 158 -132 140 -156 C132 -138 130 -124 120 -108 C104 -82 78 -74 48 -70 Z"_L1);
    canvas.fill(tail, coat.shade);
    {
        const auto clip = canvas.clipped(tail);
        canvas.fill(outline("M112 -170 C110 -120 118 -100 132 -98 C142 -96 142 -84 172 -84 L180 -170 Z"_L1), coat.bib);
    }
    canvas.fill(
        outline("M-64 0 C-92 -4 -92 -54 -66 -82 C-60 -116 -46 -146 -28 -164 L30 -164 C48 -146 62 -116 70 -82 C98 "
                "-54 98 -4 68 0 Z"_L1),
        coat.fur);
    canvas.fill(outline("M34 -70 C62 -76 92 -52 86 -18 C84 -6 78 0 68 0 L30 0 C24 -24 24 -48 34 -70 Z"_L1),
                ink(coat.shade.rgb(), 0.55));
    canvas.fill(
        outline("M-30 -160 C-40 -112 -34 -70 -26 -40 C-22 -18 -20 -8 -20 0 L20 0 C20 -8 22 -18 26 -40 C34 -70 40 "
                "-112 30 -160 Z"_L1),
        coat.bib);
    // front legs in dark socks
    const QPainterPath leg = outline("M-30 -62 C-34 -40 -34 -20 -38 -6 C-38 2 -6 2 -5 -4 C-6 -26 -6 -46 -8 -66 Z"_L1);
    canvas.fill(leg, mix(coat.fur, Qt::white, 0.04));
    canvas.fill(mirrored(leg), coat.fur);
    const QPainterPath sock =
        outline("M-36 -22 C-37 -14 -38 -10 -38 -6 C-38 2 -6 2 -5 -4 L-5 -22 C-14 -16 -26 -16 -36 -22 Z"_L1);
    canvas.fill(sock, coat.dark);
    canvas.fill(mirrored(sock), coat.dark);
    {
        const auto neck = canvas.placed({0, -158});
        scarf(canvas, coat);
    }
    const auto top = canvas.placed({0, -216});
    head(canvas, coat, false);
}

void walking(Canvas &canvas, const Coat &coat)
{
    const QPainterPath tail = outline("M-96 -92 C-140 -70 -178 -72 -214 -104 C-226 -116 -236 -118 -248 -116 C-234 -86 "
                                      "-206 -52 -166 -46 C-136 -42 -110 "
                                      "-52 -92 -66 Z"_L1);
    canvas.fill(tail, coat.shade);
    {
        const auto clip = canvas.clipped(tail);
        canvas.fill(
            outline("M-260 -130 L-206 -130 C-198 -108 -204 -92 -192 -84 C-200 -74 -196 -64 -206 -50 L-260 -50 Z"_L1),
            coat.bib);
    }
    const QPainterPath far = outline("M-70 -60 C-72 -40 -80 -20 -84 0 L-66 0 C-58 -20 -50 -40 -46 -62 Z"_L1);
    canvas.fill(far, coat.shade);
    canvas.fill(outline("M40 -62 C52 -40 58 -20 60 0 L78 0 C78 -24 74 -46 66 -66 Z"_L1), coat.shade);
    canvas.fill(
        outline("M-100 -74 C-106 -112 -70 -126 -30 -122 C10 -120 40 -132 70 -128 C98 -118 96 -70 66 -56 C30 -42 -40 "
                "-44 -74 -50 C-92 -54 -98 -62 -100 -74 Z"_L1),
        coat.fur);
    canvas.fill(outline("M-60 -50 C-20 -40 36 -42 66 -56 C80 -62 86 -74 88 -86 C60 -66 -20 -58 -60 -50 Z"_L1),
                coat.bib);
    const QPainterPath near = outline("M-100 -80 C-104 -50 -112 -26 -110 0 L-90 0 C-84 -24 -66 -44 -58 -70 Z"_L1);
    canvas.fill(near, coat.fur);
    canvas.fill(outline("M-111 -22 L-110 0 L-90 0 L-84 -18 Z"_L1), coat.dark);
    canvas.fill(outline("M22 -70 C30 -44 30 -20 26 0 L46 0 C56 -22 62 -46 60 -74 Z"_L1), coat.fur);
    canvas.fill(outline("M28 -20 C28 -12 27 -6 26 0 L46 0 L52 -16 Z"_L1), coat.dark);
    const auto top = canvas.placed({92, -138}, 0.72, 4);
    {
        const auto neck = canvas.placed({-14, 48}, 0.9);
        scarf(canvas, coat);
    }
    head(canvas, coat, false);
}

} // namespace

void sittingFox(Canvas &canvas, QPointF at, double height, const Coat &coat, bool left)
{
    const auto placed = left ? canvas.mirrored(at, height / 306) : canvas.placed(at, height / 306);
    sitting(canvas, coat);
}

void walkingFox(Canvas &canvas, QPointF at, double height, const Coat &coat, bool left)
{
    const auto placed = left ? canvas.mirrored(at, height / 204) : canvas.placed(at, height / 204);
    walking(canvas, coat);
}

void sleepingFox(Canvas &canvas, QPointF at, double width, const Coat &coat)
{
    const auto placed = canvas.placed(at, width / 260);
    canvas.fill(outline("M-118 -2 C-140 -50 -96 -112 -20 -118 C70 -124 128 -76 122 -30 C120 -10 112 0 96 0 Z"_L1),
                coat.fur);
    canvas.fill(outline("M30 -112 C90 -100 126 -66 122 -30 C120 -10 112 0 96 0 L40 0 C84 -26 80 -78 30 -112 Z"_L1),
                ink(coat.shade.rgb(), 0.5));
    {
        const auto top = canvas.placed({-58, -56}, 0.68, -14);
        head(canvas, coat, true);
    }
    const QPainterPath tail = outline(
        "M110 -6 C124 -40 92 -44 50 -36 C0 -28 -44 -32 -82 -24 C-108 -18 -110 -2 -96 4 C-40 8 60 8 110 -6 Z"_L1);
    canvas.fill(tail, coat.shade);
    const auto clip = canvas.clipped(tail);
    canvas.fill(outline("M-120 -40 L-58 -40 C-44 -24 -58 -14 -46 10 L-120 12 Z"_L1), coat.bib);
}

} // namespace vexal::sample
