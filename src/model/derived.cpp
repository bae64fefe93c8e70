#include "derived.h"

#include <QStringList>

#include <algorithm>

namespace vexal {

using namespace Qt::StringLiterals;

namespace {

std::optional<double> aspect(const std::optional<QList<double>> &px)
{
    if (px && px->size() == 2 && px->at(1) > 0)
        return px->at(0) / px->at(1);
    return std::nullopt;
}

bool breaksLine(QChar sign)
{
    return sign == u'\n' || sign == u'\r' || sign == QChar::LineSeparator || sign == QChar::ParagraphSeparator;
}

} // namespace

QString shownText(const QString &text)
{
    if (text.size() <= longestShown)
        return text;
    const bool halved = text[longestShown].isLowSurrogate();
    return text.first(halved ? longestShown - 1 : longestShown) + u'…';
}

QString shownText(const std::optional<QString> &text)
{
    return text ? shownText(*text) : QString();
}

QString shownLine(const QString &text)
{
    QString line = shownText(text);
    std::replace_if(line.begin(), line.end(), breaksLine, u' ');
    return line;
}

std::optional<qint64> pageCount(const FileItem &file)
{
    return file.page_count && *file.page_count >= 0 ? file.page_count : std::nullopt;
}

QString displayTitle(const FileItem &file)
{
    QStringList parts;
    for (const std::optional<QString> &part : {file.title, file.component}) {
        if (part)
            parts += *part;
    }
    const QString title = parts.join(u' ');
    return shownLine(title.isEmpty() ? file.filename.value_or(u"Untitled file"_s) : title);
}

const Ref *ourFile(const FileItem &file, QStringView role)
{
    if (!file.refs)
        return nullptr;
    const auto found = std::ranges::find(*file.refs, role, &Ref::role);
    return found == file.refs->cend() ? nullptr : &*found;
}

QString supplierName(const FileItem &file)
{
    const QString supplier = shownLine(file.supplier.value_or(QString()));
    return supplier.isEmpty() ? u"Supplier"_s : supplier;
}

const Finding *firstHigh(const FileDetail &detail)
{
    const auto found = std::ranges::find(detail.findings, u"high"_s, &Finding::severity);
    return found == detail.findings.cend() ? nullptr : &*found;
}

bool isSettled(const Finding &finding)
{
    return finding.kind == "expected"_L1 || finding.kind == "pass"_L1;
}

double aspect(const Page &page)
{
    if (const auto ofPicture = aspect(page.px))
        return *ofPicture;
    if (page.w && page.h && *page.h > 0)
        return *page.w / *page.h;
    return 0.77;
}

double aspect(const RefPage &reference, double otherwise)
{
    return aspect(reference.px).value_or(otherwise);
}

QString pageLabel(const Page &page)
{
    if (page.label && !page.label->isEmpty())
        return shownLine(*page.label);
    // Unsigned, so that the largest index has a successor too.
    return page.i < 0 ? QString::number(page.i + 1) : QString::number(quint64(page.i) + 1);
}

bool isResolved(const Note &note)
{
    return note.resolved.value_or(0) != 0;
}

QString firstName(const Person &person)
{
    const QStringList words = person.name.split(u' ', Qt::SkipEmptyParts);
    return shownText(words.isEmpty() ? person.name : words.first());
}

} // namespace vexal
