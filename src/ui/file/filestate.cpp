#include "filestate.h"

#include "derived.h"
#include "fileheader.h"

namespace vexal {

namespace {

FileHeader headerOf(const FileItem &file, const Store &store)
{
    return {displayTitle(file), file.status, fileFacts(file, store.displayName(file.status_by), store.clock())};
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

FileState::FileState(QObject *parent)
    : QObject(parent)
{
}

void FileState::setStore(Store *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &Store::boardChanged, this, &FileState::update);
    connect(store, &Store::selectionChanged, this, &FileState::update);
    Q_EMIT storeChanged();
    update();
}

QString FileState::filesHeading() const
{
    return vexal::filesHeading(m_thumbs.size());
}

void FileState::update()
{
    const FileItem *file = m_store->current();
    const FileHeader header = file ? headerOf(*file, *m_store) : FileHeader();
    const QStringList thumbs = thumbsOf(*m_store);
    if (m_header == header && m_thumbs == thumbs)
        return;
    m_header = header;
    m_thumbs = thumbs;
    Q_EMIT changed();
}

} // namespace vexal
