#include "reportcontent.h"

#include "counted.h"
#include "derived.h"

using namespace Qt::StringLiterals;

namespace vexal::local {

ReportContent reportContent(Ledger &ledger, const QList<QString> &fileIds, const QString &by)
{
    const std::lock_guard lock(ledger.mutex);
    ReportContent content{.at = ledger.now()};
    for (const QString &id : fileIds) {
        if (auto file = ledger.files.find(id))
            content.files.append({*std::move(file), ledger.findings.ofFile(id), ledger.notes.ofFile(id)});
    }
    const auto &files = content.files;
    content.title =
        u"Report on "_s + (files.size() == 1 ? displayTitle(files.first().file) : counted(files.size(), u"file"_s));
    for (const Person &person : ledger.people.all("ORDER BY place"))
        content.names.insert(person.email, person.name);
    content.by = content.names.value(by, by);
    content.picture = [&ledger](const QString &key) {
        const std::lock_guard reading(ledger.mutex);
        return ledger.blob(key).value_or(QByteArray());
    };
    return content;
}

QList<Step> reportSteps(const QList<FileDetail> &files)
{
    qsizetype findings = 0;
    qsizetype notes = 0;
    qsizetype pages = 0;
    for (const FileDetail &detail : files) {
        findings += detail.findings.size();
        notes += detail.comments.size();
        pages += detail.file.pages.value_or(QList<Page>{}).size();
    }
    return {{u"Gathering findings and notes"_s,
             u"Gathered %1 and %2"_s.arg(counted(findings, u"finding"_s), counted(notes, u"note"_s))},
            {u"Laying out the pages"_s, u"Laid out %1"_s.arg(counted(pages, u"page"_s))},
            {u"Binding the report"_s, u"Bound the report"_s}};
}

} // namespace vexal::local
