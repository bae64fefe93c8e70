#pragma once

#include "canvas.h"
#include "type.h"

#include <functional>
#include <variant>

namespace vexal::sample {

/// Something painted: a thing, its place and its colours, closed over.
using Art = std::function<void(Canvas &)>;

enum class Align { Left, Centre, Right };

/// One word where it was set. A word that is later spelled otherwise stays there, and so do its neighbours.
struct Word
{
    QString text;
    QPointF at; ///< The start of its baseline.
};

/// Lines of words as they were set. A no-break space keeps two words one.
struct Setting
{
    Type type;
    QPointF at; ///< The first baseline: its left end, middle or right end, as `align` says.
    Align align = Align::Centre;
    double leading = 0; ///< From baseline to baseline, in pixels.
    QList<QList<Word>> lines;
};

/// Sets lines of words. `leading` is in sizes of the type.
Setting setLines(QPointF at, const Type &type, const QStringList &lines, Align align = Align::Centre,
                 double leading = 1.42);

/// One thing on a page, known by its name. The lines of a setting are known as name/1, name/2, ..., its words as
/// name:word.
struct Item
{
    QString name;
    std::variant<Art, Setting> what;
};

/// A page as a value: what is on it, from the back to the front. Changing a page is changing this.
struct Sheet
{
    QSize size; ///< In pixels.
    QColor paper = Qt::white;
    QList<Item> items;
    QRect trim = {}; ///< What is left of it after the knife; the whole page unless valid.

    void add(const QString &name, Art art);
    void add(const QString &name, Setting setting);

    /// Each of these stops the program when the page has no such thing: a change that changes nothing is a mistake.
    void remove(const QString &name);
    void replace(const QString &name, Art art);
    void respell(const QString &name, const QString &word, const QString &as);
    void rebreak(const QString &name, const QStringList &lines);
    void reword(const QString &name, int line, const QString &text);
    void reface(const QString &name, Face face);
    void recolour(const QString &name, const QColor &colour);
    /// Puts the thing right behind the other one, which then hides it where both are.
    void bury(const QString &name, const QString &under);

private:
    qsizetype find(const QString &name) const;
    Setting &setting(const QString &name);
};

/// A painted page, and where its things came to lie.
struct Print
{
    QImage image;
    Places places;
};

Print paint(const Sheet &sheet);

/// Paints the things of a page onto another one, as a picture of it.
void paintOnto(Canvas &canvas, const Sheet &sheet);

} // namespace vexal::sample
