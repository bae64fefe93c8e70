#include "api.h"
#include "change.h"
#include "document.h"

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
    askForChanges({.path = pathOf(fileId), .entityTag = held}, m_details.contains(fileId), context,
                  [this, fileId, until, asked = ++m_number](const Result<Response> &answer) {
                      if (answer)
                          detailAnswered(fileId, *answer, asked);
                      else
                          detailFailed(fileId, answer.failure());
                  });
}

/// Takes the detail with its tag, unless what is held was asked for, or changed here, after it.
void Store::detailAnswered(const QString &fileId, const Response &answer, quint64 asked)
{
    if (answer.unchanged() || asked < m_detailSet.value(fileId) || m_writing.contains(fileId))
        return;
    const auto detail = documentIn<FileDetail>(answer, pathOf(fileId));
    if (!detail)
        return detailFailed(fileId, Failure::other());
    Change change(*this);
    change.remove(m_detailProblems, fileId, &Store::detailProblemsChanged);
    takeDetail(fileId, *detail);
    m_detailSet[fileId] = asked;
    forgetTag(fileId);
    if (const auto tag = answer.entityTag())
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
