#include "symbols.h"

#include <QFile>
#include <QHash>
#include <QMap>

using namespace Qt::StringLiterals;

namespace vexal {
namespace {
using Outlines = QMap<QString, QString>; // name -> "stroke TAB path"

Outlines readOutlines()
{
    Outlines outlines;
    QFile file(u":/vexal/symbols/symbols.tsv"_s);
    if (!file.open(QIODevice::ReadOnly))
        return outlines;
    const QString text = QString::fromUtf8(file.readAll());
    for (const QStringView line : QStringView(text).tokenize(u'\n', Qt::SkipEmptyParts)) {
        const qsizetype tab = line.indexOf(u'\t');
        if (!line.startsWith(u'#') && tab > 0)
            outlines.insert(line.first(tab).toString(), line.sliced(tab + 1).toString());
    }
    return outlines;
}

const Outlines &outlines()
{
    static const Outlines all = readOutlines();
    return all;
}

SymbolShape shapeOf(QStringView outline)
{
    const qsizetype tab = outline.indexOf(u'\t');
    SymbolShape shape{parsedPath(outline.sliced(tab + 1)).value_or(QPainterPath()), outline.first(tab).toDouble()};
    shape.path.setFillRule(Qt::WindingFill);
    return shape;
}

// Takes `count` numbers from the front of the words; false where there are fewer.
bool takeNumbers(QList<QStringView> &words, qsizetype count, qreal *numbers)
{
    if (words.size() < count)
        return false;
    for (qsizetype i = 0; i < count; ++i) {
        bool isNumber = false;
        numbers[i] = words.takeFirst().toDouble(&isNumber);
        if (!isNumber)
            return false;
    }
    return true;
}
} // namespace

std::optional<SymbolShape> symbolShape(const QString &name)
{
    static QHash<QString, SymbolShape> drawn;
    if (const auto known = drawn.constFind(name); known != drawn.constEnd())
        return *known;
    const auto outline = outlines().constFind(name);
    if (outline == outlines().constEnd())
        return std::nullopt;
    return *drawn.insert(name, shapeOf(*outline));
}

QStringList symbolNames()
{
    return outlines().keys();
}

std::optional<QPainterPath> parsedPath(QStringView text)
{
    QPainterPath path;
    qreal n[6];
    auto words = text.split(u' ', Qt::SkipEmptyParts);
    while (!words.isEmpty()) {
        const QStringView command = words.takeFirst();
        if (command == u"M" && takeNumbers(words, 2, n))
            path.moveTo(n[0], n[1]);
        else if (command == u"L" && takeNumbers(words, 2, n))
            path.lineTo(n[0], n[1]);
        else if (command == u"C" && takeNumbers(words, 6, n))
            path.cubicTo(n[0], n[1], n[2], n[3], n[4], n[5]);
        else if (command == u"Z")
            path.closeSubpath();
        else
            return std::nullopt;
    }
    return path;
}
} // namespace vexal
