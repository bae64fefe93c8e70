#include "api.h"
#include "change.h"
#include "place.h"

#include <QJsonArray>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

/// What people ask of the worker machine, and their judgement.
namespace vexal {

namespace {

const QString theBoard; ///< Among the names of what is being written.

QString statusText(const QString &status)
{
    if (status == "reviewed"_L1)
        return u"Marked reviewed."_s;
    return status == "in_review"_L1 ? u"Back in review."_s : u"Moved to New."_s;
}

QString findingText(const QString &state)
{
    if (state == "issue"_L1)
        return u"Marked a real issue."_s;
    return state == "fine"_L1 ? u"Marked fine."_s : u"Reopened."_s;
}

} // namespace

void Store::startSync()
{
    if (mayAct())
        perform(u"sync"_s, u"Asked the Mac mini to sync."_s,
                {.path = u"api/jobs"_s, .method = "POST", .json = QJsonObject{{u"kind"_s, u"sync"_s}}});
}

void Store::makeReport(const QStringList &fileIds)
{
    if (!mayAct() || !m_board)
        return;
    const auto covers = [this, &fileIds](const FileItem &file) {
        return fileIds.isEmpty() ? &file == current() : fileIds.contains(file.id);
    };
    QJsonArray ids;
    for (const FileItem &file : std::as_const(m_board->files)) {
        if (covers(file))
            ids.append(file.id);
    }
    if (ids.isEmpty())
        return;
    perform(
        u"report"_s, u"Asked the Mac mini for the report."_s,
        {.path = u"api/jobs"_s, .method = "POST", .json = QJsonObject{{u"kind"_s, u"report"_s}, {u"file_ids"_s, ids}}});
}

void Store::stopJob(const QString &jobId)
{
    if (mayAct())
        perform(u"stop-"_s + jobId, u"Stopping."_s, {.path = u"api/jobs/"_s + jobId + u"/stop"_s, .method = "POST"});
}

void Store::setStatus(const QString &fileId, const QString &status)
{
    const FileItem *file = findFile(fileId);
    if (!mayAct() || !file)
        return;
    const auto taken = [this, fileId, status, before = file->status](const Response &, const Hold &busy) {
        endWriting(theBoard);
        offerUndo(statusText(status), [this, fileId, before] { setStatus(fileId, before); });
        refresh(busy);
    };
    Change change(*this);
    writeStatus(fileId, status);
    act(u"status"_s,
        {.path = u"api/files/"_s + fileId + u"/status"_s, .method = "POST", .json = QJsonObject{{u"status"_s, status}}},
        u"That didn't save."_s, taken, [this](const Hold &busy) {
            endWriting(theBoard);
            refresh(busy);
        });
}

void Store::setFindingState(const QString &findingId, const QString &state)
{
    const auto place = placeOf(findingId, &FileDetail::findings, m_details, fileOnCanvas());
    if (!mayAct() || !place)
        return;
    const QString fileId = place->fileId;
    const QString before = detail(fileId)->findings.at(place->row).state;
    const auto taken = [this, fileId, findingId, state, before](const Response &, const Hold &busy) {
        endWriting(fileId);
        offerUndo(findingText(state), [this, findingId, before] { setFindingState(findingId, before); });
        // Brings the detail of the one selected file; unless the board does not come.
        const auto catchUp = [this, fileId, written = m_detailSet.value(fileId)] {
            if (m_detailSet.value(fileId) == written)
                fetchDetail(fileId, this, {});
        };
        if (!current() || current()->id != fileId)
            fetchDetail(fileId, this, busy);
        refresh(std::make_shared<const std::pair<Hold, Hold>>(busy, holdUntil(inThisSession(catchUp))));
    };
    Change change(*this);
    writeFindingState(*place, state);
    act(findingId, {.path = u"api/findings/"_s + findingId, .method = "POST", .json = QJsonObject{{u"state"_s, state}}},
        u"That didn't save. Try again."_s, taken, [this, fileId](const Hold &busy) {
            endWriting(fileId);
            fetchDetail(fileId, this, busy);
        });
}

/// Until the server has answered the change, what it says of the board, or of the file's detail, may be from before it.
void Store::beginWriting(const QString &what)
{
    ++m_writing[what];
}

/// What was asked for up to now may be from before the change, too.
void Store::endWriting(const QString &what)
{
    if (--m_writing[what] == 0)
        m_writing.remove(what);
    if (what == theBoard)
        m_boardWritten = ++m_number;
    else
        m_detailSet[what] = ++m_number;
}

/// Writes the status into the board that is held. Whatever the server makes of it, it is asked for the board itself
/// next.
void Store::writeStatus(const QString &fileId, const QString &status)
{
    Change change(*this);
    const qsizetype row = m_filesIndex.rows.value(fileId);
    FileItem &file = m_board->files[row];
    change.set(file.status, status, &Store::boardChanged);
    change.set(file.status_by, m_board->me.email, &Store::boardChanged);
    change.set(file.status_at, m_clock.milliseconds(), &Store::boardChanged);
    m_filesIndex.fingerprints[row] = qHash(file, 0);
    m_etag.reset();
    beginWriting(theBoard);
}

/// Writes the state into the detail that is held. Whatever the server makes of it, it is asked for the detail itself
/// next.
void Store::writeFindingState(const Place &place, const QString &state)
{
    Change change(*this);
    Finding &finding = m_details[place.fileId].findings[place.row];
    change.set(finding.state, state, &Store::detailsChanged);
    if (m_board)
        change.set(finding.state_by, m_board->me.email, &Store::detailsChanged);
    change.set(finding.state_at, m_clock.milliseconds(), &Store::detailsChanged);
    forgetTag(place.fileId);
    beginWriting(place.fileId);
}

} // namespace vexal
