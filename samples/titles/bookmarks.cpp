#include "titles.h"

#include "filing.h"
#include "fox.h"
#include "land.h"
#include "lantern.h"
#include "moth.h"
#include "owl.h"
#include "people.h"
#include "printing.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

constexpr QSize page{1520, 1700};

void add(Sheet &sheet, const QString &name, const QRectF &strip, Art art)
{
    sheet.add(name, [strip, art = std::move(art)](Canvas &c) {
        const auto frame = c.clipped(box(strip, 26));
        const auto placed = c.placed(strip.topLeft());
        art(c);
    });
}

void hole(Canvas &c)
{
    c.fill(circle({190, 74}, 30), Qt::white);
    c.stroke(circle({190, 74}, 30), ink(0x000000, 0.2), 2);
}

Sheet three()
{
    Sheet sheet{page, Qt::white, {}};
    const QRectF fox(130, 120, 380, 1460);
    const QRectF owls(570, 120, 380, 1460);
    const QRectF moths(1010, 120, 380, 1460);
    add(sheet, u"fox"_s, fox, [](Canvas &c) {
        sky(c, {0, 0, 380, 1460}, {ink(0x14214A), ink(0x24446B), ink(0x3D6478)});
        stars(c, {0, 0, 380, 900}, 80, 971, ink(0xFFF3D0));
        moon(c, {190, 420}, 118);
        hills(c, {0, 0, 380, 1460}, 1120, 34, 972, ink(0x2C5661), ink(0x16343C));
        fir(c, {70, 1190}, 210, ink(0x17404B));
        fir(c, {330, 1210}, 270, ink(0x17404B));
        lantern(c, {190, 640}, 150);
        sittingFox(c, {180, 1260}, 300);
        hole(c);
    });
    add(sheet, u"owl"_s, owls, [](Canvas &c) {
        sky(c, {0, 0, 380, 1460}, {ink(0x8A4A3C), ink(0xD98A5A), ink(0xF6D7A0)});
        moon(c, {190, 480}, 150, {ink(0xFBE6B8), ink(0xEBC07E), ink(0xFBE6B8, 0.14), true});
        hills(c, {0, 0, 380, 1460}, 1130, 30, 973, ink(0x8A4A3C), ink(0x5A2C2A));
        branch(c, {190, 850}, 460, ink(0x4A2620), ink(0xB5703A));
        owl(c, {190, 870}, 360);
        hole(c);
    });
    add(sheet, u"moth"_s, moths, [](Canvas &c) {
        sky(c, {0, 0, 380, 1460}, {ink(0x241136), ink(0x5A2450), ink(0xB5506A)});
        stars(c, {0, 0, 380, 900}, 70, 974, ink(0xFBE6CF));
        moth(c, {190, 520}, 340);
        for (const QPointF at : {QPointF(90, 760), QPointF(270, 830), QPointF(150, 930), QPointF(300, 1010)})
            littleMoth(c, at, 62, ink(0xF0D4A4), 20);
        hills(c, {0, 0, 380, 1460}, 1140, 26, 975, ink(0x4A1C42), ink(0x25102C));
        hole(c);
    });
    const Type motto{Face::SchoolbookItalic, 46, ink(0xFBEFD2)};
    sheet.add(u"motto 1"_s, setLines({320, 1470}, motto, {u"Read by"_s, u"lantern light"_s}, Align::Centre, 1.24));
    sheet.add(u"motto 2"_s, setLines({760, 1470}, motto, {u"One more"_s, u"chapter"_s}, Align::Centre, 1.24));
    sheet.add(u"motto 3"_s, setLines({1200, 1470}, motto, {u"Stay up"_s, u"a little"_s}, Align::Centre, 1.24));
    sheet.add(u"marks"_s, [](Canvas &c) {
        printMarks(c, page, {130, 120, 1260, 1460}, u"3 bookmarks · 52 × 200 mm · proof 3"_s);
    });
    return sheet;
}

Change capital()
{
    return {.kind = u"words"_s,
            .severity = u"medium"_s,
            .title = u"“lantern” has a capital letter"_s,
            .before = u"lantern light"_s,
            .after = u"Lantern light"_s,
            .on = {u"motto 1:Lantern"_s},
            .ours = {u"motto 1:lantern"_s},
            .make = [](Sheet &s) { s.respell(u"motto 1"_s, u"lantern"_s, u"Lantern"_s); }};
}

FileItem item()
{
    FileItem file;
    file.id = u"bookmarks"_s;
    file.filename = u"PO2244-bookmarks-proof-v3-FINAL(2).pdf"_s;
    file.received = moment(20, 11, 47);
    file.created = moment(20, 14, 57);
    file.refs = {sent(u"bookmarks-3-up.pdf"_s, u"bm2244s"_s)};
    file.status = u"new"_s;
    file.rev = 1;
    return file;
}

} // namespace

FilePlan bookmarks()
{
    return {item(), {{.label = {}, .ours = three(), .changes = {capital()}}}, {}, QRectF(110, 104, 860, 1106)};
}

} // namespace vexal::sample
