#include "country.h"

#include "fox.h"
#include "land.h"
#include "lantern.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::fox {

namespace {

Leaf page2()
{
    const Light light = dusk();
    Sheet sheet = country(light, 20);
    add(sheet, u"moon"_s, [](Canvas &c) {
        moon(c, {330, 330}, 104, {ink(0xFCE8C4), ink(0xF2C99A), ink(0xFCE8C4, 0.12), true});
    });
    farHills(sheet, light, 20);
    firs(sheet, ink(0x46295A), {{980, 960}, {1120, 930}, {1260, 970}}, 330);
    nearHill(sheet, light, 20);
    add(sheet, u"gate"_s, [](Canvas &c) { gate(c, {330, 1190}, 420, ink(0x7A4A5E)); });
    add(sheet, u"lantern"_s, [](Canvas &c) { lantern(c, {700, 1108}, 104, false); });
    add(sheet, u"fox"_s, [](Canvas &c) { walkingFox(c, {990, 1200}, 310, {}, true); });
    tell(sheet, u"2"_s, {u"The fox found the first lantern"_s, u"asleep in the long grass."_s});
    const Change edit{.kind = u"expected"_s,
                      .severity = u"low"_s,
                      .title = u"“tall grass” is “long grass” now"_s,
                      .before = u"asleep in the tall grass."_s,
                      .after = u"asleep in the long grass."_s,
                      .on = {u"text/2"_s},
                      .make = [](Sheet &s) { s.reword(u"text"_s, 2, u"asleep in the tall grass."_s); },
                      .verdict = {}};
    return {.label = u"2"_s, .ours = sheet, .edits = {edit}, .printed = true};
}

Leaf page3()
{
    const Light light = day();
    Sheet sheet = country(light, 30);
    add(sheet, u"sun"_s, [](Canvas &c) { sun(c, {980, 270}, 104, ink(0xF7C948)); });
    add(sheet, u"clouds"_s, [](Canvas &c) {
        cloud(c, {330, 330}, 420, ink(0xFFFFFF, 0.85));
        cloud(c, {1200, 520}, 300, ink(0xFFFFFF, 0.7));
        cloud(c, {640, 200}, 190, ink(0xFFFFFF, 0.6));
    });
    farHills(sheet, light, 30);
    add(sheet, u"village"_s, [](Canvas &c) {
        house(c, {212, 900}, 96, ink(0xF3E3C3), ink(0xC8643C), ink(0xFFF0B8));
        house(c, {330, 924}, 120, ink(0xFBEFD8), ink(0xB5532F), ink(0xFFF0B8));
        roundTree(c, {446, 940}, 170, ink(0x6E9E58), ink(0x6B4A34));
    });
    nearHill(sheet, light, 30, ink(0xF3ECF6));
    add(sheet, u"lantern"_s, [](Canvas &c) { lantern(c, {640, 940}, 210, false); });
    add(sheet, u"fox"_s, [](Canvas &c) { sittingFox(c, {960, 1216}, 430, {}, true); });
    tell(sheet, u"3"_s, {u"“You have gone out,” said the fox."_s, u"“Then carry me home,”"_s, u"said the lantern."_s});

    const Change lines{.kind = u"breaks"_s,
                       .severity = u"medium"_s,
                       .title = u"Three lines run as two"_s,
                       .detail = u"“said the lantern.” moved up to the second line."_s,
                       .before = u"“Then carry me home,” / said the lantern."_s,
                       .after = u"“Then carry me home,” said the lantern."_s,
                       .on = {u"text/2"_s},
                       .ours = {u"text/2"_s, u"text/3"_s},
                       .make = [](Sheet &s) {
                           s.rebreak(u"text"_s, {u"“You have gone out,” said the fox."_s,
                                                 u"“Then carry me home,” said the lantern."_s});
                       }};
    const Change folio{.kind = u"fonts"_s,
                       .severity = u"medium"_s,
                       .title = u"The folio is set in Nimbus Roman"_s,
                       .detail = u"Ours is Century Schoolbook, like every other folio of the book."_s,
                       .before = u"C059-Roman"_s,
                       .after = u"NimbusRoman-Regular"_s,
                       .on = {u"folio"_s},
                       .make = [](Sheet &s) { s.reface(u"folio"_s, Face::Roman); }};
    return {.label = u"3"_s, .ours = sheet, .changes = {lines, folio}};
}

Leaf page4()
{
    const Light light = deepNight();
    Sheet sheet = country(light, 40);
    add(sheet, u"moon"_s, [](Canvas &c) {
        moon(c, {1010, 300}, 132, {ink(0xF2F5D8), ink(0xD2DDB4), ink(0xF2F5D8, 0.1), true});
    });
    farHills(sheet, light, 40);
    firs(sheet, ink(0x0F3D3F), {{70, 1000}, {210, 980}, {350, 1010}, {520, 970}}, 470);
    add(sheet, u"path"_s, [](Canvas &c) { windingPath(c, {760, 1290}, {1090, 860}, 74, ink(0x2C6A64, 0.8)); });
    nearHill(sheet, light, 40);
    firs(sheet, ink(0x0B2E31), {{1270, 1130}}, 620);
    sheet.items.last().name = u"great fir"_s;
    add(sheet, u"fox"_s, [](Canvas &c) { walkingFox(c, {560, 1190}, 300); });
    add(sheet, u"lantern"_s, [](Canvas &c) { lantern(c, {742, 1056}, 96, false); });
    tell(sheet, u"4"_s, {u"So the fox went up through the firs,"_s, u"one paw and then another,"_s});
    return {.label = u"4"_s, .ours = sheet, .printed = true};
}

Leaf page5()
{
    const Light light = night();
    Sheet sheet = country(light, 50);
    add(sheet, u"moon"_s, [](Canvas &c) { moon(c, {330, 300}, 96); });
    farHills(sheet, light, 50);
    add(sheet, u"mill"_s, [](Canvas &c) { mill(c, {900, 1010}, 430, ink(0x47606C), ink(0x7A5A4A), ink(0xFFD985)); });
    firs(sheet, ink(0x17404B), {{180, 990}, {310, 960}, {1240, 980}}, 250);
    nearHill(sheet, light, 50);
    add(sheet, u"fox"_s, [](Canvas &c) { walkingFox(c, {460, 1196}, 280); });
    add(sheet, u"lantern"_s, [](Canvas &c) { lantern(c, {632, 1070}, 90); });
    tell(sheet, u"5"_s, {u"past the mill and the miller’s cat,"_s, u"with the dark close behind,"_s});
    return {.label = u"5"_s, .ours = sheet, .printed = true};
}

Leaf page6()
{
    const Light light = dawn();
    Sheet sheet = country(light, 60);
    add(sheet, u"sun"_s, [](Canvas &c) { sun(c, {900, 560}, 140, ink(0xFFE9B8)); });
    add(sheet, u"clouds"_s, [](Canvas &c) {
        cloud(c, {300, 300}, 380, ink(0xFFF3DC, 0.7));
        cloud(c, {1130, 240}, 260, ink(0xFFF3DC, 0.6));
        gull(c, {520, 470}, 64, ink(0x9A5A3C));
        gull(c, {620, 430}, 46, ink(0x9A5A3C));
    });
    farHills(sheet, light, 60);
    add(sheet, u"tree"_s, [](Canvas &c) { roundTree(c, {280, 1110}, 470, ink(0xB9632F), ink(0x5C3424)); });
    nearHill(sheet, light, 60);
    add(sheet, u"fox"_s, [](Canvas &c) { sleepingFox(c, {800, 1190}, 440); });
    add(sheet, u"lantern"_s, [](Canvas &c) { lantern(c, {1130, 1084}, 108); });
    tell(sheet, u"6"_s, {u"until the hills were the colour of toast"_s, u"and it was morning again."_s});
    return {.label = u"6"_s, .ours = sheet, .printed = true};
}

} // namespace

QList<Leaf> setOut()
{
    return {page2(), page3(), page4(), page5(), page6()};
}

} // namespace vexal::sample::fox
