#include "reportwords.h"

#include "counted.h"
#include "ledger.h"

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

QString severityWord(const QString &severity)
{
    return severity == "high"_L1 ? u"Fix"_s : severity == "medium"_L1 ? u"Check"_s : u"Minor"_s;
}

QString stateWord(const Finding &finding)
{
    if (finding.state == "issue"_L1)
        return u"Real issue"_s;
    if (finding.state == "fine"_L1)
        return u"Fine"_s;
    if (finding.kind == "expected"_L1)
        return u"Expected"_s;
    return finding.kind == "pass"_L1 ? u"Passed"_s : u"Not judged yet"_s;
}

QString statusWord(const QString &status)
{
    return status == "new"_L1 ? u"New"_s : status == "in_review"_L1 ? u"In review"_s : u"Reviewed"_s;
}

} // namespace

QString joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

QString factsLine(const FileItem &file)
{
    return joined({file.po.value_or(QString()), file.supplier.value_or(QString()),
                   file.page_count ? counted(*file.page_count, u"page"_s) : QString(), statusWord(file.status)});
}

QString tallyLine(const FileItem &file)
{
    const auto issues = file.tally.value_or(Tally{}).issues.value_or(0);
    const auto open = file.tally.value_or(Tally{}).open.value_or(0);
    QStringList parts;
    if (issues > 0)
        parts.append(counted(issues, u"real issue"_s));
    if (open > 0)
        parts.append(u"%1 to look at"_s.arg(open));
    return parts.isEmpty() ? u"Nothing to look at"_s : parts.join(u", "_s);
}

QString findingLine(const Finding &finding, const QString &judge)
{
    return joined({severityWord(finding.severity), stateWord(finding), judge});
}

QString noteLine(const Note &note, const QString &author)
{
    return joined({u"Note by "_s + author, note.resolved.value_or(0) != 0 ? u"resolved"_s : QString()});
}

} // namespace vexal::local
