#include "api.h"
#include "inbackground.h"
#include "opener.h"
#include "reportfile.h"
#include "store.h"
#include "surroundings.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// Reports, from the server into the person's hands.
namespace vexal {

namespace {

const QString notOpened = u"Couldn't open the report."_s;

} // namespace

void Store::openReport(const QString &reportId)
{
    if (!mayAct())
        return;
    const Request request{.path = u"api/reports/"_s + reportId + u"/pdf"_s, .limit = limit::pdf};
    ask(request, this, [this, reportId, busy = hold(u"open-"_s + reportId)](const Result<Response> &answer) {
        if (!answer && answer.failure().kind == Failure::Kind::SignedOut)
            return signOut(true);
        if (!answer || answer->body.isEmpty())
            return showToast(notOpened);
        saveAndOpen(titleOf(reportId), answer->body, busy);
    });
}

std::optional<QString> Store::titleOf(const QString &reportId) const
{
    const QList<Report> reports = m_board ? m_board->reports : QList<Report>{};
    const auto report =
        std::find_if(reports.cbegin(), reports.cend(), [&](const Report &known) { return known.id == reportId; });
    return report == reports.cend() ? std::nullopt : report->title;
}

void Store::saveAndOpen(const std::optional<QString> &title, const QByteArray &pdf, const Hold &busy)
{
    const auto opened = [this, busy](bool viewed) {
        if (!viewed)
            showToast(notOpened);
    };
    const auto saved = [this, opened](const std::optional<QString> &path) {
        if (path)
            m_world->opener.openFile(*path, this, inThisSession(opened));
        else
            opened(false);
    };
    const auto save = [folder = m_world->downloads, title, pdf] { return saveReport(folder, title, pdf); };
    inBackground(this, save, inThisSession(saved));
}

} // namespace vexal
