#include "country.h"

#include "fox.h"
#include "land.h"
#include "lantern.h"
#include "moth.h"
#include "sky.h"

#include <QtMath>

using namespace Qt::StringLiterals;

namespace vexal::sample::fox {

namespace {

Leaf page8()
{
    const Light light = dusk();
    Sheet sheet = country(light, 80);
    add(sheet, u"moon"_s, [](Canvas &c) {
        moon(c, {860, 400}, 90, {ink(0xFCE8C4), ink(0xF2C99A), ink(0xFCE8C4, 0.12), true});
    });
    add(sheet, u"wind"_s, [](Canvas &c) {
        for (const double y : {0.0, 90.0, 200.0})
            c.stroke(outline("M-40 420 C200 360 420 480 700 420 C820 396 860 300 770 290 C700 284 690 370 760 372"_L1)
                         .translated(y, y),
                     ink(0xFBD9C0, 0.28), 9);
    });
    farHills(sheet, light, 80);
    firs(sheet, ink(0x46295A), {{1020, 960}, {1180, 1000}}, 380);
    nearHill(sheet, light, 80);
    add(sheet, u"post"_s, [](Canvas &c) {
        c.fill(box({316, 760, 26, 440}, 6), ink(0x2E1A36));
        c.stroke(outline("M328 790 H470"_L1), ink(0x2E1A36), 16);
    });
    add(sheet, u"lantern"_s, [](Canvas &c) { lantern(c, {456, 790}, 190, false); });
    add(sheet, u"fox"_s, [](Canvas &c) { sittingFox(c, {800, 1206}, 400, {}, true); });
    tell(sheet, u"8"_s, {u"“Who is the last one for?”"_s, u"asked the wind, going by."_s});
    return {.label = u"8"_s, .ours = sheet, .printed = true};
}

Leaf page9()
{
    const Light light = day();
    Sheet sheet = country(light, 90);
    add(sheet, u"sun"_s, [](Canvas &c) { sun(c, {350, 260}, 92, ink(0xF7C948)); });
    add(sheet, u"clouds"_s, [](Canvas &c) {
        cloud(c, {1090, 300}, 400, ink(0xFFFFFF, 0.85));
        cloud(c, {140, 520}, 260, ink(0xFFFFFF, 0.7));
    });
    farHills(sheet, light, 90);
    nearHill(sheet, light, 90, ink(0xF7D9DF));
    add(sheet, u"apple tree"_s, [](Canvas &c) {
        roundTree(c, {850, 1186}, 800, ink(0x6FA457), ink(0x6B4A34), ink(0xD9442F));
    });
    add(sheet, u"lantern"_s, [](Canvas &c) { lantern(c, {660, 844}, 130, false); });
    add(sheet, u"fox"_s, [](Canvas &c) { sleepingFox(c, {400, 1204}, 380); });
    tell(sheet, u"9"_s, {u"All day it hung in the apple tree"_s, u"and said nothing at all."_s});
    return {.label = u"9"_s, .ours = sheet, .printed = true};
}

Leaf page10()
{
    const Light light = deepNight();
    Sheet sheet = country(light, 100);
    const auto moonAt = [](QPointF at) {
        return [at](Canvas &c) {
            const auto frame = c.clipped(box(picture));
            moon(c, at, 120, {ink(0xF2F5D8), ink(0xD2DDB4), ink(0xF2F5D8, 0.1), true});
        };
    };
    sheet.add(u"moon"_s, moonAt({1050, 290}));
    farHills(sheet, light, 100);
    firs(sheet, ink(0x0F3D3F), {{130, 980}, {280, 950}, {1260, 990}}, 300);
    nearHill(sheet, light, 100);
    add(sheet, u"lantern"_s, [](Canvas &c) { lantern(c, {520, 560}, 250); });
    add(sheet, u"cord"_s, [](Canvas &c) {
        cord(c, {{-20, 470}, {250, 545}, {520, 562}, {800, 520}, {1000, 430}, {1390, 300}}, ink(0x06191C), 6);
    });
    add(sheet, u"moths"_s, [](Canvas &c) {
        Dice dice(104);
        for (int i = 0; i < 26; ++i) {
            const double round = dice.between(0, 6.28);
            const double away = dice.between(120, 360);
            const QPointF at = QPointF(520, 700) + away * QPointF(qCos(round), 0.8 * qSin(round));
            littleMoth(c, at, dice.between(38, 74), mix(ink(0xFBEBC0), ink(0xD9C08A), dice.between(0, 1)),
                       dice.between(-50, 50));
        }
    });
    add(sheet, u"fox"_s, [](Canvas &c) { sittingFox(c, {920, 1206}, 370, {}, true); });
    tell(sheet, u"10"_s, {u"That night there came a moth,"_s, u"then two, then all of them."_s});
    const Change moved{.kind = u"picture"_s,
                       .severity = u"medium"_s,
                       .title = u"The moon has moved"_s,
                       .detail = u"It stands 5 mm further left and 2 mm lower than on our page."_s,
                       .on = {u"moon"_s},
                       .make = [moonAt](Sheet &s) {
                           s.replace(u"moon"_s, moonAt({1010, 306}));
                       }};
    return {.label = u"10"_s, .ours = sheet, .changes = {moved}};
}

Leaf page11()
{
    const Light light = night();
    Sheet sheet = country(light, 110);
    add(sheet, u"moon"_s, [](Canvas &c) { moon(c, {680, 330}, 110); });
    farHills(sheet, light, 110);
    add(sheet, u"path"_s, [](Canvas &c) { windingPath(c, {640, 1290}, {420, 850}, 80, ink(0x3B6470, 0.9)); });
    firs(sheet, ink(0x17404B), {{1130, 960}, {1270, 1000}}, 330);
    nearHill(sheet, light, 110);
    add(sheet, u"lantern"_s, [](Canvas &c) { lantern(c, {1060, 850}, 210); });
    add(sheet, u"post"_s, [](Canvas &c) {
        c.fill(box({1164, 800, 22, 400}, 6), ink(0x101C26));
        c.stroke(outline("M1176 846 H1050"_L1), ink(0x101C26), 13);
    });
    add(sheet, u"fox"_s, [](Canvas &c) { sittingFox(c, {830, 1206}, 360, {}, true); });
    tell(sheet, u"11"_s, {u"“It is for whoever is late,”"_s, u"the fox told the wind."_s});
    return {.label = u"11"_s, .ours = sheet, .printed = true};
}

} // namespace

QList<Leaf> waitUp()
{
    return {page8(), page9(), page10(), page11()};
}

} // namespace vexal::sample::fox
