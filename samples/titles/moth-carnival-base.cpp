#include "titles.h"

#include "filing.h"
#include "moth.h"
#include "people.h"
#include "printing.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

constexpr QSize sheetSize{2200, 1680};
constexpr QRectF trim{90, 90, 2020, 1500};
const QColor cream = ink(0xFBEBCB);
const QColor gold = ink(0xE9B965);

Sheet base()
{
    Sheet sheet{sheetSize, Qt::white, {}};
    sheet.add(u"ground"_s, [](Canvas &c) {
        const auto frame = c.clipped(box(trim.adjusted(-20, -20, 20, 20)));
        sky(c, trim.adjusted(-20, -20, 20, 20), {ink(0x2E1438), ink(0x3F1B48), ink(0x25102C)});
        stars(c, trim, 160, 991, ink(0xFBE6CF));
        c.stroke(box(trim.adjusted(50, 50, -50, -50), 30), gold, 4);
    });
    sheet.add(u"picture"_s, [](Canvas &c) {
        const QRectF window(220, 300, 960, 714);
        c.fill(box(window.adjusted(-14, -14, 14, 14), 12), cream);
        const auto frame = c.clipped(box(window));
        const double scale = window.width() / 2060;
        const auto small = c.placed(window.topLeft() - QPointF(70, 70) * scale, scale);
        paintOnto(c, mothCarnival().leaves.first().ours);
    });
    sheet.add(u"title"_s, setLines({700, 246}, {Face::BookmanDemi, 84, cream}, {u"Moth Carnival"_s}));
    sheet.add(u"inside"_s, setLines({1270, 380}, {Face::BookmanDemi, 56, gold}, {u"In this box"_s}, Align::Left));
    sheet.add(u"list"_s, setLines({1270, 470}, {Face::Bookman, 44, cream},
                                  {u"500 pieces, cut in the old way"_s, u"one poster of the picture"_s,
                                   u"one candle, not to be lit"_s, u"a letter from the moth"_s},
                                  Align::Left, 1.6));
    sheet.add(u"moth"_s, [](Canvas &c) { moth(c, {1610, 930}, 560); });
    sheet.add(u"legal"_s, setLines({220, 1180}, {Face::Sans, 27, ink(0xD9BFC2)},
                                   {u"Warning: small parts. Keep from children under 3 years."_s,
                                    u"Avertissement : petites pièces. Ne convient pas aux moins de 3 ans."_s,
                                    u"Achtung: Kleine Teile. Nicht für Kinder unter 3 Jahren."_s,
                                    u"Please keep this address: Lantern House, 4 Mill Road, Hollow Hill."_s,
                                    u"Made by Pellow Cartons. Board from forests that are planted again."_s},
                                   Align::Left, 1.62));
    sheet.add(u"barcode"_s, [](Canvas &c) {
        barcode(c, {1720, 1290}, 2.2, u"200406182257"_s + checkDigit(u"200406182257"));
    });
    sheet.add(u"imprint"_s, [](Canvas &c) { imprint(c, {1420, 1420}, 130, gold); });
    sheet.add(u"marks"_s, [](Canvas &c) {
        printMarks(c, sheetSize, trim,
                   u"PO 2238   Moth Carnival, box base   340 × 252 mm   CMYK + varnish   Lantern House"_s);
    });
    return sheet;
}

FileItem item()
{
    FileItem file;
    file.id = u"mothbase"_s;
    file.po = u"PO 2238"_s;
    file.title = u"Moth Carnival"_s;
    file.component = u"Box base"_s;
    file.supplier = u"Pellow Cartons"_s;
    file.filename = u"2238_base_proof1.pdf"_s;
    file.kind = u"box"_s;
    file.sender = u"Bram"_s;
    file.received = moment(20, 15, 31);
    file.links = filed(u"mc2238b1"_s, u"po-2238"_s, u"Moth-Carnival-base.indd"_s);
    file.refs = {sent(u"Moth-Carnival-base-final.pdf"_s, u"mc2238bs"_s)};
    file.summary = u"One word differs in the French warning."_s;
    file.status = u"new"_s;
    file.rev = 1;
    return file;
}

} // namespace

FilePlan mothCarnivalBase()
{
    const Change accent{.kind = u"words"_s,
                        .severity = u"high"_s,
                        .title = u"“pièces” lost its accent"_s,
                        .before = u"petites pièces."_s,
                        .after = u"petites pieces."_s,
                        .on = {u"legal:pieces"_s},
                        .ours = {u"legal:pièces"_s},
                        .make = [](Sheet &s) { s.respell(u"legal"_s, u"pièces."_s, u"pieces."_s); }};
    return {item(), {{.label = {}, .ours = base(), .changes = {accent}}}, {}, trim};
}

} // namespace vexal::sample
