#include "leaves.h"

#include "land.h"
#include "people.h"
#include "post.h"
#include "sea.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::slow {

namespace {

const QColor sepia = ink(0x5B4632);

void island(Canvas &c)
{
    sky(c, {0, 0, 2240, 1640}, {ink(0xBBDAD6), ink(0x9CC8C8)});
    for (int row = 0; row < 14; ++row)
        for (int i = 0; i < 13; ++i)
            c.stroke(outline("M0 0 C14 -14 30 -14 44 0 C58 14 74 14 88 0"_L1)
                         .translated(180.0 * i + (row % 2) * 90 - 30, 120.0 * row + 40),
                     ink(0xFFFFFF, 0.28), 4);
    const QPainterPath coast = outline("M300 620 C250 430 420 300 640 330 C800 350 880 220 1080 230 C1300 240 1380 340 "
                                       "1560 320 C1800 296 1960 420 1940 640 "
                                       "C1930 760 2010 860 1960 1010 C1900 1200 1700 1180 1560 1290 C1400 1400 1200 "
                                       "1330 1040 1370 C860 1420 720 1440 580 1340 "
                                       "C420 1240 300 1200 290 1010 C284 860 340 770 300 620 Z"_L1);
    c.stroke(coast, ink(0xFFFFFF, 0.35), 76);
    c.stroke(coast, ink(0xFFFFFF, 0.5), 38);
    c.fill(coast, ink(0xF0DFAE));
    const auto clip = c.clipped(coast);
    c.fill(outline("M330 640 C420 420 760 420 900 520 C1060 420 1500 380 1720 520 C1960 620 1880 980 1700 1100 C1500 "
                   "1240 1100 1240 860 1280 C600 1320 330 1160 "
                   "330 960 Z"_L1),
           ink(0xC9D396));
    c.fill(ellipse({720, 900}, 220, 110), ink(0xB4C680));
    c.fill(ellipse({1500, 900}, 250, 120), ink(0xB4C680));
    c.fill(outline("M980 760 C1080 700 1220 740 1240 820 C1250 890 1100 930 1010 890 C950 860 930 800 980 760 Z"_L1),
           ink(0x7DB6C4));
    c.stroke(outline("M1180 880 C1240 980 1180 1080 1260 1180 C1300 1240 1280 1300 1290 1400"_L1), ink(0x7DB6C4), 20);
}

void sights(Canvas &c)
{
    mountain(c, {1500, 640}, 330, ink(0x9C8E86));
    mountain(c, {1690, 680}, 260, ink(0xAA9B90));
    mountain(c, {1350, 660}, 220, ink(0xB0A297));
    for (const auto &[x, y] : {std::pair(560, 600), std::pair(620, 640), std::pair(500, 650), std::pair(690, 590),
                               std::pair(590, 700), std::pair(740, 660)})
        fir(c, QPointF(x, y), 110, ink(0x5E8A62));
    for (const auto &[x, y] : {std::pair(1540, 1010), std::pair(1640, 980), std::pair(1610, 1060)})
        roundTree(c, QPointF(x, y), 130, ink(0x86A858), ink(0x6B4A34), ink(0xD9603C));
    house(c, {430, 990}, 110, ink(0xFBEFD8), ink(0xC8643C), ink(0xFFF0B8));
    house(c, {540, 1030}, 140, ink(0xF6E3C0), ink(0xA9483A), ink(0xFFF0B8));
    mill(c, {820, 1120}, 200, ink(0xEBDCC0), ink(0xA9683C), ink(0x5B4632));
    lighthouse(c, {1830, 1110}, 260, ink(0xFBF4E6), ink(0xC8503A));
    sailboat(c, {2080, 560}, 150, ink(0xC8643C), ink(0xFBF1DC), ink(0x3F7C78));
    sailboat(c, {170, 1330}, 120, ink(0x3F5C7A), ink(0xFBF1DC), ink(0xE6A23C));
}

Sheet mapSheet()
{
    Sheet sheet{{2240, 1640}, Qt::white, {}};
    sheet.add(u"island"_s, island);
    sheet.add(u"route"_s, [](Canvas &c) {
        QPen dashes(ink(0xC8503A), 9, Qt::CustomDashLine, Qt::RoundCap);
        dashes.setDashPattern({0.2, 2.2});
        c.stroke(
            outline(
                "M560 1040 C660 1140 700 1160 800 1140 C960 1100 900 960 980 940 C1140 900 1300 1000 1400 900 C1480 820 1400 740 1480 660"_L1),
            dashes);
    });
    sheet.add(u"sights"_s, sights);
    sheet.add(u"snail 1"_s, [](Canvas &c) { postSnail(c, {1070, 1010}, 190, ink(0xD98F52), ink(0xBFA76A)); });
    sheet.add(u"snail 2"_s, [](Canvas &c) { postSnail(c, {700, 1246}, 150, ink(0x9C6FA0), ink(0xBFA76A)); });
    sheet.add(u"balloon"_s, [](Canvas &c) { balloon(c, {1210, 560}, 330, ink(0xF2B84B), ink(0xD1503B)); });
    sheet.add(u"compass"_s, [](Canvas &c) { compass(c, {2040, 1390}, 120, sepia, ink(0xC8503A)); });
    sheet.add(u"cartouche"_s, [](Canvas &c) {
        c.fill(box({96, 70, 900, 226}, 24), ink(0xFBF2DA));
        c.stroke(box({112, 86, 868, 194}, 16), sepia, 4);
    });
    sheet.add(u"title"_s, setLines({546, 186}, {Face::PalladioBold, 82, sepia}, {u"The Slow Post Road"_s}));
    sheet.add(u"subtitle"_s, setLines({546, 246}, {Face::PalladioItalic, 40, ink(0x9A5A3C)},
                                      {u"nine letters · two snails · one very patient balloon"_s}));
    const Type label{Face::PalladioItalic, 38, sepia};
    sheet.add(u"mountains"_s, setLines({1520, 716}, label, {u"The Mountains of Maybe"_s}));
    sheet.add(u"wood"_s, setLines({620, 750}, label, {u"Firth Wood"_s}));
    sheet.add(u"village"_s, setLines({500, 1086}, label, {u"Hollow Hill"_s}));
    sheet.add(u"lake"_s, setLines({1100, 826}, {Face::PalladioItalic, 30, ink(0x2F5F6E)}, {u"Long Pond"_s}));
    sheet.add(u"light"_s, setLines({1800, 1166}, label, {u"Last Light"_s}));
    sheet.add(u"orchard"_s, setLines({1580, 1116}, label, {u"The Orchard"_s}));
    return sheet;
}

} // namespace

Leaf map()
{
    const Change orchard{.kind = u"hidden"_s,
                         .severity = u"high"_s,
                         .title = u"“The Orchard” lies under the art"_s,
                         .detail = u"The words are in the file, but the island is painted over them: nothing of them "
                                   u"will print. On our page they stand on the "
                                   u"grass south of the apple trees, between the mill road and Last Light, and letter "
                                   u"six sends the reader to look for them "
                                   u"there, so without them the sixth letter has no answer. The layer order of the "
                                   u"supplier’s file puts the art last; ours "
                                   u"puts the labels last."_s,
                         .before = u"The Orchard"_s,
                         .after = u"(covered)"_s,
                         .on = {u"orchard"_s},
                         .make = [](Sheet &s) { s.bury(u"orchard"_s, u"island"_s); }};
    const Change snail{.kind = u"picture"_s,
                       .severity = u"medium"_s,
                       .title = u"The second snail has turned from plum to green"_s,
                       .on = {u"snail 2"_s},
                       .make =
                           [](Sheet &s) {
                               s.replace(u"snail 2"_s, [](Canvas &c) {
                                   postSnail(c, {700, 1246}, 150, ink(0x6FA06A), ink(0xBFA76A));
                               });
                           },
                       .verdict = {u"issue"_s, who::lin(), moment(19, 9, 48)}};
    const Change spelling{.kind = u"words"_s,
                          .severity = u"medium"_s,
                          .title = u"“Maybe” is written twice over"_s,
                          .before = u"The Mountains of Maybe"_s,
                          .after = u"The Mountains of Maybee"_s,
                          .on = {u"mountains:Maybee"_s},
                          .ours = {u"mountains:Maybe"_s},
                          .make = [](Sheet &s) { s.respell(u"mountains"_s, u"Maybe"_s, u"Maybee"_s); },
                          .verdict = {u"issue"_s, who::teo(), moment(19, 10, 2)}};
    return {.label = u"Map"_s, .ours = mapSheet(), .changes = {orchard, snail, spelling}};
}

} // namespace vexal::sample::slow
