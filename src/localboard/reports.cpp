#include "reports.h"

#include "jobs.h"
#include "reportcontent.h"
#include "reportpdf.h"

using namespace Qt::StringLiterals;

namespace vexal::local {

Outcome<QByteArray> Reports::pdf(const QString &id)
{
    std::optional<Report> report;
    {
        const std::lock_guard lock(m_ledger.mutex);
        report = m_ledger.reports.find(id);
        if (!report)
            return unknown(u"That report isn't on the board."_s);
        if (auto pdf = m_ledger.blob(pdfKey(id)))
            return *std::move(pdf);
    }
    return draw(*std::move(report));
}

QByteArray Reports::draw(Report report)
{
    auto content = reportContent(m_ledger, report.file_ids, report.by.value_or(QString()));
    content.title = report.title.value_or(content.title);
    content.at = report.at.value_or(content.at);
    auto pdf = reportPdf(content, [](int) { return true; });
    Change change(m_ledger);
    if (auto drawn = m_ledger.blob(pdfKey(report.id))) // by another who asked at the same time
        return *std::move(drawn);
    report.size = pdf.size();
    m_ledger.putBlob(pdfKey(report.id), pdf);
    m_ledger.reports.put(report);
    change.commit();
    return pdf;
}

} // namespace vexal::local
