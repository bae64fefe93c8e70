#include "store.h"

#include "change.h"
#include "credentialstore.h"
#include "derived.h"
#include "signin.h"
#include "surroundings.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

const FileItem &fileToBeginWith(const QList<FileItem> &files)
{
    const auto open =
        std::find_if(files.cbegin(), files.cend(), [](const FileItem &file) { return file.status != "reviewed"_L1; });
    return open == files.cend() ? files.first() : *open;
}

qint64 openingPage(const FileDetail &detail)
{
    const Finding *high = firstHigh(detail);
    return high ? high->page : 0;
}

} // namespace

Store::Store(Clock clock, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
    , m_against(u"submitted"_s)
    , m_visit(std::make_unique<QObject>())
    , m_started(m_clock.now())
{
}

Store::Store(Clock clock, const Surroundings &surroundings, QObject *parent)
    : Store(std::move(clock), parent)
{
    m_world = std::make_unique<Surroundings>(surroundings);
    connect(&m_world->signIn, &SignIn::waitingChanged, this, &Store::signingInChanged);
    connect(&m_world->credentials, &CredentialStore::keptForThisRunOnly, this,
            [this] { showToast(u"This computer has no credential store, so you'll sign in again next time."_s); });
}

Store::~Store()
{
    // What is under way ends with the members that it hangs on, and must not touch the others any more.
    ++m_session;
    m_loop.reset();
    if (m_world)
        m_world->signIn.disconnect(this);
}

void Store::takeBoard(BoardState board)
{
    FilesIndex index = indexOf(board.files);
    takeBoard(IndexedBoard{std::move(board), std::move(index)});
}

void Store::takeBoard(const IndexedBoard &board)
{
    Change change(*this);
    if (change.set(m_board, board.board, &Store::boardChanged))
        m_filesIndex = board.index;
    if (m_selection.isEmpty() && !m_board->files.isEmpty())
        select({fileToBeginWith(m_board->files).id});
}

void Store::takeDetail(const QString &fileId, const FileDetail &detail)
{
    Change change(*this);
    const qint64 before = shownPage(fileId);
    if (!m_page.contains(fileId))
        change.put(m_page, fileId, openingPage(detail), &Store::pageChanged);
    change.put(m_details, fileId, detail, &Store::detailsChanged);
    if (isOnCanvas(fileId) && shownPage(fileId) != before)
        clearDraft();
}

void Store::takeSample(Sample sample)
{
    Change change(*this);
    m_sample = true;
    change.set(m_signedIn, true, &Store::signedInChanged);
    change.set(m_lastOK, m_clock.now(), &Store::lastOKChanged);
    takeBoard(std::move(sample.board));
    for (auto detail = sample.details.cbegin(); detail != sample.details.cend(); ++detail)
        takeDetail(detail.key(), *detail);
}

} // namespace vexal
