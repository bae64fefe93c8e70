#include "titles.h"

#include "filing.h"
#include "land.h"
#include "people.h"
#include "printing.h"
#include "sea.h"
#include "sky.h"
#include "stickers.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

constexpr QSize page{2200, 1660};

void town(Canvas &c)
{
    sky(c, {0, 0, 2200, 1300}, {ink(0x1C2A52), ink(0x3F4F82), ink(0xB98AA0), ink(0xF3C9A8)});
    stars(c, {0, 0, 2200, 700}, 160, 981, ink(0xFFF3D8));
    moon(c, {1840, 270}, 120, {ink(0xFBEBCB), ink(0xE3C795), ink(0xFBEBCB, 0.12), true});
    hills(c, {0, 0, 2200, 1300}, 800, 60, 982, ink(0x8C93BC), ink(0x7A82AE));
    for (int i = 0; i < 15; ++i)
        fir(c, {90.0 + 150 * i, 900 + (i % 3) * 18.0}, 210, ink(0x4A5A86));
    quay(c, {560, 1130}, 1040,
         {ink(0xC8643C), ink(0xE3C07E), ink(0x7F93A6), ink(0xB5536A), ink(0xEBDCC0), ink(0x8E5A6E), ink(0xD98A4A),
          ink(0x5E7F8A)},
         ink(0x4A3A52), ink(0xFFE39A));
    quay(c, {1660, 1130}, 1040,
         {ink(0x8E5A6E), ink(0xEBDCC0), ink(0xC8503A), ink(0x6A8A92), ink(0xE3B25A), ink(0xA9687A), ink(0xD9CBB0),
          ink(0xC8643C)},
         ink(0x4A3A52), ink(0xFFE39A));
    c.fill(box({0, 1120, 2200, 560}), ink(0xE9EDF5));
    c.fill(outline("M0 1150 C400 1120 800 1170 1200 1140 C1600 1116 1900 1160 2200 1130 V1210 H0 Z"_L1), ink(0xF6F8FC));
}

void street(Canvas &c)
{
    c.stroke(outline("M-10 1392 H2210 M-10 1420 H2210"_L1), ink(0x8A93A8), 7);
    c.stroke(outline("M-10 1012 C700 1040 1500 1040 2210 1012"_L1), ink(0x23283C), 4);
    tram(c, {1010, 1412}, 1010, ink(0xB5302F), ink(0xFFE9B0));
    c.fill(outline("M0 1470 C500 1440 900 1500 1400 1460 C1800 1440 2000 1480 2200 1450 V1670 H0 Z"_L1), Qt::white);
    roundTree(c, {180, 1480}, 420, ink(0xDDE6F2), ink(0x5A4A52));
    fir(c, {2040, 1510}, 470, ink(0x3F6B62));
    for (const QPointF at :
         {QPointF(2000, 1400), QPointF(2080, 1430), QPointF(2040, 1300), QPointF(2010, 1230), QPointF(2066, 1180)})
        glow(c, at, 34, ink(0xFFD985, 0.95));
    Dice dice(983);
    for (int i = 0; i < 260; ++i)
        c.fill(circle({dice.between(0, 2200), dice.between(0, 1560)}, dice.between(2, 7)),
               ink(0xFFFFFF, dice.between(0.4, 0.95)));
}

Sheet calendar()
{
    Sheet sheet{page, Qt::white, {}};
    sheet.add(u"town"_s, town);
    sheet.add(u"street"_s, street);
    Dice dice(984);
    for (int i = 1; i <= 24; ++i) {
        const int cell = (i * 7) % 24;
        const int row = cell / 6;
        const QPointF at(150.0 + 340 * (cell % 6) + dice.between(0, 120), 330.0 + 270 * row + dice.between(0, 90));
        const QString number = QString::number(i);
        sheet.add(u"door %1"_s.arg(i), [at](Canvas &c) {
            QPen dashes(ink(0xFFFFFF, 0.9), 4, Qt::CustomDashLine, Qt::FlatCap);
            dashes.setDashPattern({2.4, 1.8});
            c.fill(box({at.x(), at.y(), 124, 140}, 10), ink(0x232B52, 0.58));
            c.stroke(box({at.x(), at.y(), 124, 140}, 10), dashes);
        });
        sheet.add(u"number %1"_s.arg(i), setLines(at + QPointF(62, 94), {Face::BookmanDemi, 62, Qt::white}, {number}));
    }
    sheet.add(u"title"_s, setLines({760, 200}, {Face::BookmanDemiItalic, 140, ink(0xFFF3D8)}, {u"The Winter Tram"_s}));
    sheet.add(u"line"_s,
              setLines({1700, 1616}, {Face::Bookman, 38, ink(0x4A5A86), 80}, {u"TWENTY-FOUR STOPS TO CHRISTMAS"_s}));
    return sheet;
}

FileItem item()
{
    FileItem file;
    file.id = u"tram"_s;
    file.po = u"PO 2247"_s;
    file.title = u"The Winter Tram"_s;
    file.component = u"Advent calendar"_s;
    file.supplier = u"Tarnwick Cards"_s;
    file.filename = u"LH2247-winter-tram.pdf"_s;
    file.kind = u"calendar"_s;
    file.sender = u"Silje"_s;
    file.received = moment(20, 15, 20);
    file.links = filed(u"wt2247p1"_s, u"po-2247"_s, u"Winter-Tram.indd"_s);
    file.refs = {sent(u"Winter-Tram-calendar.pdf"_s, u"wt2247s"_s)};
    file.summary = u"Door 19 is missing."_s;
    file.status = u"new"_s;
    file.rev = 1;
    return file;
}

} // namespace

FilePlan winterTram()
{
    const Change door{.kind = u"words"_s,
                      .severity = u"high"_s,
                      .title = u"There is no door 19, and 16 stands twice"_s,
                      .before = u"19"_s,
                      .after = u"16"_s,
                      .on = {u"number 19"_s},
                      .make = [](Sheet &s) { s.reword(u"number 19"_s, 1, u"16"_s); }};
    const Change passed{.kind = u"pass"_s, .severity = u"low"_s, .title = u"All 24 perforation lines are there"_s};
    return {item(), {{.label = {}, .ours = calendar(), .changes = {door, passed}}}, {}};
}

} // namespace vexal::sample
