#include "api.h"
#include "change.h"
#include "document.h"
#include "inbackground.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// Keeping the details of files in step with the server.
namespace vexal {

namespace {

QString pathOf(const QString &fileId)
{
    return u"api/files/"_s + fileId;
}

} // namespace

void Store::loadDetail(const QString &fileId)
{
    if (isLive())
        fetchDetail(fileId, isOnCanvas(fileId) ? m_visit.get() : this, {});
}

void Store::fetchDetail(const QString &fileId, QObject *context, const Hold &until)
{
    const auto tag = m_fileTags.constFind(fileId);
    const auto held = tag == m_fileTags.cend() ? std::nullopt : std::optional(*tag);
    const Hold both = std::make_shared<const std::pair<Hold, Hold>>(until, fetching(fileId));
    askForChanges({.path = pathOf(fileId), .entityTag = held}, m_details.contains(fileId), context,
                  [=, this, asked = ++m_number](const Result<Response> &answer) {
                      if (answer)
                          detailAnswered(fileId, *answer, asked, context, both);
                      else
                          detailFailed(fileId, answer.failure());
                  });
}

/// The file's detail is on its way until the last copy of what is returned has gone.
Hold Store::fetching(const QString &fileId)
{
    m_fetching.append(fileId);
    return holdUntil(inThisSession([this, fileId] { m_fetching.removeOne(fileId); }));
}

void Store::detailAnswered(const QString &fileId, const Response &answer, quint64 asked, QObject *context,
                           const Hold &until)
{
    if (answer.unchanged())
        return;
    const auto read = [answer, path = pathOf(fileId)] { return documentIn<FileDetail>(answer, path); };
    const auto taken = [this, fileId, tag = answer.entityTag(), asked, until](const std::optional<FileDetail> &detail) {
        if (detail)
            detailArrived(fileId, *detail, tag, asked);
        else
            detailFailed(fileId, Failure::other());
    };
    inBackground(context, read, inThisSession(taken));
}

/// Takes the detail with its tag, unless what is held was asked for, or changed here, after it.
void Store::detailArrived(const QString &fileId, const FileDetail &detail, const std::optional<QString> &tag,
                          quint64 asked)
{
    if (asked < m_detailSet.value(fileId) || m_writing.contains(fileId))
        return;
    Change change(*this);
    change.remove(m_detailProblems, fileId, &Store::detailProblemsChanged);
    takeDetail(fileId, detail);
    m_detailSet[fileId] = asked;
    forgetTag(fileId);
    if (tag)
        m_fileTags.insert(fileId, *tag);
}

/// What is known of the file stays. Only where nothing is, the person is told.
void Store::detailFailed(const QString &fileId, const Failure &failure)
{
    if (failure.kind == Failure::Kind::SignedOut)
        return signOut(true);
    if (!m_details.contains(fileId))
        Change(*this).put(m_detailProblems, fileId, failure.sentenceOr(u"Can't reach the Vexal server right now."_s),
                          &Store::detailProblemsChanged);
}

/// The file's detail is had whole the next time.
void Store::forgetTag(const QString &fileId)
{
    m_fileTags.remove(fileId);
}

} // namespace vexal
