#include "filestate.h"

#include "derived.h"
#include "fileheader.h"
#include "links.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

FileHeader headerOf(const FileItem &file, const Store &store)
{
    return {displayTitle(file), file.status, fileFacts(file, store.displayName(file.status_by), store.clock()),
            fileLinks(file), file.status == "reviewed"_L1};
}

QStringList thumbsOf(const Store &store)
{
    QStringList thumbs;
    if (!store.board())
        return thumbs;
    for (const FileItem &file : store.board()->files) {
        if (store.selection().contains(file.id))
            thumbs.append(file.thumb.value_or(QString()));
    }
    return thumbs;
}

} // namespace

QVariantList FileHeader::linksForQml() const
{
    QVariantList list;
    for (const FileLink &link : links)
        list.append(QVariant::fromValue(link));
    return list;
}

FileState::FileState(QObject *parent)
    : QObject(parent)
{
}

void FileState::setStore(Store *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &Store::boardChanged, this, &FileState::tell);
    connect(store, &Store::selectionChanged, this, &FileState::tell);
    connect(store, &Store::busyChanged, this, &FileState::tell);
    connect(store, &Store::detailProblemsChanged, this, &FileState::tell);
    connect(store, &Store::detailsChanged, this, &FileState::tell);
    connect(store, &Store::pageChanged, this, &FileState::tellPage);
    Q_EMIT storeChanged();
    tell();
}

void FileState::setTime(PassingTime *time)
{
    if (m_time == time)
        return;
    m_time = time;
    connect(time, &PassingTime::passed, this, &FileState::tell);
    Q_EMIT timeChanged();
    tell();
}

QString FileState::filesHeading() const
{
    return vexal::filesHeading(m_shown.thumbs.size());
}

void FileState::toggleReviewed()
{
    m_store->setStatus(m_shown.file, m_shown.header.reviewed ? u"in_review"_s : u"reviewed"_s);
}

void FileState::makeReport()
{
    m_store->makeReport(m_store->selection().values());
}

void FileState::stopReport()
{
    m_store->stopJob(m_shown.report.job);
}

void FileState::openReport()
{
    m_store->openReport(m_shown.report.report);
}

void FileState::turnTo(int index)
{
    m_store->turnPage(m_shown.file, index);
}

void FileState::tryAgain()
{
    m_store->loadDetail(m_shown.file);
}

void FileState::follow(const QString &link) const
{
    openLink(link);
}

void FileState::tell()
{
    if (!m_store || !m_time)
        return;
    announce();
    const Shown now = shown();
    const bool differs = m_shown != now;
    m_shown = now;
    tellPages();
    if (differs)
        Q_EMIT changed();
    load();
}

void FileState::tellPages()
{
    const FileDetail *detail = m_store->detail(m_shown.file);
    m_pages.setRows(detail ? pageCells(*detail) : QList<PageCell>());
    tellPage();
}

void FileState::tellPage()
{
    const int page = int(m_store->shownPage(m_shown.file));
    if (m_page == page)
        return;
    m_page = page;
    Q_EMIT pageChanged();
}

/// Asks for the file once for each time that it is selected.
void FileState::load()
{
    if (m_loaded == m_shown.file)
        return;
    m_loaded = m_shown.file;
    if (!m_loaded.isEmpty() && !m_store->isFetching(m_loaded))
        m_store->loadDetail(m_loaded);
}

FileState::Shown FileState::shown() const
{
    Shown now;
    if (const FileItem *file = m_store->current()) {
        now.file = file->id;
        now.header = headerOf(*file, *m_store);
        now.loading = !m_store->detail(file->id);
        now.problem = now.loading ? shownText(m_store->detailProblem(file->id)) : QString();
    }
    if (const auto &board = m_store->board(); board && !m_store->selection().isEmpty()) {
        const auto name = [this](const std::optional<QString> &email) { return m_store->displayName(email); };
        now.report = reportProgress(m_store->selection(), *board, m_store->busy(), m_store->clock(), name);
    }
    now.thumbs = thumbsOf(*m_store);
    now.settingStatus = m_store->busy().contains(u"status"_s);
    return now;
}

void FileState::announce() const
{
    if (!m_store->board())
        return;
    const Report *report = reportOf(m_store->selection(), *m_store->board());
    if (report && report->at)
        m_time->told(momentOf(*report->at));
    const FileItem *file = m_store->current();
    if (file && file->status_at)
        m_time->told(momentOf(*file->status_at));
}

} // namespace vexal
