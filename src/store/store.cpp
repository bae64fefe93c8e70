#include "store.h"

#include "change.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

/// Where each id stands in `files`; of two with one id, where the first stands.
QHash<QString, qsizetype> rowsById(const QList<FileItem> &files)
{
    QHash<QString, qsizetype> rows;
    rows.reserve(files.size());
    for (qsizetype row = files.size() - 1; row >= 0; --row)
        rows.insert(files.at(row).id, row);
    return rows;
}

const FileItem &fileToBeginWith(const QList<FileItem> &files)
{
    const auto open =
        std::find_if(files.cbegin(), files.cend(), [](const FileItem &file) { return file.status != "reviewed"_L1; });
    return open == files.cend() ? files.first() : *open;
}

qint64 openingPage(const FileDetail &detail)
{
    const auto high = std::find_if(detail.findings.cbegin(), detail.findings.cend(),
                                   [](const Finding &finding) { return finding.severity == "high"_L1; });
    return high == detail.findings.cend() ? 0 : high->page;
}

} // namespace

Store::Store(Clock clock, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
    , m_against(u"submitted"_s)
    , m_started(m_clock.now())
{
}

Store::~Store() = default;

void Store::takeBoard(BoardState board)
{
    Change change(*this);
    if (change.set(m_board, std::move(board), &Store::boardChanged))
        m_rowOfFile = rowsById(m_board->files);
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
