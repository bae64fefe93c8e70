#include "country.h"

#include "fox.h"
#include "land.h"
#include "lantern.h"
#include "printing.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::fox {

namespace {

Leaf halfTitle()
{
    const QRectF whole(0, 0, page.width(), page.height());
    Sheet sheet{page, paper(), {}};
    sheet.add(u"sky"_s, [whole](Canvas &c) {
        sky(c, whole, {ink(0x15224C), ink(0x1B2F5C), ink(0x26466E)});
        stars(c, {0, 0, 1360, 1500}, 260, 11, night().star);
    });
    sheet.add(u"moon"_s, [](Canvas &c) {
        moon(c, {680, 700}, 390, {ink(0xF9E2A6), ink(0xECCB86), ink(0xF9E2A6, 0.08)});
    });
    sheet.add(u"hills"_s, [whole](Canvas &c) {
        hills(c, whole, 1130, 70, 5, ink(0x2C5661), ink(0x1E4655));
        hills(c, whole, 1240, 40, 8, ink(0x1D4450), ink(0x14303A));
    });
    sheet.add(u"firs"_s, [](Canvas &c) {
        fir(c, {90, 1250}, 300, ink(0x16363F));
        fir(c, {236, 1230}, 190, ink(0x16363F));
        fir(c, {1180, 1236}, 250, ink(0x16363F));
        fir(c, {1296, 1250}, 340, ink(0x16363F));
    });
    sheet.add(u"fox"_s, [](Canvas &c) { sittingFox(c, {650, 1216}, 560); });
    sheet.add(u"meadow"_s, [](Canvas &c) { meadow(c, {0, 1230, 1360, 60}, 26, 21, ink(0x12303A), {}); });
    sheet.add(u"title"_s, setLines({680, 1480}, {Face::SchoolbookBold, 128, cream()}, {u"The Lantern Fox"_s}));
    sheet.add(u"by"_s,
              setLines({680, 1570}, {Face::SchoolbookItalic, 46, ink(0xD9C79A), 10}, {u"Ida Morrow  ·  Sol Ekberg"_s}));
    return {.label = u"i"_s, .ours = sheet, .printed = true};
}

Leaf title()
{
    Sheet sheet{page, paper(), {}};
    sheet.add(u"the"_s, setLines({680, 420}, {Face::SchoolbookItalic, 74, ink(0x8A4B2C)}, {u"The"_s}));
    sheet.add(u"title"_s, setLines({680, 560}, {Face::SchoolbookBold, 142, black()}, {u"Lantern Fox"_s}));
    sheet.add(u"rule"_s, [](Canvas &c) {
        c.stroke(outline("M470 640 H640 M720 640 H890"_L1), ink(0xB98B4E), 3, Qt::FlatCap);
        c.fill(star({680, 640}, 17, 7, 4), ink(0xE0A03C));
    });
    sheet.add(u"fox"_s, [](Canvas &c) {
        c.fill(ellipse({690, 1130}, 300, 26), ink(0xE9DFC8));
        lantern(c, {944, 966}, 120);
        walkingFox(c, {640, 1130}, 330);
    });
    sheet.add(u"words"_s, setLines({680, 1296}, {Face::Schoolbook, 44, black()},
                                   {u"told by Ida Morrow"_s, u"with pictures by Sol Ekberg"_s}, Align::Centre, 1.5));
    sheet.add(u"imprint"_s, [](Canvas &c) { imprint(c, {680, 1556}, 96, ink(0x8A4B2C)); });
    return {.label = u"ii"_s, .ours = sheet, .printed = true};
}

Leaf imprintPage()
{
    Sheet sheet{page, paper(), {}};
    sheet.add(u"lantern"_s, [](Canvas &c) { lantern(c, {680, 250}, 190); });
    sheet.add(u"dedication"_s, setLines({680, 590}, {Face::SchoolbookItalic, 52, black()},
                                        {u"For everyone who is late"_s, u"and still comes."_s}));
    sheet.add(u"legal"_s, setLines({236, 1130}, {Face::Schoolbook, 30, ink(0x3A3330)},
                                   {u"First published by Lantern House, Hollow Hill."_s,
                                    u"Third printing, autumn 2026."_s, u"Words © Ida Morrow. Pictures © Sol Ekberg."_s,
                                    u"All rights kept. No part of this book may be copied, stored"_s,
                                    u"or sent on without a kind letter and an answer."_s,
                                    u"Printed and bound by Ostrel Print on paper from"_s,
                                    u"forests that are planted again."_s, u"Catalogue number LH 2231-03."_s},
                                   Align::Left, 1.5));
    sheet.add(u"line"_s,
              setLines({236, 1560}, {Face::Schoolbook, 30, ink(0x3A3330), 60}, {u"10 9 8 7 6 5 4 3"_s}, Align::Left));
    sheet.add(u"folio"_s, setLines({680, 1646}, {Face::Schoolbook, 27, ink(0x5D5550)}, {u"1"_s}));

    const Change stop{.kind = u"words"_s,
                      .severity = u"low"_s,
                      .title = u"The full stop after “again” is gone"_s,
                      .before = u"planted again."_s,
                      .after = u"planted again"_s,
                      .on = {u"legal:again"_s},
                      .make = [](Sheet &s) { s.respell(u"legal"_s, u"again."_s, u"again"_s); }};
    const Change printing{.kind = u"expected"_s,
                          .severity = u"low"_s,
                          .title = u"Third printing, where the last print says second"_s,
                          .before = u"Second printing, spring 2024."_s,
                          .after = u"Third printing, autumn 2026."_s,
                          .on = {u"legal/2"_s},
                          .make = [](Sheet &s) { s.reword(u"legal"_s, 2, u"Second printing, spring 2024."_s); }};
    const Change line{.kind = u"expected"_s,
                      .severity = u"low"_s,
                      .title = u"The printer’s key begins with 3"_s,
                      .before = u"10 9 8 7 6 5 4 3 2"_s,
                      .after = u"10 9 8 7 6 5 4 3"_s,
                      .on = {u"line"_s},
                      .make = [](Sheet &s) { s.reword(u"line"_s, 1, u"10 9 8 7 6 5 4 3 2"_s); }};
    const Change old{
        .kind = {}, .severity = {}, .title = {}, .make = stop.make}; // the last print had no full stop either
    return {.label = u"1"_s,
            .ours = sheet,
            .changes = {stop},
            .edits = {printing, line, old},
            .printed = true,
            .flat = true};
}

} // namespace

QList<Leaf> frontMatter()
{
    return {halfTitle(), title(), imprintPage()};
}

} // namespace vexal::sample::fox
