#include "derived.h"

#include <QStringList>

#include <algorithm>

namespace vexal {

using namespace Qt::StringLiterals;

QString displayTitle(const FileItem &file)
{
    QStringList parts;
    for (const std::optional<QString> &part : {file.title, file.component}) {
        if (part)
            parts += *part;
    }
    const QString title = parts.join(u' ');
    return title.isEmpty() ? file.filename.value_or(u"Untitled file"_s) : title;
}

const Ref *ourFile(const FileItem &file, QStringView role)
{
    if (!file.refs)
        return nullptr;
    const auto found = std::ranges::find(*file.refs, role, &Ref::role);
    return found == file.refs->cend() ? nullptr : &*found;
}

double aspect(const Page &page)
{
    if (page.px && page.px->size() == 2 && page.px->at(1) > 0)
        return page.px->at(0) / page.px->at(1);
    if (page.w && page.h && *page.h > 0)
        return *page.w / *page.h;
    return 0.77;
}

QString pageLabel(const Page &page)
{
    if (page.label && !page.label->isEmpty())
        return *page.label;
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
    return words.isEmpty() ? person.name : words.first();
}

} // namespace vexal
