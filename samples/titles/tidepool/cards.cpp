#include "cards.h"

#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::tide {

namespace {

constexpr QSize card{1144, 1600};
constexpr QRectF whole{0, 0, 1144, 1600};

void bubbles(Canvas &canvas, quint64 seed, const QColor &colour)
{
    Dice dice(seed);
    for (int i = 0; i < 22; ++i) {
        const QPointF at(dice.between(60, 1084), dice.between(90, 1240));
        const double radius = dice.between(7, 26);
        canvas.stroke(circle(at, radius), ink(colour.rgb(), 0.55), 3);
        canvas.fill(circle(at + QPointF(-0.3, -0.34) * radius, radius * 0.2), ink(colour.rgb(), 0.8));
    }
}

void weed(Canvas &canvas, double x, double height, const QColor &colour)
{
    for (int i = -1; i <= 1; ++i) {
        const double tall = height * (i == 0 ? 1 : 0.68);
        QPainterPath blade({x + 26.0 * i - 11, 1420});
        blade.cubicTo(x + 60.0 * i - 50, 1420 - tall * 0.4, x + 50.0 * i + 36, 1420 - tall * 0.7, x + 60.0 * i,
                      1420 - tall);
        blade.cubicTo(x + 50.0 * i + 66, 1420 - tall * 0.66, x + 50.0 * i - 8, 1420 - tall * 0.36, x + 26.0 * i + 15,
                      1420);
        blade.closeSubpath();
        canvas.fill(blade, i == 0 ? colour : mix(colour, Qt::black, 0.1));
    }
}

/// The pool that a creature lives in, by day or by night.
Art pool(const Motif &motif, bool night, quint64 seed)
{
    return [=](Canvas &c) {
        const QColor water = night ? mix(motif.water, ink(0x14284F), 0.82) : motif.water;
        const QColor sand = night ? ink(0x3A4570) : ink(0xF1DFB4);
        sky(c, whole, {mix(water, Qt::white, night ? 0.04 : 0.3), water, mix(water, ink(0x1E5A78), 0.22)});
        if (night)
            moon(c, {880, 250}, 84, {ink(0xFBEBC0), ink(0xE3CB8E), ink(0xFBEBC0, 0.1), true});
        else
            sun(c, {880, 250}, 84, ink(0xFFDF86));
        c.fill(circle({572, 742}, 412), ink(0xFFFFFF, night ? 0.07 : 0.3));
        c.fill(circle({572, 742}, 356), ink(0xFFFFFF, night ? 0.06 : 0.26));
        bubbles(c, seed, night ? ink(0xBFD6F2) : ink(0xFFFFFF));
        weed(c, 140, 420, night ? ink(0x2C5E6A) : ink(0x6FAE86));
        weed(c, 1016, 340, night ? ink(0x274F66) : ink(0x5E9E8E));
        c.fill(outline("M-10 1330 C200 1270 380 1360 600 1310 C820 1270 980 1300 1160 1330 V1610 H-10 Z"_L1), sand);
        c.fill(outline("M-10 1400 C240 1360 420 1430 660 1392 C860 1362 1020 1390 1160 1410 V1610 H-10 Z"_L1),
               mix(sand, Qt::white, night ? 0.08 : 0.4));
    };
}

} // namespace

QList<Motif> motifs()
{
    return {
        {u"Starfish"_s, starfish, {ink(0xE9673F), ink(0xFBC48E), ink(0xA83A22)}, ink(0x8FCFC8)},
        {u"Crab"_s, crab, {ink(0xD9482F), ink(0xF49A76), ink(0x96281C)}, ink(0xF3D9A4)},
        {u"Seahorse"_s, seahorse, {ink(0xEFA93A), ink(0xFBE0A0), ink(0xBE6F1E)}, ink(0x9FD3D8)},
        {u"Jellyfish"_s, jellyfish, {ink(0xC986C2), ink(0xF3CFE6), ink(0x7A4A86)}, ink(0xBFDCEA)},
        {u"Octopus"_s, octopus, {ink(0xB5538A), ink(0xF2B5C8), ink(0x6E2C5E)}, ink(0xA9D8CE)},
        {u"Whelk"_s, whelk, {ink(0xD98F62), ink(0xF8DDB8), ink(0x8A4A30)}, ink(0xC9E0D2)},
        {u"Scallop"_s, scallop, {ink(0xE98A7A), ink(0xFCDCC8), ink(0xA8483E)}, ink(0xB4DADB)},
        {u"Urchin"_s, urchin, {ink(0x6B4F9C), ink(0xC9B2E6), ink(0x43306E)}, ink(0xD9E4C0)},
        {u"Sergeant fish"_s, stripedFish, {ink(0xF2A33C), ink(0xFFF4DC), ink(0x2F4F6B)}, ink(0x9CCFE0)},
        {u"Pufferfish"_s, pufferfish, {ink(0xE3B23C), ink(0xFDF0CC), ink(0x8E6A1E)}, ink(0x8CC9CB)},
        {u"Anemone"_s, anemone, {ink(0xE0607E), ink(0xFBD0C4), ink(0x8E2F52)}, ink(0xB8DFD0)},
        {u"Coral"_s, coral, {ink(0xE9785A), ink(0xFCC9A0), ink(0xA8402E)}, ink(0xA8D6DF)},
        {u"Hermit crab"_s, hermitCrab, {ink(0xD8593A), ink(0xEFC58C), ink(0x8A3A26)}, ink(0xF0DDB0)},
        {u"Turtle"_s, turtle, {ink(0x7FAE62), ink(0xD2DDA0), ink(0x3F6B4A)}, ink(0x9BD0CF)},
        {u"Pearl oyster"_s, oyster, {ink(0x8E86A8), ink(0xE9DDEA), ink(0x55506E)}, ink(0xBBDDE0)},
    };
}

Art creature(const Motif &motif, bool night)
{
    return [motif, night](Canvas &c) {
        const auto placed = c.placed({572, 752}, 2.9, night ? 8 : 0);
        motif.paint(c, motif.skin);
    };
}

Sheet motifCard(const Motif &motif, bool night, int number)
{
    Sheet sheet{card, Qt::white, {}};
    sheet.add(u"pool"_s, pool(motif, night, 700 + static_cast<quint64>(number)));
    sheet.add(u"creature"_s, creature(motif, night));
    const QColor text = night ? ink(0xF6EBCF) : ink(0x2F4A52);
    sheet.add(u"name"_s, setLines({572, 1500}, {Face::BookmanDemi, 92, text}, {motif.name}));
    sheet.add(u"number"_s, setLines({90, 130}, {Face::BookmanDemi, 50, text}, {QString::number(number)}));
    return sheet;
}

Sheet backOfCard()
{
    Sheet sheet{card, ink(0xF8EEDA), {}};
    sheet.add(u"waves"_s, [](Canvas &c) {
        for (int row = 0; row < 26; ++row)
            for (int i = 0; i < 13; ++i) {
                const QPointF at(92.0 * i + (row % 2) * 46, 66.0 * row);
                for (const auto &[radius, colour] : {std::pair(48.0, ink(0xEBDCBA)), std::pair(36.0, ink(0xF8EEDA)),
                                                     std::pair(24.0, ink(0xEBDCBA)), std::pair(12.0, ink(0xF8EEDA))})
                    c.fill(circle(at, radius), colour);
            }
    });
    sheet.add(u"pool"_s, [](Canvas &c) {
        c.fill(circle({572, 700}, 410), ink(0xF8EEDA));
        c.fill(circle({572, 700}, 376), ink(0x4FA09E));
        c.fill(circle({572, 700}, 330), ink(0x6DB8B0));
        c.stroke(circle({572, 700}, 352), ink(0xF8EEDA), 4);
    });
    sheet.add(u"starfish"_s, [](Canvas &c) {
        const auto placed = c.placed({572, 716}, 2.5);
        starfish(c, {ink(0xEE7B4E), ink(0xFCD2A4), ink(0xA8402A)});
    });
    sheet.add(u"plate"_s, [](Canvas &c) {
        c.fill(box({182, 1176, 780, 262}, 44), ink(0xF8EEDA));
        c.stroke(box({200, 1194, 744, 226}, 32), ink(0x4FA09E), 5);
    });
    sheet.add(u"title"_s, setLines({572, 1320}, {Face::BookmanDemi, 132, ink(0x2F5F66)}, {u"Tidepool"_s}));
    sheet.add(u"line"_s, setLines({572, 1388}, {Face::Bookman, 44, ink(0xC0603A), 240}, {u"MEMORY"_s}));
    return sheet;
}

Sheet rules()
{
    Sheet sheet{card, ink(0xF8EEDA), {}};
    sheet.add(u"frame"_s, [](Canvas &c) {
        c.stroke(box({56, 56, 1032, 1488}, 44), ink(0x4FA09E), 6);
        const auto placed = c.placed({572, 236}, 0.9);
        whelk(c, {ink(0xD98F62), ink(0xF8DDB8), ink(0x8A4A30)});
    });
    sheet.add(u"title"_s, setLines({572, 460}, {Face::BookmanDemi, 84, ink(0x2F5F66)}, {u"How to play"_s}));
    sheet.add(u"rules"_s,
              setLines({150, 580}, {Face::Bookman, 43, ink(0x34424A)},
                       {u"Every creature lives here twice: once by"_s, u"day and once by night. Lay all thirty cards"_s,
                        u"face down, five rows of six."_s, QString(), u"Turn over two. If they are the same animal,"_s,
                        u"keep them and turn again. If not, turn"_s, u"them back and remember."_s, QString(),
                        u"Whoever holds the most when the pool is"_s, u"empty may name the next low tide."_s},
                       Align::Left, 1.46));
    sheet.add(u"ages"_s, setLines({572, 1390}, {Face::BookmanDemi, 36, ink(0xC0603A), 100},
                                  {u"2 TO 6 PLAYERS · AGES 4 AND UP"_s}));
    sheet.add(u"legal"_s, setLines({572, 1460}, {Face::Sans, 25, ink(0x6B6A62)},
                                   {u"Lantern House, Hollow Hill · LH 2224-30 · printed by Tarnwick Cards"_s}));
    return sheet;
}

} // namespace vexal::sample::tide
