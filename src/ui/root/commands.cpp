#include "commands.h"

#include "jobtexts.h"
#include "reviewactions.h"

using namespace Qt::StringLiterals;

namespace vexal {

Commands::Commands(QObject *parent)
    : QObject(parent)
{
}

void Commands::setStore(Store *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &Store::signedInChanged, this, &Commands::changed);
    connect(store, &Store::boardChanged, this, &Commands::changed);
    connect(store, &Store::selectionChanged, this, &Commands::changed);
    connect(store, &Store::busyChanged, this, &Commands::changed);
    connect(store, &Store::refreshingChanged, this, &Commands::changed);
    Q_EMIT storeChanged();
    Q_EMIT changed();
}

bool Commands::canSync() const
{
    if (!idle(u"sync"_s))
        return false;
    const auto &board = m_store->board();
    if (!board || !board->sync)
        return true;
    const JobStage::Value stage = jobStage(board->sync->status);
    return stage != JobStage::InLine && stage != JobStage::Running;
}

bool Commands::canRefresh() const
{
    return m_store && m_store->signedIn() && !m_store->refreshing();
}

bool Commands::canMakeReport() const
{
    const FileItem *file = current();
    if (!file || !idle(u"report"_s))
        return false;
    const Job *job = reportJobOf({file->id}, *m_store->board());
    const JobStage::Value stage = job ? jobStage(job->status) : JobStage::Over;
    return stage != JobStage::InLine && stage != JobStage::Running;
}

bool Commands::canMarkReviewed() const
{
    const FileItem *file = current();
    return file && file->status != "reviewed"_L1 && idle(u"status"_s);
}

bool Commands::canChangePhoto() const
{
    return idle(u"photo"_s);
}

void Commands::makeReport()
{
    if (canMakeReport())
        m_store->makeReport();
}

void Commands::markReviewed()
{
    if (canMarkReviewed())
        m_store->setStatus(current()->id, u"reviewed"_s);
}

} // namespace vexal
