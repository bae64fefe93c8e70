#include "titles.h"

#include "filing.h"
#include "kites.h"
#include "land.h"
#include "people.h"
#include "printing.h"
#include "sea.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

constexpr QSize poster{1240, 1754};

void heaven(Sheet &sheet)
{
    sheet.add(u"sky"_s, [](Canvas &c) {
        sky(c, {0, 0, 1240, 1400}, {ink(0x7FC4D6), ink(0xB7E0E0), ink(0xF7EED2)});
        sun(c, {1010, 250}, 104, ink(0xFFE08A));
        cloud(c, {250, 330}, 420, ink(0xFFFFFF, 0.85));
        cloud(c, {930, 560}, 360, ink(0xFFFFFF, 0.75));
        cloud(c, {420, 860}, 300, ink(0xFFFFFF, 0.65));
        cloud(c, {1130, 900}, 260, ink(0xFFFFFF, 0.6));
        gull(c, {740, 900}, 54, ink(0x4A6B7C));
        gull(c, {810, 870}, 40, ink(0x4A6B7C));
    });
}

void seaside(Sheet &sheet)
{
    sheet.add(u"sea"_s, [](Canvas &c) {
        waves(c, {0, 1190, 1240, 330}, 7, ink(0x6FB3C0), ink(0x2C6E8E));
        sailboat(c, {240, 1236}, 120, ink(0xC4533A), ink(0xFBF1DC), ink(0xE6A23C));
        sailboat(c, {470, 1222}, 76, ink(0x2F4F6B), ink(0xFBF1DC), ink(0xC4533A));
    });
    sheet.add(u"headland"_s, [](Canvas &c) {
        lighthouse(c, {1080, 1240}, 330, ink(0xFBF4E6), ink(0xD1503B));
        c.fill(outline("M620 1530 C700 1400 820 1300 980 1252 C1080 1226 1180 1222 1260 1230 V1540 Z"_L1),
               ink(0x8DB36A));
        c.fill(outline("M-20 1540 C100 1400 260 1352 420 1362 C640 1376 820 1430 1260 1392 V1560 H-20 Z"_L1),
               ink(0x6F9C56));
        meadow(c, {0, 1420, 1240, 110}, 40, 501, ink(0x557F45), ink(0xFBF1DC));
    });
}

void kites(Sheet &sheet)
{
    const QPointF hands[] = {{301, 1270}, {537, 1280}, {770, 1302}, {944, 1290}};
    sheet.add(u"lines"_s, [hands](Canvas &c) {
        const QColor line = ink(0x3B4B57, 0.75);
        kiteLine(c, {250, 610}, hands[0], line);
        kiteLine(c, {520, 470}, hands[1], line);
        kiteLine(c, {690, 660}, hands[1], line);
        kiteLine(c, {790, 330}, hands[2], line);
        kiteLine(c, {1010, 720}, hands[3], line);
    });
    sheet.add(u"kites"_s, [](Canvas &c) {
        kite(c, {240, 560}, 220, ink(0xE4572E), ink(0xB23A1E), -14);
        kite(c, {520, 420}, 180, ink(0x2F8F6B), ink(0x1F6A52), 10);
        wingKite(c, {790, 300}, 300, ink(0xF2B134), ink(0xD9822B), 8);
        kite(c, {1020, 670}, 190, ink(0x3E5C8A), ink(0x2B4269), 16);
        fishKite(c, {690, 650}, 280, ink(0xE9785A), ink(0xFBE3C0), 160);
        kite(c, {400, 210}, 96, ink(0xF6D365), ink(0xE0A030), -20);
        kite(c, {120, 210}, 74, ink(0x9B6FA8), ink(0x74508A), 12);
        wingKite(c, {1120, 480}, 150, ink(0xD9607A), ink(0xA83E5C), -12);
        kite(c, {620, 150}, 66, ink(0xE9785A), ink(0xC2502F), 22);
    });
    sheet.add(u"children"_s, [](Canvas &c) {
        child(c, {260, 1396}, 130, ink(0xD1503B), ink(0x5A3A28));
        child(c, {502, 1400}, 122, ink(0x3E5C8A), ink(0x2A2320));
        child(c, {730, 1428}, 130, ink(0xE0A030), ink(0x9A5A2E));
        child(c, {914, 1394}, 106, ink(0x7A4E9C), ink(0xD9B26A));
    });
}

void words(Sheet &sheet)
{
    sheet.add(u"band"_s, [](Canvas &c) { c.fill(box({0, 1512, 1240, 242}), ink(0x1F3F5B)); });
    sheet.add(u"title"_s, setLines({620, 1622}, {Face::GothicDemi, 112, ink(0xFBF1DC), 10}, {u"A Sky of Kites"_s}));
    sheet.add(u"line"_s, setLines({620, 1698}, {Face::Gothic, 35, ink(0xF2C879), 90},
                                  {u"HOLLOW HILL BEACH · THE FIRST WINDY SUNDAY IN MAY"_s}));
}

Sheet posterSheet()
{
    Sheet sheet{poster, Qt::white, {}};
    heaven(sheet);
    seaside(sheet);
    kites(sheet);
    words(sheet);
    return sheet;
}

QList<Change> passed()
{
    QList<Change> all;
    for (const QString &check :
         {u"Every word is as we sent it"_s, u"Every font of ours is in the file"_s, u"The art is ours, to the pixel"_s})
        all.append({.kind = u"pass"_s, .severity = u"low"_s, .title = check});
    return all;
}

FileItem item()
{
    FileItem file;
    file.id = u"kites"_s;
    file.po = u"PO 2233"_s;
    file.title = u"A Sky of Kites"_s;
    file.component = u"Poster"_s;
    file.supplier = u"Ostrel Print"_s;
    file.filename = u"2233-kites-poster-proof.pdf"_s;
    file.kind = u"poster"_s;
    file.sender = u"Anneke"_s;
    file.received = moment(19, 10, 15);
    file.created = moment(19, 10, 24);
    file.links = filed(u"kt2233p1"_s, u"po-2233"_s, u"Kite-day-poster.indd"_s);
    file.refs = {sent(u"Kite-day-poster.pdf"_s, u"kt2233s"_s)};
    file.summary = u"No differences."_s;
    file.status = u"in_review"_s;
    file.status_by = who::teo();
    file.status_at = moment(19, 13, 30);
    file.rev = 4;
    return file;
}

QList<Note> notes()
{
    const Note wall = note(u"n-31"_s, {}, who::lin(), moment(19, 13, 35),
                           u"Nothing to do. I only keep it open because I like to look at it."_s);
    return {wall};
}

} // namespace

FilePlan skyOfKites()
{
    return {item(), {{.label = {}, .ours = posterSheet(), .changes = passed()}}, notes(), QRectF(32, 0, 1176, 1512)};
}

} // namespace vexal::sample
