#include "sheet.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

QList<Word> setLine(QPointF at, const Type &type, const QString &text, Align align)
{
    const double width = advance(text, type);
    const double left = align == Align::Left ? 0 : align == Align::Centre ? -width / 2 : -width;
    QList<Word> line;
    qsizetype from = 0;
    for (const QString &word : text.split(u' ')) {
        line.append({word, at + QPointF(left + advance(text.first(from) + u'x', type) - advance(u"x"_s, type), 0)});
        from += word.size() + 1;
    }
    return line;
}

QString bare(const QString &word)
{
    static const QString marks = u".,;:!?“”‘’()"_s;
    QString out;
    for (const QChar letter : word)
        if (!marks.contains(letter))
            out.append(letter == QChar::Nbsp ? u' ' : letter);
    return out;
}

void paintSetting(Canvas &canvas, const QString &name, const Setting &setting)
{
    for (qsizetype i = 0; i < setting.lines.size(); ++i) {
        const auto line = canvas.named(name + u'/' + QString::number(i + 1));
        for (const Word &word : setting.lines.at(i)) {
            const QString known = name + u':' + bare(word.text);
            const auto scope = canvas.named(canvas.places().contains(known) ? QString() : known);
            canvas.fill(words(word.text, setting.type).translated(word.at), setting.type.colour);
        }
    }
}

void paintItem(Canvas &canvas, const Item &item)
{
    const auto scope = canvas.named(item.name);
    if (const Art *art = std::get_if<Art>(&item.what))
        (*art)(canvas);
    else
        paintSetting(canvas, item.name, std::get<Setting>(item.what));
}

Print paintWhole(const Sheet &sheet)
{
    Print print{QImage(sheet.size, QImage::Format_RGB32), {}};
    print.image.fill(sheet.paper);
    Canvas canvas(&print.image);
    paintOnto(canvas, sheet);
    print.places = canvas.places();
    return print;
}

} // namespace

Setting setLines(QPointF at, const Type &type, const QStringList &lines, Align align, double leading)
{
    Setting setting{type, at, align, leading * type.size, {}};
    for (qsizetype i = 0; i < lines.size(); ++i)
        setting.lines.append(
            setLine(at + QPointF(0, static_cast<double>(i) * setting.leading), type, lines.at(i), align));
    return setting;
}

void Sheet::add(const QString &name, Art art)
{
    items.append({name, std::move(art)});
}

void Sheet::add(const QString &name, Setting setting)
{
    items.append({name, std::move(setting)});
}

void Sheet::remove(const QString &name)
{
    items.removeAt(find(name));
}

void Sheet::replace(const QString &name, Art art)
{
    items[find(name)].what = std::move(art);
}

void Sheet::respell(const QString &name, const QString &word, const QString &as)
{
    for (QList<Word> &line : setting(name).lines) {
        for (Word &set : line) {
            if (set.text != word)
                continue;
            set.text = as;
            return;
        }
    }
    qFatal("No word %ls in %ls", qUtf16Printable(word), qUtf16Printable(name));
}

void Sheet::rebreak(const QString &name, const QStringList &lines)
{
    Setting &old = setting(name);
    old = setLines(old.at, old.type, lines, old.align, old.leading / old.type.size);
}

void Sheet::reword(const QString &name, int line, const QString &text)
{
    Setting &old = setting(name);
    old.lines[line - 1] = setLine(old.at + QPointF(0, (line - 1) * old.leading), old.type, text, old.align);
}

void Sheet::reface(const QString &name, Face face)
{
    Setting &old = setting(name);
    old.type.face = face;
    for (qsizetype i = 0; i < old.lines.size(); ++i) {
        QStringList texts;
        for (const Word &word : std::as_const(old.lines[i]))
            texts.append(word.text);
        reword(name, static_cast<int>(i) + 1, texts.join(u' '));
    }
}

void Sheet::recolour(const QString &name, const QColor &colour)
{
    setting(name).type.colour = colour;
}

void Sheet::bury(const QString &name, const QString &under)
{
    const Item item = items.takeAt(find(name));
    items.insert(find(under), item);
}

qsizetype Sheet::find(const QString &name) const
{
    for (qsizetype i = 0; i < items.size(); ++i)
        if (items.at(i).name == name)
            return i;
    qFatal("No %ls on the page", qUtf16Printable(name));
}

Setting &Sheet::setting(const QString &name)
{
    Setting *setting = std::get_if<Setting>(&items[find(name)].what);
    if (!setting)
        qFatal("%ls is not made of words", qUtf16Printable(name));
    return *setting;
}

void paintOnto(Canvas &canvas, const Sheet &sheet)
{
    for (const Item &item : sheet.items)
        paintItem(canvas, item);
}

Print paint(const Sheet &sheet)
{
    Print print = paintWhole(sheet);
    if (!sheet.trim.isValid())
        return print;
    print.image = print.image.copy(sheet.trim);
    for (QRectF &place : print.places)
        place = place.translated(-sheet.trim.topLeft()) & QRectF(print.image.rect());
    return print;
}

} // namespace vexal::sample
