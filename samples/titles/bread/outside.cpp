#include "leaves.h"

#include "bread.h"
#include "land.h"
#include "people.h"
#include "printing.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::bread {

namespace {

const QColor crust = ink(0xC9803C);
const QColor brown = ink(0x5A2F1A);

} // namespace

Leaf front()
{
    Sheet sheet{page, ink(0xF5C766), {}};
    sheet.add(u"sky"_s, [](Canvas &c) {
        sky(c, whole, {ink(0xF4BE5A), ink(0xF8D27E), ink(0xFCEBB8)});
        for (int i = 0; i < 24; ++i) {
            const auto turned = c.placed({680, 1040}, 1, 15.0 * i);
            c.fill(polygon({{-54, -1500}, {54, -1500}, {0, 0}}), ink(0xFFF1C4, 0.32));
        }
        cloud(c, {210, 700}, 330, ink(0xFFFFFF, 0.7));
        cloud(c, {1180, 640}, 300, ink(0xFFFFFF, 0.65));
    });
    sheet.add(u"hills"_s, [](Canvas &c) {
        hills(c, whole, 1130, 50, 901, ink(0xA9BE6A), ink(0x8BAA58));
        for (int i = 0; i < 15; ++i)
            wheat(c, {40.0 + 92 * i, 1290 + (i % 3) * 16.0}, 200, ink(0xDDA33E), -14.0 + 9 * (i % 4));
        hills(c, whole, 1290, 36, 902, ink(0x86A858), ink(0x54803F));
    });
    sheet.add(u"steam"_s, [](Canvas &c) { steam(c, {690, 720}, 170, ink(0xFFFFFF, 0.5)); });
    sheet.add(u"loaf"_s, [](Canvas &c) { loaf(c, {680, 1270}, 920, crust); });
    sheet.add(u"ladder"_s, [](Canvas &c) { ladder(c, {1080, 1330}, {960, 880}, 58, ink(0x8A5A34)); });
    sheet.add(u"village"_s, [](Canvas &c) {
        house(c, {170, 1340}, 150, ink(0xFBEFD8), ink(0xB5532F), ink(0xFFF0B8));
        house(c, {330, 1380}, 180, ink(0xF3DDB4), ink(0x8A4B2C), ink(0xFFF0B8));
        house(c, {1210, 1380}, 170, ink(0xFBEFD8), ink(0xB5532F), ink(0xFFF0B8));
        roundTree(c, {480, 1380}, 170, ink(0x5E8E48), ink(0x5A3A28));
        roundTree(c, {1060, 1400}, 130, ink(0x5E8E48), ink(0x5A3A28));
        meadow(c, {0, 1400, 1360, 250}, 60, 903, ink(0x4A7438), ink(0xFBEBD0));
    });
    sheet.add(u"title"_s, setLines({680, 236}, {Face::BookmanDemi, 150, brown}, {u"Bread"_s}));
    sheet.add(u"title 2"_s, setLines({680, 410}, {Face::BookmanDemi, 150, brown}, {u"for the Giant"_s}));
    sheet.add(u"by"_s, setLines({680, 510}, {Face::BookmanItalic, 54, ink(0x8A4B2C)}, {u"Petra Oakes"_s}));
    sheet.add(u"ribbon"_s, [](Canvas &c) {
        medal(c, {1150, 1560}, 96, {u"HOLLOW HILL"_s, u"BOOK PRIZE"_s, ink(0xE3B44E), brown});
    });
    sheet.add(u"prize"_s, setLines({1150, 1578}, {Face::BookmanDemi, 52, brown}, {u"1st"_s}));

    const Change spot{
        .kind = u"spots"_s,
        .severity = u"medium"_s,
        .title = u"The medal’s spot gold is built from process inks"_s,
        .detail = u"Ours names a fifth plate, Gold 871-L; this page has four plates, and the medal is duller for it."_s,
        .before = u"C M Y K + Gold 871-L"_s,
        .after = u"C M Y K"_s,
        .on = {u"ribbon"_s},
        .make =
            [](Sheet &s) {
                s.replace(u"ribbon"_s, [](Canvas &c) {
                    medal(c, {1150, 1560}, 96, {u"HOLLOW HILL"_s, u"BOOK PRIZE"_s, ink(0xC29A52), brown});
                });
            },
        .verdict = {u"issue"_s, who::mira(), moment(18, 10, 12)}};
    const Change prize{.kind = u"expected"_s,
                       .severity = u"low"_s,
                       .title = u"The prize medal is new on the cover"_s,
                       .on = {u"ribbon"_s, u"prize"_s},
                       .make = [](Sheet &s) {
                           s.remove(u"ribbon"_s);
                           s.remove(u"prize"_s);
                       }};
    return {.label = u"C1"_s, .ours = sheet, .changes = {spot}, .edits = {prize}, .printed = true};
}

Leaf back()
{
    const QString number = u"200406221906"_s;
    Sheet sheet{page, ink(0xF5C766), {}};
    sheet.add(u"sky"_s, [](Canvas &c) {
        sky(c, whole, {ink(0xF4BE5A), ink(0xF8D27E), ink(0xFCEBB8)});
        hills(c, whole, 1360, 40, 906, ink(0xA9BE6A), ink(0x7EA052));
        hills(c, whole, 1470, 30, 907, ink(0x86A858), ink(0x54803F));
        slice(c, {680, 290}, 230, crust, -6);
    });
    sheet.add(u"blurb"_s, setLines({680, 560}, {Face::Bookman, 52, brown},
                                   {u"There is a giant on the hill,"_s, u"and he is coming to tea."_s, QString(),
                                    u"It took the whole village,"_s, u"nine sacks of flour and one very long ladder"_s,
                                    u"to bake a loaf that would do."_s},
                                   Align::Centre, 1.5));
    sheet.add(u"praise"_s, setLines({680, 1110}, {Face::BookmanItalic, 42, ink(0x8A4B2C)},
                                    {u"“Warm in the middle.” — The Hollow Hill Post"_s}));
    sheet.add(u"barcode"_s, [number](Canvas &c) { barcode(c, {960, 1440}, 2.4, number + checkDigit(number)); });
    sheet.add(u"price"_s, setLines({950, 1650}, {Face::SansMedium, 27, Qt::white}, {u"€ 14.50"_s}, Align::Left));
    sheet.add(u"imprint"_s, [](Canvas &c) { imprint(c, {250, 1590}, 110, ink(0xFBF4E2)); });
    const Change face{.kind = u"fonts"_s,
                      .severity = u"low"_s,
                      .title = u"The praise is set in Nimbus Roman Italic"_s,
                      .before = u"URWBookman-LightItalic"_s,
                      .after = u"NimbusRoman-Italic"_s,
                      .on = {u"praise"_s},
                      .make = [](Sheet &s) { s.reface(u"praise"_s, Face::RomanItalic); },
                      .verdict = {u"fine"_s, who::mira(), moment(18, 10, 14)}};
    const Change code{.kind = u"pass"_s,
                      .severity = u"low"_s,
                      .title = u"The barcode reads as ours"_s,
                      .detail = number + checkDigit(number),
                      .on = {u"barcode"_s}};
    const Change price{.kind = u"expected"_s,
                       .severity = u"low"_s,
                       .title = u"The price rose to € 14.50"_s,
                       .before = u"€ 12.50"_s,
                       .after = u"€ 14.50"_s,
                       .on = {u"price"_s},
                       .make = [](Sheet &s) { s.reword(u"price"_s, 1, u"€ 12.50"_s); }};
    // the last print had that mistake too
    const Change old{
        .kind = {}, .severity = {}, .title = {}, .make = [](Sheet &s) { s.reface(u"praise"_s, Face::RomanItalic); }};
    return {.label = u"C4"_s, .ours = sheet, .changes = {face, code}, .edits = {price, old}, .printed = true};
}

} // namespace vexal::sample::bread
