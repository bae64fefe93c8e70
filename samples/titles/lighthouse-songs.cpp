#include "titles.h"

#include "filing.h"
#include "land.h"
#include "music.h"
#include "people.h"
#include "printing.h"
#include "sea.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

constexpr QSize page{1300, 1720};
const QColor paper = ink(0xFDFBF4);
const QColor black = ink(0x26262E);

struct Song
{
    QString title;
    QString pace;
    QStringList steps;
    QStringList lyrics;
    QString folio;
    bool night = true;
};

const QRectF frame{110, 90, 1080, 430};

void nightPicture(Canvas &c)
{
    const auto clip = c.clipped(box(frame, 18));
    sky(c, frame, {ink(0x2C4A6E), ink(0x6A8AA6), ink(0xE9C9A0)});
    stars(c, {110, 90, 1080, 240}, 40, 951, ink(0xFFF3D8));
    lighthouse(c, {330, 440}, 330, ink(0xFBF4E6), ink(0xC8402F), true);
    waves(c, {110, 420, 1080, 120}, 4, ink(0x4C88A0), ink(0x1F4A6E));
    sailboat(c, {840, 450}, 170, ink(0xC5502F), ink(0xFBEFD2), ink(0xE6A23C));
}

void gullPicture(Canvas &c)
{
    const auto clip = c.clipped(box(frame, 18));
    sky(c, frame, {ink(0x9CD0D6), ink(0xD6ECE2), ink(0xFBF1D2)});
    sun(c, {1000, 200}, 62, ink(0xF9D064));
    cloud(c, {330, 240}, 240, ink(0xFFFFFF, 0.8));
    cloud(c, {720, 190}, 170, ink(0xFFFFFF, 0.7));
    waves(c, {110, 400, 1080, 140}, 4, ink(0x7FBAC0), ink(0x3F86A0));
    c.fill(box({110, 420, 620, 120}), ink(0xB9A58C));
    c.fill(box({110, 408, 640, 20}, 4), ink(0xD6C4A8));
    for (const QPointF at : {QPointF(290, 300), QPointF(520, 250), QPointF(860, 320)})
        gull(c, at, 96, ink(0x4A6278));
    sailboat(c, {960, 450}, 120, ink(0x2F5F7A), ink(0xFBEFD2), ink(0xC5502F));
}

Sheet songPage(const Song &song)
{
    Sheet sheet{page, paper, {}};
    sheet.add(u"picture"_s, song.night ? Art(nightPicture) : Art(gullPicture));
    sheet.add(u"title"_s, setLines({650, 640}, {Face::PalladioBold, 82, black}, {song.title}));
    sheet.add(u"pace"_s, setLines({120, 716}, {Face::PalladioItalic, 38, black}, {song.pace}, Align::Left));
    for (qsizetype i = 0; i < song.steps.size(); ++i) {
        const double y = 760 + 220.0 * static_cast<double>(i);
        const QString number = QString::number(i + 1);
        sheet.add(u"staff "_s + number, [y](Canvas &c) { staff(c, {120, y}, 1060, 20, black); });
        const QString steps = song.steps.at(i);
        sheet.add(u"notes "_s + number, [y, steps](Canvas &c) { notes(c, {120, y}, 1060, 20, steps, black); });
        sheet.add(u"words "_s + number,
                  setLines({210, y + 152}, {Face::Palladio, 38, black}, {song.lyrics.at(i)}, Align::Left));
    }
    sheet.add(u"folio"_s, setLines({650, 1670}, {Face::Palladio, 30, black}, {song.folio}));
    return sheet;
}

Leaf first()
{
    const Sheet sheet = songPage(
        {u"The Lamp Goes Round"_s,
         u"Not too fast, like a tide"_s,
         {u"2345-4h2h-3456-5h3h"_s, u"5654-3h4h-2343-2h0h"_s, u"4567-6h4h-5678-7h5h"_s, u"6543-2h4h-3212-0h0h"_s},
         {u"The lamp goes round, the sea goes by,"_s, u"a boat is a star that is not in the sky,"_s,
          u"count to nine and the light comes again,"_s, u"good night, good keeper, good wind, good rain."_s},
         u"12"_s,
         true});
    const Change word{.kind = u"words"_s,
                      .severity = u"medium"_s,
                      .title = u"“nine” reads “nice”"_s,
                      .before = u"count to nine"_s,
                      .after = u"count to nice"_s,
                      .on = {u"words 3:nice"_s},
                      .ours = {u"words 3:nine"_s},
                      .make = [](Sheet &s) { s.respell(u"words 3"_s, u"nine"_s, u"nice"_s); },
                      .verdict = {u"issue"_s, who::anselm(), moment(18, 16, 40)}};
    return {.label = u"12"_s, .ours = sheet, .changes = {word}, .read = true};
}

Leaf second()
{
    const QString last = u"4321-2h3h-1234-0h0h"_s;
    const Sheet sheet = songPage({u"Three Gulls"_s,
                                  u"Cheerfully"_s,
                                  {u"0246-5h3h-4321-2h0h"_s, u"2468-7h5h-6543-4h2h"_s, u"5565-4h2h-3343-2h1h"_s, last},
                                  {u"Three gulls sat on the harbour wall,"_s, u"one was big and one was small,"_s,
                                   u"one could not be seen at all,"_s, u"and that one stole the bread."_s},
                                  u"13"_s,
                                  false});
    const Change note{.kind = u"picture"_s,
                      .severity = u"medium"_s,
                      .title = u"The last line is a third lower"_s,
                      .on = {u"notes 4"_s},
                      .make =
                          [](Sheet &s) {
                              s.replace(u"notes 4"_s, [](Canvas &c) {
                                  notes(c, {120, 1420}, 1060, 20, u"6543-4h5h-3456-2h2h"_s, black);
                              });
                          },
                      .verdict = {u"fine"_s, who::mira(), moment(18, 16, 52)}};
    return {.label = u"13"_s, .ours = sheet, .changes = {note}, .read = true};
}

FileItem item()
{
    FileItem file;
    file.id = u"songs"_s;
    file.po = u"PO 2217"_s;
    file.title = u"Lighthouse Songs"_s;
    file.component = u"Song sheet"_s;
    file.supplier = u"Tarnwick Cards"_s;
    file.filename = u"scan_20261118_001.pdf"_s;
    file.kind = u"scan"_s;
    file.sender = u"Silje"_s;
    file.received = moment(18, 15, 55);
    file.created = moment(18, 16, 20);
    file.links = filed(u"ls2217p1"_s, u"po-2217"_s);
    file.refs = {
        sent(u"Lighthouse-Songs-12-13.pdf"_s, u"ls2217s"_s, u"Matched by the picture: the scan has no text."_s)};
    file.summary = u"Read from a scan; one wrong word."_s;
    file.status = u"reviewed"_s;
    file.status_by = who::anselm();
    file.status_at = moment(18, 16, 55);
    file.rev = 6;
    return file;
}

QList<Note> notes()
{
    const Note scan = note(u"n-71"_s, 0, who::anselm(), moment(18, 16, 44),
                           u"They sent a scan of their print, so I read it twice."_s);
    return {scan};
}

} // namespace

FilePlan lighthouseSongs()
{
    return {item(), {first(), second()}, notes(), {}, true};
}

} // namespace vexal::sample
