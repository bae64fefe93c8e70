#include "leaves.h"

#include "bread.h"
#include "people.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::bread {

namespace {

const QColor brown = ink(0x5A2F1A);

Sheet endpaper(quint64 seed)
{
    Sheet sheet{page, ink(0xF7E3B0), {}};
    sheet.add(u"wheat"_s, [seed](Canvas &c) {
        Dice dice(seed);
        for (int row = 0; row < 10; ++row)
            for (int i = 0; i < 8; ++i) {
                const QPointF at(90.0 + 180 * i + (row % 2) * 90, 190.0 + 184 * row);
                if ((row + i) % 4 == 3)
                    slice(c, at - QPointF(0, 60), 84, ink(0xC98A4A), dice.between(-24, 24));
                else
                    wheat(c, at, 158, (row + i) % 2 == 0 ? ink(0xD9A441) : ink(0xC5853A), dice.between(-16, 16));
            }
    });
    return sheet;
}

} // namespace

Leaf insideFront()
{
    return {.label = u"C2"_s, .ours = endpaper(904), .printed = true};
}

Leaf insideBack()
{
    Sheet sheet = endpaper(905);
    sheet.add(u"plate"_s, [](Canvas &c) {
        c.fill(box({240, 560, 880, 600}, 30), ink(0xFBF4E2));
        c.stroke(box({262, 582, 836, 556}, 20), ink(0xC5853A), 4);
    });
    sheet.add(u"also"_s, setLines({680, 700}, {Face::BookmanDemiItalic, 50, brown}, {u"Also from Lantern House"_s}));
    sheet.add(u"list"_s, setLines({680, 800}, {Face::Bookman, 44, ink(0x3F2A20)},
                                  {u"The Lantern Fox"_s, u"A Letter by Owl"_s, u"The Extraordinarily Slow Post"_s,
                                   u"Lighthouse Songs"_s},
                                  Align::Centre, 1.6));
    const Change slow{.kind = u"words"_s,
                      .severity = u"medium"_s,
                      .title = u"“Lighthouse” reads “Light house”"_s,
                      .before = u"Lighthouse Songs"_s,
                      .after = u"Light house Songs"_s,
                      .on = {u"list/4"_s},
                      .make = [](Sheet &s) { s.reword(u"list"_s, 4, u"Light house Songs"_s); },
                      .verdict = {u"issue"_s, who::teo(), moment(18, 10, 20)}};
    const Change added{.kind = u"expected"_s,
                       .severity = u"low"_s,
                       .title = u"Lighthouse Songs joined the list"_s,
                       .on = {u"list/4"_s},
                       .make = [](Sheet &s) { s.reword(u"list"_s, 4, u" "_s); }};
    return {.label = u"C3"_s, .ours = sheet, .changes = {slow}, .edits = {added}, .printed = true};
}

} // namespace vexal::sample::bread
