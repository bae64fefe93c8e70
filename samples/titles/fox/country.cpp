#include "country.h"

#include "land.h"
#include "sky.h"

using namespace Qt::StringLiterals;

namespace vexal::sample::fox {

QColor paper()
{
    return ink(0xFBF6EA);
}

QColor black()
{
    return ink(0x231F20);
}

QColor cream()
{
    return ink(0xFBEFD2);
}

Light night()
{
    return {{ink(0x14214A), ink(0x24446B), ink(0x3D6478)},
            ink(0x2C5661),
            ink(0x1E4655),
            ink(0x16343C),
            ink(0x0F262D),
            ink(0xFFF3D0)};
}

Light dusk()
{
    return {{ink(0x33204E), ink(0x75406A), ink(0xDB8F7C)},
            ink(0x774972),
            ink(0x553460),
            ink(0x3C254C),
            ink(0x2A1A38),
            ink(0xFBD9C0)};
}

Light day()
{
    return {
        {ink(0xBFE0E4), ink(0xDDEEDD), ink(0xF8F2D2)}, ink(0xB4D09C), ink(0x92BA78), ink(0x6F9F5A), ink(0x527F46), {}};
}

Light deepNight()
{
    return {{ink(0x0B2636), ink(0x11484F), ink(0x3C7A74)},
            ink(0x1F5A58),
            ink(0x174748),
            ink(0x103537),
            ink(0x0A2528),
            ink(0xDDF5E4)};
}

Light dawn()
{
    return {
        {ink(0xF4C57C), ink(0xF8B97C), ink(0xF9E2B8)}, ink(0xE39C63), ink(0xCC7A4B), ink(0xA9583A), ink(0x82402E), {}};
}

Light morning()
{
    return {
        {ink(0x7FBCCB), ink(0xB9DEDC), ink(0xF5F0D6)}, ink(0x93BFB2), ink(0x609C94), ink(0x3F7C78), ink(0x2C6261), {}};
}

void add(Sheet &sheet, const QString &name, Art art)
{
    sheet.add(name, [art = std::move(art)](Canvas &canvas) {
        const auto frame = canvas.clipped(box(picture));
        art(canvas);
    });
}

Sheet country(const Light &light, quint64 seed)
{
    Sheet sheet{page, paper(), {}};
    add(sheet, u"sky"_s, [light, seed](Canvas &c) {
        sky(c, picture, light.sky);
        if (light.star.isValid())
            stars(c, {0, 0, 1360, 820}, 210, seed, light.star);
    });
    return sheet;
}

void farHills(Sheet &sheet, const Light &light, quint64 seed)
{
    add(sheet, u"far hills"_s, [light, seed](Canvas &c) {
        hills(c, picture, 830, 92, seed + 1, light.far, mix(light.far, light.sky.last(), 0.3));
        mist(c, {0, 860, 1360, 180}, ink(light.sky.last().rgb(), 0.14));
        hills(c, picture, 930, 70, seed + 2, light.middle, mix(light.middle, light.near, 0.5));
    });
}

void nearHill(Sheet &sheet, const Light &light, quint64 seed, const QColor &petal)
{
    add(sheet, u"near hill"_s, [light, seed, petal](Canvas &c) {
        hills(c, picture, 1060, 46, seed + 3, light.near, light.front);
        meadow(c, {0, 1130, 1360, 150}, petal.isValid() ? 44 : 30, seed + 4, light.front, petal);
    });
}

void firs(Sheet &sheet, const QColor &colour, const QList<QPointF> &feet, double height)
{
    add(sheet, u"firs"_s, [=](Canvas &c) {
        for (qsizetype i = 0; i < feet.size(); ++i)
            fir(c, feet.at(i), i % 2 == 0 ? height : height * 0.68, colour);
    });
}

void tell(Sheet &sheet, const QString &folio, const QStringList &lines)
{
    sheet.add(u"paper"_s, [](Canvas &c) { c.fill(box({0, 1266, 1360, 434}), paper()); });
    const double top = lines.size() > 2 ? 1392 : 1432;
    sheet.add(u"text"_s, setLines({680, top}, {Face::Schoolbook, 58, black()}, lines, Align::Centre, 1.4));
    sheet.add(u"folio"_s, setLines({680, 1646}, {Face::Schoolbook, 27, ink(0x5D5550)}, {folio}));
}

} // namespace vexal::sample::fox
