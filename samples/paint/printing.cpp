#include "printing.h"

#include "type.h"

#include <array>

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

/// The seven modules of each digit in its odd form, from left to right; 1 is a bar.
constexpr std::array odd{"0001101"_L1, "0011001"_L1, "0010011"_L1, "0111101"_L1, "0100011"_L1,
                         "0110001"_L1, "0101111"_L1, "0111011"_L1, "0110111"_L1, "0001011"_L1};

/// Which of the six left digits are even: their form tells the first digit of the number.
constexpr std::array parity{"000000"_L1, "001011"_L1, "001101"_L1, "001110"_L1, "010011"_L1,
                            "011001"_L1, "011100"_L1, "010101"_L1, "010110"_L1, "011010"_L1};

/// The form right of the middle: bars and gaps change places.
QString rightForm(QLatin1StringView modules)
{
    QString form;
    for (const char module : modules)
        form.append(module == '1' ? u'0' : u'1');
    return form;
}

/// The even form is the right one backwards.
QString evenForm(QLatin1StringView modules)
{
    QString form;
    for (const QChar module : rightForm(modules))
        form.prepend(module);
    return form;
}

/// All 95 modules of a number.
QString modulesOf(const QString &number)
{
    const QLatin1StringView forms = parity.at(static_cast<size_t>(number.at(0).digitValue()));
    QString all = u"101"_s;
    for (int i = 1; i <= 6; ++i) {
        const QLatin1StringView digit = odd.at(static_cast<size_t>(number.at(i).digitValue()));
        all += forms.at(i - 1) == u'1' ? evenForm(digit) : QString(digit);
    }
    all += u"01010"_s;
    for (int i = 7; i <= 12; ++i)
        all += rightForm(odd.at(static_cast<size_t>(number.at(i).digitValue())));
    return all + u"101"_s;
}

bool isGuard(qsizetype module)
{
    return module < 3 || module >= 92 || (module >= 45 && module < 50);
}

void target(Canvas &canvas, QPointF at)
{
    const auto placed = canvas.placed(at);
    canvas.stroke(circle({0, 0}, 9), Qt::black, 1.4);
    canvas.stroke(outline("M-18 0 H18 M0 -18 V18"_L1), Qt::black, 1.4, Qt::FlatCap);
}

void cropMarks(Canvas &canvas, const QRectF &trim)
{
    constexpr double gap = 26;
    constexpr double length = 36;
    QPainterPath marks;
    for (const double x : {trim.left(), trim.right()}) {
        marks.moveTo(x, trim.top() - gap - length);
        marks.lineTo(x, trim.top() - gap);
        marks.moveTo(x, trim.bottom() + gap);
        marks.lineTo(x, trim.bottom() + gap + length);
    }
    for (const double y : {trim.top(), trim.bottom()}) {
        marks.moveTo(trim.left() - gap - length, y);
        marks.lineTo(trim.left() - gap, y);
        marks.moveTo(trim.right() + gap, y);
        marks.lineTo(trim.right() + gap + length, y);
    }
    canvas.stroke(marks, Qt::black, 1.6, Qt::FlatCap);
}

void colourBar(Canvas &canvas, QPointF at)
{
    double x = at.x();
    for (const QRgb code : {0x00A0DEU, 0xE3007BU, 0xFFE600U, 0x231F20U, 0x7FCFEEU, 0xF17FBDU, 0xFFF27FU, 0x919191U,
                            0x2E3092U, 0xE4002BU, 0x00963FU}) {
        canvas.fill(box({x, at.y(), 22, 22}), ink(code));
        x += 22;
    }
}

} // namespace

QChar checkDigit(QStringView twelve)
{
    int sum = 0;
    for (qsizetype i = 0; i < 12; ++i)
        sum += twelve.at(i).digitValue() * (i % 2 == 0 ? 1 : 3);
    return QChar(u'0' + (10 - sum % 10) % 10);
}

void barcode(Canvas &canvas, QPointF at, double module, const QString &number)
{
    const auto placed = canvas.placed(at, module);
    canvas.fill(box({-13, -5, 116, 78}), Qt::white);
    const QString all = modulesOf(number);
    QPainterPath bars;
    for (qsizetype i = 0; i < all.size(); ++i)
        if (all.at(i) == u'1')
            bars.addRect(QRectF(static_cast<double>(i), 0, 1, isGuard(i) ? 65 : 60));
    canvas.fill(bars, Qt::black);
    const Type digit{Face::SansMedium, 9.4, Qt::black};
    const auto write = [&](int index, double middle) {
        const QString one(number.at(index));
        canvas.fill(words(one, digit).translated(middle - advance(one, digit) / 2, 69.4), Qt::black);
    };
    write(0, -7);
    for (int i = 1; i <= 12; ++i)
        write(i, i <= 6 ? 3 + 7 * (i - 1) + 3.5 : 50 + 7 * (i - 7) + 3.5);
}

void printMarks(Canvas &canvas, const QSize &sheet, const QRectF &trim, const QString &line)
{
    cropMarks(canvas, trim);
    const double above = trim.top() / 2;
    const double below = (trim.bottom() + sheet.height()) / 2;
    target(canvas, {trim.center().x(), above});
    target(canvas, {trim.center().x(), below});
    target(canvas, {trim.left() / 2, trim.center().y()});
    target(canvas, {(trim.right() + sheet.width()) / 2, trim.center().y()});
    const Type slug{Face::Sans, 19, ink(0x333333)};
    canvas.fill(words(line, slug).translated(trim.left() + 20, above + 6), slug.colour);
    colourBar(canvas, {trim.right() - 262, below - 11});
}

void medal(Canvas &canvas, QPointF at, double radius, const Medal &medal)
{
    const auto placed = canvas.placed(at, radius / 100);
    canvas.fill(circle({2, 4}, 101), ink(0x000000, 0.22));
    canvas.fill(star({0, 0}, 102, 95, 36, 0.6), mix(medal.metal, medal.dark, 0.22));
    QLinearGradient shine(-70, -90, 70, 90);
    shine.setColorAt(0, mix(medal.metal, Qt::white, 0.42));
    shine.setColorAt(0.5, medal.metal);
    shine.setColorAt(1, mix(medal.metal, medal.dark, 0.18));
    canvas.fill(circle({0, 0}, 94), shine);
    canvas.stroke(circle({0, 0}, 87), medal.dark, 1.6);
    canvas.stroke(circle({0, 0}, 63), medal.dark, 1.6);
    const Type rim{Face::BookmanDemi, 12.6, medal.dark, 110};
    canvas.fill(wordsRound(medal.above, rim, 70.5), medal.dark);
    canvas.fill(wordsRound(medal.below, rim, 79.5, true), medal.dark);
    canvas.fill(star({-75, 0}, 6, 2.6, 5), medal.dark);
    canvas.fill(star({75, 0}, 6, 2.6, 5), medal.dark);
}

void imprint(Canvas &canvas, QPointF at, double height, const QColor &colour)
{
    const auto placed = canvas.placed(at, height / 100);
    canvas.stroke(outline("M-34 0 L0 -34 L34 0"_L1).translated(0, -62), colour, 6);
    canvas.stroke(outline("M-24 -68 L-24 -20 L24 -20 L24 -68"_L1), colour, 5);
    canvas.fill(outline("M-9 -66 L9 -66 C14 -56 14 -44 9 -34 L-9 -34 C-14 -44 -14 -56 -9 -66 Z"_L1), colour);
    canvas.stroke(outline("M0 -78 L0 -66 M-7 -29 H7"_L1), colour, 3.4);
    const Type name{Face::GothicDemi, 22, colour, 190};
    const QString text = u"LANTERN HOUSE"_s;
    canvas.fill(words(text, name).translated(-advance(text, name) / 2, 16), colour);
}

} // namespace vexal::sample
