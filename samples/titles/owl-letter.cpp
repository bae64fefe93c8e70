#include "titles.h"

#include "filing.h"
#include "land.h"
#include "owl.h"
#include "people.h"
#include "printing.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

constexpr QSize card{1200, 1680};
constexpr QRectF picture{72, 72, 1056, 1536};
const QColor cream = ink(0xF7E9CF);
const QColor gold = ink(0xCFA257);

void add(Sheet &sheet, const QString &name, Art art)
{
    sheet.add(name, [art = std::move(art)](Canvas &canvas) {
        const auto frame = canvas.clipped(box(picture));
        art(canvas);
    });
}

Art seal(const QColor &wax)
{
    return [wax](Canvas &c) { waxSeal(c, {602, 1066}, 40, wax); };
}

Sheet frontOfCard()
{
    Sheet sheet{card, cream, {}};
    add(sheet, u"sky"_s, [](Canvas &c) {
        sky(c, picture, {ink(0x2B4663), ink(0x34516F), ink(0x3E5F7A)});
        stars(c, picture, 150, 401, ink(0xFBEFD2));
    });
    add(sheet, u"moon"_s, [](Canvas &c) {
        moon(c, {600, 580}, 392, {ink(0xF3DFA8), ink(0xE9CD8C), ink(0xF3DFA8, 0.1), true});
    });
    add(sheet, u"hills"_s, [](Canvas &c) {
        hills(c, picture, 1010, 40, 402, ink(0x2A4560), ink(0x22384E));
        hills(c, picture, 1096, 34, 403, ink(0x22394F), ink(0x1C2F42));
        fir(c, {176, 1150}, 210, ink(0x1E3448));
        fir(c, {270, 1130}, 140, ink(0x1E3448));
        fir(c, {1010, 1140}, 170, ink(0x1E3448));
    });
    add(sheet, u"branch"_s, [](Canvas &c) { branch(c, {610, 900}, 900, ink(0x3E2C22), ink(0x6E8B54)); });
    add(sheet, u"letter"_s, [](Canvas &c) { letter(c, {602, 1046}, 300, -4, ink(0xFBF4E6), {}); });
    add(sheet, u"seal"_s, seal(ink(0xB5302B)));
    add(sheet, u"owl"_s, [](Canvas &c) { owl(c, {600, 952}, 690); });
    sheet.add(u"frame"_s, [](Canvas &c) {
        c.stroke(box({44, 44, 1112, 1592}, 26), gold, 6);
        c.stroke(box({72, 72, 1056, 1536}), gold, 4);
    });
    sheet.add(u"verse"_s, setLines({600, 1308}, {Face::PalladioItalic, 118, ink(0xFBEED3)},
                                   {u"A letter came"_s, u"by owl."_s}, Align::Centre, 1.16));
    sheet.add(u"line"_s,
              setLines({600, 1544}, {Face::Palladio, 44, ink(0xDDB25F), 130}, {u"OPEN WHEN IT\u00A0IS DARK"_s}));
    return sheet;
}

Leaf front()
{
    const Change apostrophe{.kind = u"words"_s,
                            .severity = u"high"_s,
                            .title = u"“it is” reads “it’s”"_s,
                            .before = u"OPEN WHEN IT IS DARK"_s,
                            .after = u"OPEN WHEN IT’S DARK"_s,
                            .on = {u"line"_s},
                            .make = [](Sheet &s) { s.reword(u"line"_s, 1, u"OPEN WHEN IT’S DARK"_s); }};
    const Change stop{.kind = u"words"_s,
                      .severity = u"low"_s,
                      .title = u"The full stop after “owl” is gone"_s,
                      .before = u"by owl."_s,
                      .after = u"by owl"_s,
                      .on = {u"verse:owl"_s},
                      .make = [](Sheet &s) { s.respell(u"verse"_s, u"owl."_s, u"owl"_s); }};
    const Change wax{.kind = u"picture"_s,
                     .severity = u"medium"_s,
                     .title = u"The wax seal is a darker red"_s,
                     .on = {u"seal"_s},
                     .make = [](Sheet &s) { s.replace(u"seal"_s, seal(ink(0x7E2A2C))); },
                     .verdict = {u"fine"_s, who::mira(), moment(20, 15, 33)}};
    const Change line{.kind = u"expected"_s,
                      .severity = u"low"_s,
                      .title = u"“Open at night” became “Open when it is dark”"_s,
                      .before = u"OPEN AT NIGHT"_s,
                      .after = u"OPEN WHEN IT’S DARK"_s,
                      .on = {u"line"_s},
                      .make = [](Sheet &s) { s.reword(u"line"_s, 1, u"OPEN AT NIGHT"_s); }};
    // the last print had the darker wax and no full stop
    const Change old{.kind = {}, .severity = {}, .title = {}, .make = [](Sheet &s) {
                         s.replace(u"seal"_s, seal(ink(0x7E2A2C)));
                         s.respell(u"verse"_s, u"owl."_s, u"owl"_s);
                     }};
    return {
        .label = {}, .ours = frontOfCard(), .changes = {apostrophe, stop, wax}, .edits = {line, old}, .printed = true};
}

Leaf back()
{
    const QString number = u"200406224001"_s;
    Sheet sheet{card, cream, {}};
    sheet.add(u"frame"_s, [](Canvas &c) {
        c.stroke(box({44, 44, 1112, 1592}, 26), gold, 6);
        c.fill(box({90, 90, 1020, 1500}, 8), ink(0xFBF4E6));
    });
    sheet.add(u"legal"_s, setLines({600, 1120}, {Face::Palladio, 32, ink(0x5B4632)},
                                   {u"Painted by Sol Ekberg"_s, u"Card from forests that are planted again."_s,
                                    u"Printed by Tarnwick Cards for Lantern House."_s},
                                   Align::Centre, 1.5));
    sheet.add(u"post"_s,
              setLines({600, 996}, {Face::PalladioItalic, 36, ink(0x9A6A3C)}, {u"Postage for one owl included"_s}));
    sheet.add(u"letter"_s, [](Canvas &c) {
        branch(c, {600, 830}, 560, ink(0x6B4A34), ink(0x7F9C62));
        letter(c, {600, 690}, 360, -6, ink(0xFFFDF6), ink(0xB5302B));
    });
    sheet.add(u"barcode"_s, [number](Canvas &c) { barcode(c, {486, 1350}, 2.4, number + checkDigit(number)); });
    sheet.add(u"imprint"_s, [](Canvas &c) { imprint(c, {600, 330}, 120, ink(0x8A4B2C)); });

    const Change post{.kind = u"hidden"_s,
                      .severity = u"medium"_s,
                      .title = u"A line lies under the art"_s,
                      .detail = u"“Postage for one owl included” is in the file, but paper of the frame covers it."_s,
                      .before = u"Postage for one owl included"_s,
                      .on = {u"post"_s},
                      .make = [](Sheet &s) { s.bury(u"post"_s, u"frame"_s); }};
    const Change code{.kind = u"pass"_s,
                      .severity = u"low"_s,
                      .title = u"The barcode reads as ours"_s,
                      .detail = number + checkDigit(number),
                      .on = {u"barcode"_s}};
    const Change forest{.kind = u"expected"_s,
                        .severity = u"low"_s,
                        .title = u"The line about the forests is new"_s,
                        .on = {u"legal/2"_s},
                        .make = [](Sheet &s) {
                            s.reword(u"legal"_s, 2, u"Card made in Tarnwick."_s);
                            s.bury(u"post"_s, u"frame"_s);
                        }};
    return {.label = {}, .ours = sheet, .changes = {post, code}, .edits = {forest}, .printed = true};
}

FileItem item()
{
    FileItem file;
    file.id = u"owl"_s;
    file.po = u"PO 2240"_s;
    file.title = u"A Letter by Owl"_s;
    file.component = u"Greeting card"_s;
    file.supplier = u"Tarnwick Cards"_s;
    file.filename = u"LH2240-owl-card.pdf"_s;
    file.kind = u"card"_s;
    file.sender = u"Silje"_s;
    file.received = moment(20, 13, 5);
    file.created = moment(20, 14, 58);
    file.links = filed(u"ow2240p1"_s, u"po-2240"_s, u"Owl-card-2026.indd"_s);
    file.refs = {sent(u"Owl-card-2026.pdf"_s, u"ow2240s"_s), printed(u"Owl-card-2023-print.pdf"_s, u"ow2240l"_s)};
    file.summary = u"Two words and a seal on the front, a hidden line on the back."_s;
    file.status = u"new"_s;
    file.rev = 3;
    return file;
}

QList<Note> notes()
{
    const Note page =
        note(u"n-21"_s, 1, who::anselm(), moment(20, 15, 21), u"The back is much calmer than the old one. Good."_s);
    return {page};
}

} // namespace

FilePlan owlLetter()
{
    return {item(), {front(), back()}, notes(), QRectF(0, 90, 1200, 1543)};
}

} // namespace vexal::sample
