#include "country.h"

#include "fox.h"
#include "land.h"
#include "lantern.h"
#include "owl.h"
#include "people.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::fox {

namespace {

Leaf page12()
{
    Light light = dusk();
    light.sky = {ink(0x3A4668), ink(0x6D6A86), ink(0xE0A183)};
    Sheet sheet = country(light, 120);
    farHills(sheet, light, 120);
    firs(sheet, ink(0x46295A), {{90, 980}, {230, 950}}, 320);
    nearHill(sheet, light, 120);
    add(sheet, u"rain"_s, [](Canvas &c) { rain(c, {-40, -60, 1440, 1180}, 210, 121, ink(0xF3E6E0)); });
    add(sheet, u"cloud"_s, [](Canvas &c) {
        cloud(c, {330, 200}, 620, ink(0x4A4E70));
        cloud(c, {1010, 260}, 760, ink(0x3E4466));
    });
    add(sheet, u"branch"_s, [](Canvas &c) { branch(c, {990, 880}, 900, ink(0x2A1A38), ink(0x6B4A6E)); });
    add(sheet, u"owl"_s, [](Canvas &c) {
        owl(c, {900, 896}, 380,
            {ink(0x8A6A58), ink(0x6B4F45), ink(0xEBD3B4), ink(0xFBF0E2), ink(0xE29A2D), ink(0x231A16)});
    });
    add(sheet, u"fox"_s, [](Canvas &c) { sittingFox(c, {420, 1206}, 330); });
    tell(sheet, u"12"_s, {u"And someone was: one small owl"_s, u"with rain in both her wings."_s});
    const Change rain{.kind = u"words"_s,
                      .severity = u"medium"_s,
                      .title = u"“both her wings” lost its full stop"_s,
                      .before = u"in both her wings."_s,
                      .after = u"in both her wings"_s,
                      .on = {u"text:wings"_s},
                      .make = [](Sheet &s) { s.respell(u"text"_s, u"wings."_s, u"wings"_s); },
                      .verdict = {u"fine"_s, who::teo(), moment(19, 16, 25)}};
    const Change old{.kind = {}, .severity = {}, .title = {}, .make = rain.make}; // nor had the last print
    return {.label = u"12"_s, .ours = sheet, .changes = {rain}, .edits = {old}, .printed = true};
}

Leaf page13()
{
    const Light light = morning();
    Sheet sheet = country(light, 130);
    add(sheet, u"sun"_s, [](Canvas &c) { sun(c, {300, 330}, 110, ink(0xFFF3CF)); });
    add(sheet, u"clouds"_s, [](Canvas &c) {
        cloud(c, {960, 260}, 420, ink(0xFFFFFF, 0.8));
        cloud(c, {560, 480}, 240, ink(0xFFFFFF, 0.6));
    });
    farHills(sheet, light, 130);
    firs(sheet, ink(0x3F837B), {{1130, 960}, {1260, 990}}, 300);
    nearHill(sheet, light, 130, ink(0xF6F0D8));
    add(sheet, u"lantern"_s, [](Canvas &c) { lantern(c, {742, 930}, 240); });
    add(sheet, u"fox"_s, [](Canvas &c) { sittingFox(c, {420, 1210}, 400); });
    add(sheet, u"owl"_s, [](Canvas &c) { owl(c, {1020, 1206}, 270); });
    tell(sheet, u"13"_s, {u"Lit, the last lantern shone"_s, u"no brighter than the rest,"_s, u"and just as far."_s});
    return {.label = u"13"_s, .ours = sheet, .printed = true};
}

Leaf page14()
{
    const Light light = night();
    Sheet sheet = country(light, 140);
    add(sheet, u"moon"_s, [](Canvas &c) { moon(c, {680, 400}, 190); });
    farHills(sheet, light, 140);
    add(sheet, u"village"_s, [](Canvas &c) {
        house(c, {230, 960}, 130, ink(0x3F5A68), ink(0x28394B), ink(0xFFD985));
        house(c, {390, 990}, 160, ink(0x4A6774), ink(0x2C4053), ink(0xFFD985));
        house(c, {1090, 970}, 150, ink(0x3F5A68), ink(0x28394B), ink(0xFFD985));
    });
    nearHill(sheet, light, 140);
    add(sheet, u"cord"_s, [](Canvas &c) {
        cord(c, {{-20, 560}, {220, 640}, {520, 690}, {840, 690}, {1140, 640}, {1390, 550}}, ink(0x131C26), 6);
    });
    for (const double x : {170.0, 430.0, 690.0, 950.0, 1200.0})
        add(sheet, u"lantern %1"_s.arg(x), [x](Canvas &c) {
            lantern(c, {x, 692 - (x - 690) * (x - 690) / 3700}, 116);
        });
    add(sheet, u"fox"_s, [](Canvas &c) { sleepingFox(c, {700, 1206}, 420); });
    tell(sheet, u"14"_s, {u"Good night, hill. Good night, gate."_s, u"Good night, fox."_s});
    return {.label = u"14"_s, .ours = sheet, .printed = true};
}

} // namespace

QList<Leaf> comeHome()
{
    return {page12(), page13(), page14()};
}

} // namespace vexal::sample::fox
