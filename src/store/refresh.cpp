#include "api.h"
#include "change.h"
#include "document.h"
#include "inbackground.h"
#include "launcherbadge.h"
#include "news.h"
#include "notifications.h"
#include "refreshloop.h"
#include "surroundings.h"
#include "windowpresence.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// Keeping the board in step with the server.
namespace vexal {

void Store::start()
{
    if (m_loop || !isLive())
        return;
    const auto round = [this](const Hold &until) { refresh(until); };
    const auto pause = [this] { return pollPause(activeWork(), m_world->windows.seen()); };
    auto loop = std::make_unique<RefreshLoop>(m_world->sleep, round, pause);
    loop->run();
    m_loop = std::move(loop);
    checkVersion();
}

void Store::stop()
{
    m_loop.reset();
}

void Store::refresh(const Hold &until)
{
    if (!isLive())
        return;
    askForChanges({.path = u"api/state"_s, .entityTag = m_etag}, m_board.has_value(), this,
                  [this, until, asked = ++m_number](const Result<Response> &answer) {
                      if (answer)
                          boardAnswered(*answer, asked, until);
                      else
                          boardFailed(answer.failure());
                  });
}

void Store::refreshNow()
{
    if (m_refreshing || !mayAct())
        return;
    Change(*this).set(m_refreshing, true, &Store::refreshingChanged);
    refresh(holdUntil(inThisSession([this] {
        Change change(*this);
        change.set(m_refreshing, false, &Store::refreshingChanged);
        showToast(m_problem.value_or(u"Up to date."_s));
    })));
}

void Store::boardAnswered(const Response &answer, quint64 asked, const Hold &until)
{
    if (answer.unchanged())
        return boardKnown(asked, until);
    const auto read = [answer]() -> std::optional<IndexedBoard> {
        auto board = documentIn<BoardState>(answer, u"api/state"_s);
        if (!board)
            return std::nullopt;
        FilesIndex index = indexOf(board->files);
        return IndexedBoard{std::move(*board), std::move(index)};
    };
    const auto taken = [this, tag = answer.entityTag(), asked, until](const std::optional<IndexedBoard> &board) {
        if (!board)
            return boardFailed(Failure::other());
        const Farewell last(m_board);
        Change change(*this);
        boardArrived(*board, tag, asked);
        boardKnown(asked, until);
    };
    inBackground(this, read, inThisSession(taken));
}

/// The server has answered what its board is, or that it is the one that is held.
void Store::boardKnown(quint64 asked, const Hold &until)
{
    Change change(*this);
    m_boardTaken = std::max(m_boardTaken, asked);
    change.set(m_problem, std::nullopt, &Store::problemChanged);
    change.set(m_lastOK, m_clock.now(), &Store::lastOKChanged);
    m_world->badge.show(newCount().value_or(QString()).toInt());
    if (const FileItem *file = current())
        fetchDetail(file->id, m_visit.get(), until);
}

/// Takes the board with its tag, unless what is held is newer: a board that was overtaken on its way, or one from
/// before a change that was made here and that it may not know of.
void Store::boardArrived(const IndexedBoard &arrived, const std::optional<QString> &tag, quint64 asked)
{
    const BoardState &board = arrived.board;
    const bool overtaken = asked < m_boardTaken && m_board && board.rev < m_board->rev;
    if (overtaken || asked < m_boardWritten || m_writing.contains(QString()))
        return;
    const News news = newsOf(board, m_seenEvent, m_started);
    m_seenEvent = news.seenEvent;
    if (news.toast)
        tell(news);
    takeBoard(arrived);
    m_etag = tag;
}

/// Someone who does not look at the window hears of it from the desktop too.
void Store::tell(const News &news)
{
    showToast(*news.toast);
    if (!m_world->windows.seen())
        m_world->notifications.show(*news.toast, news.fileId);
}

void Store::boardFailed(const Failure &failure)
{
    if (failure.kind == Failure::Kind::SignedOut)
        return signOut(true);
    Change(*this).set(m_problem, failure.sentenceOr(u"Can't reach the Vexal server right now."_s),
                      &Store::problemChanged);
}

void Store::checkVersion()
{
    if (!isLive())
        return;
    const QString path = u"version.json"_s;
    ask({.path = path}, this, [this, path](const Result<Response> &answer) {
        const auto newest = answer ? documentIn<VersionInfo>(*answer, path) : std::nullopt;
        if (newest && newest->build > m_world->build)
            Change(*this).set(m_update, newest, &Store::updateChanged);
    });
}

void Store::dismissUpdate()
{
    Change(*this).set(m_update, std::nullopt, &Store::updateChanged);
}

} // namespace vexal
