#include "titles.h"

#include "carnival.h"
#include "filing.h"
#include "land.h"
#include "moth.h"
#include "people.h"
#include "printing.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

constexpr QSize sheetSize{2200, 1680};
constexpr QRectF trim{90, 90, 2020, 1500};
constexpr QRectF art{70, 70, 2060, 1540}; ///< With its bleed.
const QString number = u"200406182257"_s;

void add(Sheet &sheet, const QString &name, Art thing)
{
    sheet.add(name, [thing = std::move(thing)](Canvas &canvas) {
        const auto frame = canvas.clipped(box(art));
        thing(canvas);
    });
}

Art tentOn(QPointF at, double width, const QColor &stripe, const QColor &cloth)
{
    return [=](Canvas &c) { tent(c, at, width, stripe, cloth, ink(0xF2B84B)); };
}

void fairground(Sheet &sheet)
{
    add(sheet, u"sky"_s, [](Canvas &c) {
        sky(c, art, {ink(0x241136), ink(0x4A1F4F), ink(0x8A3658), ink(0xC9606A), ink(0xD98A6A)});
        stars(c, {70, 70, 2060, 760}, 190, 301, ink(0xFBE6CF));
        moon(c, {1100, 560}, 430, {ink(0xF3D9B1, 0.2), ink(0xE8A987, 0.16), ink(0xF6DFC0, 0.06), false});
    });
    add(sheet, u"wheel"_s, [](Canvas &c) {
        const QColor far = ink(0x5C2450);
        wheel(c, {1800, 900}, 210, far, QList<QColor>(12, ink(0x7A3058)));
        hills(c, art, 1090, 26, 303, ink(0x6B2A50), ink(0x4A1C42));
    });
    add(sheet, u"bulbs"_s, [](Canvas &c) {
        const QColor lit = ink(0xFFCF6B);
        const QColor wire = ink(0x1E0D28);
        bulbs(c, {60, 150}, {760, 120}, 90, lit, wire);
        bulbs(c, {760, 120}, {1440, 120}, 66, lit, wire);
        bulbs(c, {1440, 120}, {2140, 150}, 90, lit, wire);
    });
    const QColor cream = ink(0xF6E3C0);
    add(sheet, u"tent 1"_s, tentOn({250, 1200}, 300, ink(0x2F7F83), cream));
    add(sheet, u"tent 2"_s, tentOn({560, 1190}, 210, ink(0xB8374F), cream));
    add(sheet, u"tent 3"_s, tentOn({1650, 1200}, 270, ink(0xC2413F), cream));
    add(sheet, u"tent 4"_s, tentOn({1960, 1205}, 320, ink(0x45306E), ink(0xF0B65A)));
    add(sheet, u"bunting"_s, [](Canvas &c) {
        const QList<QColor> flags{ink(0xE6A23C), ink(0xC8464B), ink(0xF3DDB3), ink(0x2F7F83)};
        bunting(c, {250, 880}, {560, 970}, 34, flags, ink(0x1E0D28));
        bunting(c, {1650, 920}, {1960, 850}, 34, flags, ink(0x1E0D28));
    });
    add(sheet, u"moth"_s, [](Canvas &c) { moth(c, {1100, 690}, 1280); });
    add(sheet, u"little moths"_s, [](Canvas &c) {
        Dice dice(307);
        for (int i = 0; i < 16; ++i) {
            const QPointF at(dice.between(140, 2060), dice.between(330, 900));
            if (qAbs(at.x() - 1100) < 620)
                continue;
            littleMoth(c, at, dice.between(34, 66), ink(0xF0D4A4), dice.between(-50, 50));
        }
    });
}

void panel(Sheet &sheet)
{
    add(sheet, u"crowd"_s, [](Canvas &c) {
        crowd(c, {60, 1110, 2080, 130}, 305, ink(0x2A1130));
        c.fill(box({60, 1216, 2080, 420}), ink(0x25102C));
        c.fill(box({60, 1216, 2080, 7}), ink(0xD9A548));
    });
    sheet.add(u"title"_s, setLines({1110, 1404}, {Face::BookmanDemi, 162, ink(0xFBEBCB)}, {u"Moth Carnival"_s}));
    sheet.add(u"line"_s,
              setLines({1110, 1488}, {Face::Bookman, 44, ink(0xE9B965), 210}, {u"A PUZZLE BY CANDLELIGHT"_s}));
    sheet.add(u"medal"_s, [](Canvas &c) {
        medal(c, {290, 1400}, 150, {u"CUT IN THE OLD WAY"_s, u"LANTERN HOUSE"_s, ink(0xE9B44C), ink(0x4A2545)});
    });
    sheet.add(u"count"_s, setLines({290, 1414}, {Face::BookmanDemi, 84, ink(0x3B1A3C)}, {u"500"_s}));
    sheet.add(u"pieces"_s, setLines({290, 1452}, {Face::BookmanDemi, 29, ink(0x3B1A3C), 80}, {u"PIECES"_s}));
    sheet.add(u"barcode"_s, [](Canvas &c) { barcode(c, {1860, 1360}, 1.9, number + checkDigit(number)); });
    sheet.add(
        u"legal"_s,
        setLines(
            {1110, 1556}, {Face::Sans, 19, ink(0xC9A6A8), 20},
            {u"Ages 8 and up. Small parts; keep from children under 3. Finished size 68 × 49 cm. Made for Lantern House, Hollow Hill."_s}));
    sheet.add(u"marks"_s, [](Canvas &c) {
        printMarks(c, sheetSize, trim,
                   u"PO 2238   Moth Carnival, box lid   340 × 252 mm   CMYK + varnish   Lantern House"_s);
    });
}

QList<Change> changes()
{
    const QString wrong = u"200406182251"_s;
    const Change pieces{.kind = u"words"_s,
                        .severity = u"high"_s,
                        .title = u"“PIECES” reads “PEICES”"_s,
                        .detail = u"On the gold medal, lower left."_s,
                        .before = u"500 PIECES"_s,
                        .after = u"500 PEICES"_s,
                        .on = {u"pieces:PEICES"_s},
                        .ours = {u"pieces:PIECES"_s},
                        .make = [](Sheet &s) { s.respell(u"pieces"_s, u"PIECES"_s, u"PEICES"_s); }};
    const Change code{
        .kind = u"barcode"_s,
        .severity = u"high"_s,
        .title = u"The barcode holds another number"_s,
        .detail =
            u"The twelfth digit is a 1 where ours is a 7, and the check digit follows it: it scans, as another product."_s,
        .before = number + checkDigit(number),
        .after = wrong + checkDigit(wrong),
        .on = {u"barcode"_s},
        .make = [wrong](Sheet &s) {
            s.replace(u"barcode"_s, [wrong](Canvas &c) { barcode(c, {1860, 1360}, 1.9, wrong + checkDigit(wrong)); });
        }};
    const Change colour{.kind = u"picture"_s,
                        .severity = u"medium"_s,
                        .title = u"A tent changed color"_s,
                        .detail = u"The small tent on the left is teal here and red in ours."_s,
                        .on = {u"tent 2"_s},
                        .make = [](Sheet &s) {
                            s.replace(u"tent 2"_s, [](Canvas &c) {
                                const auto frame = c.clipped(box(art));
                                tentOn({560, 1190}, 210, ink(0x2F7F83), ink(0xF6E3C0))(c);
                            });
                        }};
    QList<Change> all{pieces, code, colour};
    for (const QString &passed : {u"Every font of ours is in the file"_s, u"Trimmed to 340 × 252 mm, like ours"_s,
                                  u"3 mm of bleed on every side"_s, u"No text lies under the art"_s})
        all.append({.kind = u"pass"_s, .severity = u"low"_s, .title = passed});
    return all;
}

Sheet lid()
{
    Sheet sheet{sheetSize, Qt::white, {}};
    fairground(sheet);
    panel(sheet);
    return sheet;
}

FileItem item()
{
    FileItem file;
    file.id = u"moth"_s;
    file.po = u"PO 2238"_s;
    file.title = u"Moth Carnival"_s;
    file.component = u"Box lid"_s;
    file.supplier = u"Pellow Cartons"_s;
    file.filename = u"2238_lid_proof1.pdf"_s;
    file.kind = u"box"_s;
    file.sender = u"Bram"_s;
    file.received = moment(20, 14, 12);
    file.created = moment(20, 14, 59);
    file.links = filed(u"mc2238p1"_s, u"po-2238"_s, u"Moth-Carnival-lid.indd"_s);
    file.refs = {sent(u"Moth-Carnival-lid-final.pdf"_s, u"mc2238s"_s)};
    file.summary = u"A wrong word on the medal, another barcode number and a tent of another color."_s;
    file.status = u"new"_s;
    file.rev = 2;
    return file;
}

QList<Note> notes()
{
    Note black = note(u"n-11"_s, 0, who::mira(), moment(20, 15, 16), u"Ask for a warmer black on the lid."_s);
    black.x = 0.16;
    black.y = 0.79;
    Note shop =
        note(u"n-12"_s, 0, who::teo(), moment(20, 15, 19), u"The shop in Elmet already has our number in its till."_s);
    shop.finding_id = u"moth-0-2"_s;
    return {black, shop};
}

} // namespace

FilePlan mothCarnival()
{
    return {item(), {{.label = {}, .ours = lid(), .changes = changes()}}, notes(), art};
}

} // namespace vexal::sample
