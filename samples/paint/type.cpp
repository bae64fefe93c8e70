#include "type.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <QtMath>

#include <array>

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

/// Outlines are taken at this size, at which no rounding shows, and scaled down.
constexpr double cutSize = 1000;

QString fileOf(Face face)
{
    static constexpr std::array files{
        "urw-base35/C059-Roman.otf",
        "urw-base35/C059-Italic.otf",
        "urw-base35/C059-Bold.otf",
        "urw-base35/P052-Roman.otf",
        "urw-base35/P052-Italic.otf",
        "urw-base35/P052-Bold.otf",
        "urw-base35/URWBookman-Light.otf",
        "urw-base35/URWBookman-LightItalic.otf",
        "urw-base35/URWBookman-Demi.otf",
        "urw-base35/URWBookman-DemiItalic.otf",
        "urw-base35/URWGothic-Book.otf",
        "urw-base35/URWGothic-Demi.otf",
        "urw-base35/Z003-MediumItalic.otf",
        "urw-base35/NimbusRoman-Regular.otf",
        "urw-base35/NimbusRoman-Italic.otf",
        "inter/Inter-Regular.otf",
        "inter/Inter-Medium.otf",
        "inter/Inter-SemiBold.otf",
    };
    return QStringLiteral(VEXAL_SAMPLE_FONTS "/") + QLatin1StringView(files.at(static_cast<size_t>(face)));
}

/// A raw font belongs to the thread that opened it.
const QRawFont &fontOf(Face face)
{
    thread_local QMap<Face, QRawFont> fonts;
    QRawFont &font = fonts[face];
    if (!font.isValid())
        font.loadFromFile(fileOf(face), cutSize, QFont::PreferNoHinting);
    if (!font.isValid())
        qFatal("No font in %ls", qUtf16Printable(fileOf(face)));
    return font;
}

struct Glyph
{
    QPainterPath shape; ///< On a baseline from the origin.
    double from;        ///< Where it stands on the line.
    double width;
};

QList<Glyph> glyphs(const QString &text, const Type &type)
{
    QTextLayout layout(text);
    layout.setRawFont(fontOf(type.face));
    layout.beginLayout();
    layout.createLine().setNumColumns(static_cast<int>(text.size()) + 1);
    layout.endLayout();
    const double scale = type.size / cutSize;
    const QTransform shrink = QTransform::fromScale(scale, scale);
    QList<Glyph> out;
    for (const QGlyphRun &run : layout.glyphRuns()) {
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> advances = run.rawFont().advancesForGlyphIndexes(indexes);
        for (qsizetype i = 0; i < indexes.size(); ++i)
            out.append({shrink.map(run.rawFont().pathForGlyph(indexes.at(i))),
                        run.positions().at(i).x() * scale + static_cast<double>(out.size()) * type.tracking * scale,
                        advances.at(i).x() * scale});
    }
    return out;
}

} // namespace

QPainterPath words(const QString &text, const Type &type)
{
    QPainterPath line;
    line.setFillRule(Qt::WindingFill);
    for (const Glyph &glyph : glyphs(text, type))
        line.addPath(glyph.shape.translated(glyph.from, 0));
    return line;
}

double advance(const QString &text, const Type &type)
{
    const QList<Glyph> line = glyphs(text, type);
    return line.isEmpty() ? 0 : line.last().from + line.last().width;
}

QPainterPath wordsRound(const QString &text, const Type &type, double radius, bool foot)
{
    QPainterPath ring;
    ring.setFillRule(Qt::WindingFill);
    const double half = advance(text, type) / 2;
    for (const Glyph &glyph : glyphs(text, type)) {
        const double middle = glyph.from + glyph.width / 2 - half;
        const double angle = qRadiansToDegrees(middle / radius) * (foot ? -1 : 1);
        QTransform turn;
        turn.rotate(angle);
        turn.translate(-glyph.width / 2, foot ? radius : -radius);
        ring.addPath(turn.map(glyph.shape));
    }
    return ring;
}

} // namespace vexal::sample
