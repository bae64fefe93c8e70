#include "titles.h"

#include "filing.h"
#include "land.h"
#include "people.h"
#include "printing.h"
#include "sea.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

constexpr QSize tray{1400, 1720};
constexpr QRectF board{90, 90, 1220, 1540}; ///< The pieces inside the frame.

void harbor(Canvas &c)
{
    const auto clip = c.clipped(box(board));
    sky(c, {90, 90, 1220, 900}, {ink(0x1D2F55), ink(0x3F5F86), ink(0xE6A57E), ink(0xF6D7A0)});
    stars(c, {90, 90, 1220, 400}, 90, 601, ink(0xFFF3D8));
    moon(c, {1080, 300}, 92);
    cloud(c, {330, 420}, 340, ink(0xF3C9A8, 0.5));
    hills(c, {90, 90, 1220, 1000}, 830, 46, 602, ink(0x54708A), ink(0x42607C));
    quay(c, {540, 960}, 780,
         {ink(0xC8643C), ink(0xE9C27E), ink(0x7FA6A0), ink(0xD98A6A), ink(0xF0E0BE), ink(0x8E5A6E), ink(0xDFA048)},
         ink(0x5A3A3C), ink(0xFFE39A));
    lighthouse(c, {1130, 1010}, 500, ink(0xFBF1DC), ink(0xC8402F), true);
    c.fill(box({90, 956, 880, 40}), ink(0x4E4656));
    c.fill(box({90, 956, 880, 10}), ink(0x6E6474));
    waves(c, {90, 996, 1220, 700}, 9, ink(0x4C88A0), ink(0x15385C));
    sailboat(c, {520, 1330}, 470, ink(0xC5502F), ink(0xFBEFD2), ink(0xE6A23C));
    sailboat(c, {1040, 1190}, 170, ink(0x2C4A5E), ink(0xF6DDB0), ink(0xC5502F));
    paperBoat(c, {930, 1480}, 170, ink(0xF3EAD6));
    sailboat(c, {220, 1130}, 120, ink(0xE0A23C), ink(0xF3EAD6), ink(0x2C6E8E));
    for (const QPointF at : {QPointF(300, 620), QPointF(390, 580), QPointF(820, 560), QPointF(700, 650)})
        gull(c, at, 44, ink(0xFBF4E6));
    for (int i = 0; i < 9; ++i)
        c.fill(box({360.0 + 26 * (i % 3) + 11.0 * i, 1380 + 22.0 * i, 210 - 14.0 * i, 6}, 3), ink(0xF6D7A0, 0.22));
}

Sheet trayPuzzle()
{
    Sheet sheet{tray, ink(0x203B5C), {}};
    sheet.add(u"frame"_s, [](Canvas &c) {
        c.fill(box({0, 0, 1400, 1720}), ink(0x23436A));
        c.stroke(box({40, 40, 1320, 1640}, 46), ink(0xF0E0BE), 5);
        c.fill(box({400, 1660, 600, 40}), ink(0x23436A));
        c.fill(box({78, 78, 1244, 1564}, 22), ink(0x17304C));
    });
    sheet.add(u"harbor"_s, harbor);
    sheet.add(u"cuts"_s, [](Canvas &c) { jigsaw(c, board, 6, 8, 603); });
    sheet.add(u"title"_s,
              setLines({700, 1690}, {Face::BookmanDemi, 30, ink(0xF0E0BE), 160}, {u"LITTLE HARBOR  ·  48 PIECES"_s}));
    return sheet;
}

FileItem item()
{
    FileItem file;
    file.id = u"harbor"_s;
    file.po = u"PO 2236"_s;
    file.title = u"Little Harbor"_s;
    file.component = u"48-piece tray"_s;
    file.supplier = u"Pellow Cartons"_s;
    file.filename = u"2236_tray_48_v1.pdf"_s;
    file.kind = u"puzzle"_s;
    file.sender = u"Bram"_s;
    file.received = moment(19, 15, 40);
    file.created = moment(19, 15, 58);
    file.links = filed(u"lh2236p1"_s, u"po-2236"_s);
    file.refs = QList<Ref>();
    file.summary = u"Nothing of ours was found to compare it with."_s;
    file.status = u"new"_s;
    file.rev = 1;
    return file;
}

} // namespace

FilePlan littleHarbor()
{
    return {item(), {{.label = {}, .ours = trayPuzzle(), .sent = false}}, {}};
}

} // namespace vexal::sample
