#include "passage.h"

#include <algorithm>

namespace vexal {

namespace {

constexpr qsizetype mostAround = 160; ///< Characters kept on each side of what changed.
constexpr qsizetype mostChanged = 400;
constexpr QChar ellipsis = u'…';

/// What two texts have in common at either end, in characters.
struct Common
{
    qsizetype head = 0;
    qsizetype tail = 0;
};

Common commonEnds(QStringView a, QStringView b)
{
    const qsizetype most = std::min(a.size(), b.size());
    Common common;
    while (common.head < most && a[common.head] == b[common.head])
        ++common.head;
    while (common.tail < most - common.head && a[a.size() - 1 - common.tail] == b[b.size() - 1 - common.tail])
        ++common.tail;
    return common;
}

bool betweenWords(QStringView text, qsizetype at)
{
    return at == 0 || at == text.size() || text[at].isSpace() || text[at - 1].isSpace();
}

Common wholeWords(QStringView a, QStringView b, Common common)
{
    while (!betweenWords(a, common.head) || !betweenWords(b, common.head))
        --common.head;
    while (!betweenWords(a, a.size() - common.tail) || !betweenWords(b, b.size() - common.tail))
        --common.tail;
    return common;
}

bool isNumber(QStringView text)
{
    return !text.isEmpty() && std::all_of(text.cbegin(), text.cend(),
                                          [](QChar c) { return c.unicode() < 0x80 && !c.isLetter() && !c.isSpace(); });
}

Passage marked(const QString &text, Common common)
{
    qsizetype from = common.head;
    qsizetype end = text.size() - common.tail;
    while (from < end && text[from].isSpace())
        ++from;
    while (end > from && text[end - 1].isSpace())
        --end;
    return {text, int(from), int(end - from)};
}

// A character of two units is not cut in half.
qsizetype wholeCharacter(QStringView text, qsizetype at)
{
    return at > 0 && at < text.size() && text[at].isLowSurrogate() ? at - 1 : at;
}

QString lastOf(const QString &text, qsizetype most)
{
    return text.size() <= most ? text : ellipsis + text.sliced(wholeCharacter(text, text.size() - most));
}

QString firstOf(const QString &text, qsizetype most)
{
    return text.size() <= most ? text : text.first(wholeCharacter(text, most)) + ellipsis;
}

Passage shortened(const Passage &passage)
{
    const QString head = lastOf(passage.text.first(passage.from), mostAround);
    const QString run = firstOf(passage.changed(), mostChanged);
    const QString tail = firstOf(passage.text.sliced(passage.from + passage.length), mostAround);
    return {head + run + tail, int(head.size()), int(run.size())};
}

} // namespace

Passages passages(const QString &ours, const QString &theirs)
{
    const Common letters = commonEnds(ours, theirs);
    const Common words = wholeWords(ours, theirs, letters);
    const Passages byWords{marked(ours, words), marked(theirs, words)};
    const bool number = isNumber(byWords.ours.changed()) && isNumber(byWords.theirs.changed());
    if (!number)
        return {shortened(byWords.ours), shortened(byWords.theirs)};
    return {shortened(marked(ours, letters)), shortened(marked(theirs, letters))};
}

} // namespace vexal
