#include "titles.h"

#include "creatures.h"
#include "filing.h"
#include "fox.h"
#include "land.h"
#include "lantern.h"
#include "moth.h"
#include "owl.h"
#include "people.h"
#include "post.h"
#include "printing.h"
#include "sky.h"
#include "stickers.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

constexpr QSize page{1400, 1760};
const QColor gold = ink(0xE9B23C);

/// A sticker: its ground, a white edge and the line where it is cut.
Art sticker(QPointF at, double radius, const QColor &ground, Art thing)
{
    return [=, thing = std::move(thing)](Canvas &c) {
        c.fill(circle(at + QPointF(3, 6), radius + 16), ink(0x1A1236, 0.28));
        c.fill(circle(at, radius + 15), Qt::white);
        c.fill(circle(at, radius), ground);
        {
            const auto clip = c.clipped(circle(at, radius));
            const auto placed = c.placed(at);
            thing(c);
        }
        c.stroke(circle(at, radius + 15), ink(0xE6007E), 1.6);
    };
}

Art goldMoon(const QColor &metal)
{
    return sticker({440, 560}, 230, ink(0x2B2A5E), [metal](Canvas &c) {
        stars(c, {-230, -230, 460, 460}, 40, 961, ink(0xFFF3D0));
        crescent(c, {24, 4}, 150, metal);
    });
}

Art goldStar(QPointF at, const QColor &metal)
{
    return [=](Canvas &c) {
        c.fill(star(at + QPointF(2, 5), 92, 44, 5, 0.3), ink(0x1A1236, 0.28));
        c.fill(star(at, 92, 44, 5, 0.3), Qt::white);
        c.fill(star(at, 76, 35, 5, 0.3), metal);
        eye(c, at + QPointF(-13, -2), 6.4);
        eye(c, at + QPointF(13, -2), 6.4);
        c.stroke(outline("M-8 12 Q0 20 8 12"_L1).translated(at), ink(0x20262E), 3.4);
        c.stroke(star(at, 92, 44, 5, 0.3), ink(0xE6007E), 1.6);
    };
}

Sheet stickers()
{
    Sheet sheet{page, ink(0x3A2F6B), {}};
    sheet.add(u"ground"_s, [](Canvas &c) {
        sky(c, {0, 0, 1400, 1760}, {ink(0x2C2459), ink(0x4A3B7E), ink(0x6B5596)});
        stars(c, {0, 0, 1400, 1760}, 190, 962, ink(0xE6DCFB));
        hills(c, {0, 0, 1400, 1760}, 1500, 40, 963, ink(0x3B3468), ink(0x2A2450));
    });
    sheet.add(u"title"_s, setLines({700, 216}, {Face::GothicDemi, 128, ink(0xFBF1DC)}, {u"Moon Garden"_s}));
    sheet.add(u"gold moon"_s, goldMoon(gold));
    sheet.add(u"fox"_s, sticker({900, 480}, 150, ink(0xCFE3C0), [](Canvas &c) { sleepingFox(c, {0, 76}, 236); }));
    sheet.add(u"owl"_s, sticker({1190, 640}, 140, ink(0xF3D9A4), [](Canvas &c) { owl(c, {0, 130}, 236); }));
    sheet.add(u"moth"_s, sticker({890, 830}, 170, ink(0x7A3F6A), [](Canvas &c) { moth(c, {0, 4}, 300); }));
    sheet.add(u"mushroom"_s, sticker({250, 930}, 150, ink(0xBFD9C6), [](Canvas &c) {
                  mushroom(c, {20, 96}, 190, ink(0xD1432F));
                  mushroom(c, {-74, 100}, 100, ink(0xE0703C));
              }));
    sheet.add(u"can"_s, sticker({560, 980}, 140, ink(0xF7E3C4), [](Canvas &c) {
                  wateringCan(c, {-8, 70}, 180, ink(0x4F8FA8));
              }));
    sheet.add(u"flower"_s, sticker({1190, 1010}, 150, ink(0x2F4F6B), [](Canvas &c) {
                  moonflower(c, {-34, 150}, 220, ink(0xE6D6F5));
                  moonflower(c, {60, 150}, 160, ink(0xF5C9D9));
              }));
    sheet.add(u"bee"_s, sticker({240, 1270}, 130, ink(0xDCEBF0), [](Canvas &c) { bee(c, {-2, 16}, 170); }));
    sheet.add(u"snail"_s, sticker({560, 1310}, 150, ink(0xE3EFCB), [](Canvas &c) {
                  postSnail(c, {-4, 70}, 230, ink(0xC98AC2), ink(0xD9BE7A));
              }));
    sheet.add(u"lantern"_s, sticker({890, 1220}, 140, ink(0x23305C), [](Canvas &c) { lantern(c, {0, -110}, 200); }));
    sheet.add(u"gold star 1"_s, goldStar({1160, 1330}, gold));
    sheet.add(u"gold star 2"_s, goldStar({1290, 420}, gold));
    sheet.add(u"gold star 3"_s, goldStar({110, 690}, gold));
    sheet.add(u"line"_s, setLines({700, 1600}, {Face::Gothic, 40, ink(0xE6DCFB), 120},
                                  {u"THIRTEEN STICKERS FOR NIGHT GARDENERS"_s}));
    sheet.add(u"legal"_s,
              setLines({700, 1680}, {Face::Sans, 25, ink(0xB9ADDD)},
                       {u"Lantern House, Hollow Hill · LH 2242-13 · peel slowly · made by Tarnwick Cards"_s}));
    return sheet;
}

QList<Change> changes()
{
    const QColor process = ink(0xC79A4E);
    const Change plates{
        .kind = u"spots"_s,
        .severity = u"high"_s,
        .title = u"The spot gold became process color in four places"_s,
        .detail =
            u"The moon and the three stars print from the plate “Gold 871-L” in ours. Here they are mixed from the four inks."_s,
        .before = u"5 plates, one of them Gold 871-L"_s,
        .after = u"4 plates"_s,
        .on = {u"gold moon"_s, u"gold star 1"_s, u"gold star 2"_s, u"gold star 3"_s},
        .make = [process](Sheet &s) {
            s.replace(u"gold moon"_s, goldMoon(process));
            s.replace(u"gold star 1"_s, goldStar({1160, 1330}, process));
            s.replace(u"gold star 2"_s, goldStar({1290, 420}, process));
            s.replace(u"gold star 3"_s, goldStar({110, 690}, process));
        }};
    const Change bees{
        .kind = u"picture"_s,
        .severity = u"low"_s,
        .title = u"The bee sits 2 mm lower in its circle"_s,
        .on = {u"bee"_s},
        .make =
            [](Sheet &s) {
                s.replace(u"bee"_s, sticker({240, 1270}, 130, ink(0xDCEBF0), [](Canvas &c) { bee(c, {-2, 36}, 170); }));
            },
        .verdict = {u"fine"_s, who::anselm(), moment(19, 14, 5)}};
    const Change cut{.kind = u"pass"_s, .severity = u"low"_s, .title = u"All thirteen cutting lines are closed"_s};
    return {plates, bees, cut};
}

FileItem item()
{
    FileItem file;
    file.id = u"moongarden"_s;
    file.po = u"PO 2242"_s;
    file.title = u"Moon Garden"_s;
    file.component = u"Sticker sheet"_s;
    file.supplier = u"Tarnwick Cards"_s;
    file.filename = u"LH2242-stickers-A.pdf"_s;
    file.kind = u"stickers"_s;
    file.sender = u"Silje"_s;
    file.received = moment(19, 12, 2);
    file.created = moment(19, 12, 20);
    file.links = filed(u"mg2242p1"_s, u"po-2242"_s, u"Moon-Garden-stickers.indd"_s);
    file.refs = {sent(u"Moon-Garden-stickers.pdf"_s, u"mg2242s"_s)};
    file.summary = u"The spot gold became process color."_s;
    file.status = u"in_review"_s;
    file.status_by = who::anselm();
    file.status_at = moment(19, 14, 1);
    file.rev = 5;
    return file;
}

} // namespace

FilePlan moonGarden()
{
    return {item(), {{.label = {}, .ours = stickers(), .changes = changes()}}, {}};
}

} // namespace vexal::sample
