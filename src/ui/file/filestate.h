#pragma once

#include "store.h"

#include <QtQml/qqmlregistration.h>

namespace vexal {

/// What stands over a file's pages.
class FileHeader
{
    Q_GADGET
    QML_VALUE_TYPE(fileHeader)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString status MEMBER status FINAL)
    Q_PROPERTY(QString facts MEMBER facts FINAL)

public:
    QString title;
    QString status; ///< As the board has it.
    QString facts;
    bool operator==(const FileHeader &) const = default;
};

/// What the file view, or the view of several files, says of the selection; kept in step with the store.
class FileState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Store *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(vexal::FileHeader header READ header NOTIFY changed FINAL)
    Q_PROPERTY(QString filesHeading READ filesHeading NOTIFY changed FINAL)
    Q_PROPERTY(QStringList thumbs READ thumbs NOTIFY changed FINAL)

public:
    explicit FileState(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);

    FileHeader header() const { return m_header; }
    /// "3 files"
    QString filesHeading() const;
    /// Blob keys of the selected files' thumbnails, in board order.
    QStringList thumbs() const { return m_thumbs; }

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    void update();

    Store *m_store = nullptr;
    FileHeader m_header;
    QStringList m_thumbs;
};

} // namespace vexal
