#include "fileheader.h"

#include "derived.h"
#include "facts.h"
#include "relativetime.h"

using namespace Qt::StringLiterals;

namespace vexal {

QString fileFacts(const FileItem &file, const QString &reviewer, const Clock &clock)
{
    QStringList facts{file.po.value_or(QString()), file.supplier.value_or(QString())};
    if (const auto pages = pageCount(file))
        facts.append(counted(*pages, u"page"_s));
    if (file.sender && !file.sender->isEmpty())
        facts.append(u"from "_s + *file.sender);
    if (file.received)
        facts.append(dayMonth(momentOf(*file.received).toTimeZone(clock.zone).date(), clock.locale));
    if (file.status == "reviewed"_L1 && file.status_by) {
        const QString when = file.status_at ? u' ' + relativeTime(momentOf(*file.status_at), clock) : QString();
        facts.append(u"Reviewed by "_s + reviewer + when);
    }
    return joinedFacts(facts);
}

QString filesHeading(qsizetype count)
{
    return QString::number(count) + u" files"_s;
}

} // namespace vexal
