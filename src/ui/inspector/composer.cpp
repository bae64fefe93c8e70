#include "composer.h"

using namespace Qt::StringLiterals;

namespace vexal {

QString composerContext(bool pinned, const std::optional<QString> &findingTitle, const QString &pageName)
{
    if (pinned)
        return u"Note pinned on page "_s + pageName;
    return findingTitle ? u"Note on: "_s + *findingTitle : u"Note on page "_s + pageName;
}

QString composerPlaceholder(bool pinning)
{
    return pinning ? u"Click the page where it goes…"_s : u"Write a note for the report"_s;
}

} // namespace vexal
