#include "portrait.h"

#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

void backHair(Canvas &canvas, const Sitter &sitter)
{
    if (!sitter.curls)
        return;
    canvas.fill(
        outline(
            "M140 300 C110 170 180 84 262 88 C350 88 406 168 376 296 C392 330 372 360 346 356 L170 356 C142 358 124 332 140 300 Z"_L1),
        sitter.hair);
    for (const QPointF &curl : {QPointF(150, 300), QPointF(150, 240), QPointF(164, 182), QPointF(204, 128),
                                QPointF(262, 106), QPointF(318, 128), QPointF(358, 182), QPointF(370, 244),
                                QPointF(366, 304), QPointF(340, 342), QPointF(178, 342)})
        canvas.fill(circle(curl, 38), sitter.hair);
}

void frontHair(Canvas &canvas, const Sitter &sitter)
{
    if (sitter.curls) {
        canvas.fill(outline("M182 226 C186 150 336 144 338 222 C320 186 290 176 262 180 C232 174 200 186 182 226 Z"_L1),
                    sitter.hair);
        for (const QPointF &curl : {QPointF(204, 176), QPointF(240, 160), QPointF(280, 158), QPointF(314, 174)})
            canvas.fill(circle(curl, 27), sitter.hair);
        return;
    }
    canvas.fill(
        outline(
            "M176 240 C164 150 200 108 268 112 C340 112 362 164 344 240 C338 214 330 200 318 190 C280 204 226 200 200 184 C188 200 180 216 176 240 Z"_L1),
        sitter.hair);
}

void features(Canvas &canvas, const Sitter &sitter)
{
    const QColor dark = ink(0x2A1D1A);
    for (const double x : {226.0, 294.0}) {
        canvas.fill(ellipse({x, 246}, 8.4, 10), dark);
        canvas.fill(circle({x + 3, 242}, 2.8), Qt::white);
        canvas.stroke(outline("M-16 0 Q0 -9 16 0"_L1).translated(x, 222), mix(sitter.hair, Qt::black, 0.2), 6);
    }
    canvas.stroke(outline("M260 252 C256 268 254 276 264 278"_L1), mix(sitter.skin, ink(0x7A3A24), 0.45), 5);
    for (const double x : {208.0, 312.0})
        canvas.fill(ellipse({x, 284}, 17, 11), ink(0xE5604A, 0.28));
    canvas.stroke(outline("M234 302 Q260 324 286 302"_L1), ink(0x9A3A34), 7);
    if (!sitter.glasses)
        return;
    canvas.stroke(circle({226, 248}, 28), ink(0x2F3A4A), 5.4);
    canvas.stroke(circle({294, 248}, 28), ink(0x2F3A4A), 5.4);
    canvas.stroke(outline("M254 246 Q260 240 266 246 M198 244 L180 238 M322 244 L340 238"_L1), ink(0x2F3A4A), 5.4);
}

} // namespace

void portrait(Canvas &canvas, double size, const Sitter &sitter)
{
    const auto placed = canvas.placed({0, 0}, size / 520);
    sky(canvas, {0, 0, 520, 520}, {mix(sitter.ground, Qt::white, 0.24), sitter.ground});
    canvas.fill(circle({410, 110}, 150), ink(0xFFFFFF, 0.1));
    backHair(canvas, sitter);
    canvas.fill(outline("M70 530 C76 430 150 398 222 388 L298 388 C370 398 444 430 450 530 Z"_L1), sitter.coat);
    canvas.fill(outline("M222 388 C232 424 288 424 298 388 L290 330 L230 330 Z"_L1),
                mix(sitter.skin, ink(0x8A4A30), 0.22));
    canvas.stroke(outline("M214 392 C230 436 290 436 306 392"_L1), mix(sitter.coat, Qt::white, 0.35), 12);
    for (const double x : {180.0, 340.0})
        canvas.fill(ellipse({x, 254}, 18, 25), mix(sitter.skin, ink(0x8A4A30), 0.12));
    const QPainterPath face =
        outline("M180 226 C176 150 344 150 340 226 C344 300 312 358 260 358 C208 358 176 300 180 226 Z"_L1);
    canvas.fill(face, sitter.skin);
    if (sitter.beard) {
        const auto clip = canvas.clipped(face);
        canvas.fill(
            outline(
                "M170 262 C196 296 216 284 236 290 C252 284 268 284 284 290 C304 284 324 296 350 262 L350 370 L170 370 Z"_L1),
            sitter.hair);
        canvas.fill(ellipse({260, 308}, 30, 15), sitter.skin);
    }
    frontHair(canvas, sitter);
    features(canvas, sitter);
}

} // namespace vexal::sample
