#include "store.h"

#include "displayname.h"
#include "relativetime.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

bool isUnderWay(const Job &job)
{
    return job.status == "queued"_L1 || job.status == "running"_L1;
}

QStringList sorted(const QSet<QString> &texts)
{
    QStringList list(texts.cbegin(), texts.cend());
    list.sort();
    return list;
}

} // namespace

const FileItem *Store::findFile(const QString &id) const
{
    const auto row = m_filesIndex.rows.constFind(id);
    return row == m_filesIndex.rows.cend() ? nullptr : &m_board->files.at(*row);
}

const FileItem *Store::current() const
{
    return m_selection.size() == 1 ? findFile(m_selection.values().constFirst()) : nullptr;
}

const FileDetail *Store::detail(const QString &fileId) const
{
    const auto held = m_details.constFind(fileId);
    return held == m_details.cend() ? nullptr : &*held;
}

qint64 Store::shownPage(const QString &fileId) const
{
    const qint64 chosen = std::max<qint64>(m_page.value(fileId), 0);
    const FileDetail *known = detail(fileId);
    if (!known)
        return chosen;
    const qint64 pages = known->file.pages ? known->file.pages->size() : 0;
    return std::clamp<qint64>(chosen, 0, std::max<qint64>(pages - 1, 0));
}

QString Store::displayName(const std::optional<QString> &email) const
{
    return vexal::displayName(email, m_board ? &*m_board : nullptr);
}

bool Store::activeWork() const
{
    if (!m_board)
        return false;
    return (m_board->sync && isUnderWay(*m_board->sync)) ||
           std::any_of(m_board->jobs.cbegin(), m_board->jobs.cend(), isUnderWay);
}

std::optional<QString> Store::newCount() const
{
    if (!m_board)
        return {};
    const auto count = std::count_if(m_board->files.cbegin(), m_board->files.cend(),
                                     [](const FileItem &file) { return file.status == "new"_L1; });
    return count == 0 ? std::nullopt : std::optional(QString::number(count));
}

QString Store::relativeTime(const QDateTime &moment) const
{
    return vexal::relativeTime(moment, m_clock);
}

QString modeLabel(CompareMode mode)
{
    switch (mode) {
    case CompareMode::Side:
        return u"Side by side"_s;
    case CompareMode::Overlay:
        return u"Overlay"_s;
    case CompareMode::Blink:
        return u"Blink"_s;
    }
    Q_UNREACHABLE();
}

QStringList Store::selectionSorted() const
{
    return sorted(m_selection);
}

QStringList Store::busySorted() const
{
    return sorted(m_busy);
}

} // namespace vexal
