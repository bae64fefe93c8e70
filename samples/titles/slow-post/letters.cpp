#include "leaves.h"

#include "post.h"
#include "printing.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::slow {

namespace {

constexpr QSize letterSize{1280, 1700};
const QColor sepia = ink(0x5B4632);

Sheet letterPage(const QString &number, const QString &greeting, const QStringList &lines, const QString &sender,
                 bool night)
{
    Sheet sheet{letterSize, night ? ink(0xEFEBDD) : ink(0xFBF3E0), {}};
    sheet.add(u"lines"_s, [](Canvas &c) {
        for (int i = 0; i < 14; ++i)
            c.fill(box({130, 560 + 76.0 * i, 1020, 2}), ink(0xB7C7CF, 0.7));
        c.fill(box({0, 0, 1280, 26}), ink(0xC8503A));
        for (int i = 0; i < 33; ++i)
            c.fill(polygon({{40.0 * i, 0}, {40.0 * i + 20, 0}, {40.0 * i + 8, 26}, {40.0 * i - 12, 26}}),
                   i % 2 == 0 ? ink(0x3F5C7A) : ink(0xFBF3E0));
    });
    sheet.add(u"stamp"_s, [night](Canvas &c) {
        const auto placed = c.placed({1040, 250}, 2.1, 4);
        stampPaper(c, ink(0xFFFDF6), night ? ink(0x2B4663) : ink(0xF2C879));
        if (night)
            moon(c, {0, -8}, 24, {});
        else
            balloon(c, {0, 40}, 82, ink(0xFBF1DC), ink(0xD1503B));
    });
    sheet.add(u"postmark"_s, [](Canvas &c) {
        postmark(c, {830, 270}, 100, u"HOLLOW HILL"_s, u"18 XI"_s, ink(0x3A3A4A, 0.75));
    });
    sheet.add(u"number"_s, setLines({130, 250}, {Face::PalladioItalic, 46, ink(0x9A5A3C)}, {number}, Align::Left));
    sheet.add(u"greeting"_s, setLines({130, 474}, {Face::Chancery, 84, sepia}, {greeting}, Align::Left));
    sheet.add(u"body"_s, setLines({130, 624}, {Face::Chancery, 56, ink(0x3A3F52)}, lines, Align::Left, 76.0 / 56));
    sheet.add(u"sender"_s, setLines({1150, 1620}, {Face::Chancery, 74, sepia}, {sender}, Align::Right));
    sheet.add(u"snail"_s, [night](Canvas &c) {
        postSnail(c, {270, 1640}, 220, night ? ink(0x9C6FA0) : ink(0xD98F52), ink(0xBFA76A));
    });
    return sheet;
}

} // namespace

Leaf letterTwo()
{
    const Sheet sheet =
        letterPage(u"Letter the second"_s, u"Dear Aunt Odile,"_s,
                   {u"We set out on Monday. It is now the other"_s, u"Monday, and we can still see the house."_s,
                    u"The snail says this is good time for the"_s, u"season. I have eaten the sandwiches and"_s,
                    u"also, I am sorry, the cake that was yours."_s, u"The balloon waits for us at every corner"_s,
                    u"and has not once looked at its watch."_s, QString(), u"I will write again from the gate, which"_s,
                    u"we should reach by Thursday."_s},
                   u"Your loving Tam"_s, false);
    const Change breaks{.kind = u"breaks"_s,
                        .severity = u"low"_s,
                        .title = u"The third line breaks one word early"_s,
                        .before = u"The snail says this is good time for the / season."_s,
                        .after = u"The snail says this is good time for / the season."_s,
                        .on = {u"body/3"_s, u"body/4"_s},
                        .make = [](Sheet &s) {
                            s.reword(u"body"_s, 3, u"The snail says this is good time for"_s);
                            s.reword(u"body"_s, 4, u"the season. I have eaten the sandwiches and"_s);
                        }};
    return {.label = u"2"_s, .ours = sheet, .changes = {breaks}};
}

Leaf letterThree()
{
    const Sheet sheet = letterPage(
        u"Letter the third"_s, u"Dear Aunt Odile,"_s,
        {u"It rained, which snails like, so we went"_s, u"nearly fast. I had to hold on to my hat."_s,
         u"At the mill they asked where we were bound"_s, u"and laughed, but kindly, and gave us soup."_s, QString(),
         u"The balloon has learned to whistle."_s, QString(), u"Please do not wait with dinner."_s},
        u"Still your Tam"_s, true);
    const Change size{.kind = u"size"_s,
                      .severity = u"high"_s,
                      .title = u"The page is 5 mm narrower and 3 mm shorter than ours"_s,
                      .detail = u"It was cut on the right and at the foot."_s,
                      .before = u"108.4 × 143.9 mm"_s,
                      .after = u"103.3 × 140.9 mm"_s,
                      .make = [](Sheet &s) { s.trim = QRect(0, 0, 1220, 1664); }};
    return {.label = u"3"_s, .ours = sheet, .changes = {size}};
}

Leaf controlPage()
{
    Sheet sheet{letterSize, Qt::white, {}};
    sheet.add(u"marks"_s, [](Canvas &c) {
        printMarks(c, letterSize, {90, 90, 1100, 1520}, u"Ostrel Print · press 4 · sheet control · do not bind"_s);
        const QList<QColor> plates{ink(0x00A0DE), ink(0xE3007B), ink(0xFFE600), ink(0x231F20)};
        for (qsizetype plate = 0; plate < plates.size(); ++plate)
            for (int step = 0; step < 10; ++step)
                c.fill(box({150 + 98.0 * step, 420 + 150.0 * static_cast<double>(plate), 90, 120}),
                       mix(Qt::white, plates.at(plate), 0.1 * (step + 1)));
        for (int i = 0; i < 5; ++i)
            c.stroke(circle({640, 1260}, 26 + 34.0 * i), Qt::black, 1 + i * 1.5);
    });
    sheet.add(u"title"_s, setLines({640, 300}, {Face::SansSemibold, 52, ink(0x333333)}, {u"Press control sheet"_s}));
    const Change extra{.kind = u"extra_page"_s,
                       .severity = u"medium"_s,
                       .title = u"This page is not in our file"_s,
                       .detail = u"It looks like a control sheet of the press that was bound into the proof."_s};
    return {.label = {}, .ours = sheet, .changes = {extra}, .sent = false, .flat = true};
}

} // namespace vexal::sample::slow
