#include "country.h"

#include "fox.h"
#include "land.h"
#include "lantern.h"
#include "people.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::fox {

namespace {

void hang(Sheet &sheet, const QString &name, QPointF at, double height, bool lit, const QColor &bag)
{
    add(sheet, name, [=](Canvas &c) { lantern(c, at, height, lit, bag); });
}

Sheet theNight()
{
    const Light light = night();
    Sheet sheet = country(light, 70);
    add(sheet, u"moon"_s, [](Canvas &c) { moon(c, {1006, 290}, 150); });
    farHills(sheet, light, 70);
    firs(sheet, ink(0x17404B), {{120, 950}, {300, 930}, {850, 930}, {1196, 930}, {1296, 960}}, 220);
    nearHill(sheet, light, 70);
    add(sheet, u"tree"_s, [](Canvas &c) { oldTree(c, {290, 1290}, 1270, ink(0x14242B), ink(0x1F4A45)); });
    add(sheet, u"cord"_s, [](Canvas &c) {
        cord(c, {{-20, 210}, {180, 290}, {440, 326}, {640, 316}, {860, 284}, {1040, 330}, {1200, 372}, {1390, 350}},
             ink(0x131C26), 6);
    });
    const QColor amber = ink(0xF2A03C);
    const QColor rust = ink(0xF08A3A);
    hang(sheet, u"lantern 1"_s, {420, 326}, 126, true, amber);
    hang(sheet, u"lantern 2"_s, {604, 318}, 112, true, rust);
    hang(sheet, u"lantern 3"_s, {790, 292}, 120, true, rust);
    hang(sheet, u"lantern 4"_s, {1116, 352}, 122, true, amber);
    hang(sheet, u"lantern 5"_s, {1272, 366}, 116, false, amber);
    add(sheet, u"fireflies"_s, [](Canvas &c) { fireflies(c, {80, 960, 1200, 230}, 12, 71, ink(0xFFD98A)); });
    add(sheet, u"fox"_s, [](Canvas &c) { sittingFox(c, {760, 1206}, 370); });
    tell(sheet, u"7"_s,
         {u"Far below the sleeping hills,"_s, u"the little fox lit every lantern"_s, u"but one, and listened."_s});
    return sheet;
}

QList<Change> mistakes()
{
    const Change word{.kind = u"words"_s,
                      .severity = u"high"_s,
                      .title = u"“lantern” reads “lantem”"_s,
                      .detail = u"The r and n have run together on line 2."_s,
                      .before = u"lit every lantern"_s,
                      .after = u"lit every lantem"_s,
                      .on = {u"text:lantem"_s},
                      .ours = {u"text:lantern"_s},
                      .make = [](Sheet &s) { s.respell(u"text"_s, u"lantern"_s, u"lantem"_s); },
                      .verdict = {u"issue"_s, who::mira(), moment(20, 15, 36)}};
    const Change gone{.kind = u"picture"_s,
                      .severity = u"medium"_s,
                      .title = u"A lantern is gone from the line"_s,
                      .detail =
                          u"Ours has five lanterns on the line; this page has four. The last print had four as well."_s,
                      .on = {u"lantern 4"_s},
                      .make = [](Sheet &s) { s.remove(u"lantern 4"_s); }};
    const Change fonts{.kind = u"pass"_s, .severity = u"low"_s, .title = u"Every font of ours is in the file"_s};
    const Change breaks{.kind = u"pass"_s, .severity = u"low"_s, .title = u"Lines break where ours do"_s};
    const Change folio{.kind = u"pass"_s, .severity = u"low"_s, .title = u"The folio is in its place"_s};
    return {word, gone, fonts, breaks, folio};
}

QList<Change> edits()
{
    const Change beneath{.kind = u"expected"_s,
                         .severity = u"low"_s,
                         .title = u"“beneath” became “below”"_s,
                         .before = u"Far beneath the sleeping hills,"_s,
                         .after = u"Far below the sleeping hills,"_s,
                         .on = {u"text/1"_s},
                         .make = [](Sheet &s) { s.reword(u"text"_s, 1, u"Far beneath the sleeping hills,"_s); }};
    const Change small{.kind = u"expected"_s,
                       .severity = u"low"_s,
                       .title = u"The small fox is a little fox"_s,
                       .before = u"the small fox lit every lantern"_s,
                       .after = u"the little fox lit every lantern"_s,
                       .on = {u"text/2"_s},
                       .make = [](Sheet &s) { s.reword(u"text"_s, 2, u"the small fox lit every lantern"_s); }};
    const Change lantern{.kind = {}, .severity = {}, .title = {}, .make = [](Sheet &s) { s.remove(u"lantern 4"_s); }};
    return {beneath, small, lantern};
}

} // namespace

Leaf theLine()
{
    return {.label = u"7"_s, .ours = theNight(), .changes = mistakes(), .edits = edits(), .printed = true};
}

} // namespace vexal::sample::fox
