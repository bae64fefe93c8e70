#pragma once

#include "store.h"

#include <QtQml/qqmlregistration.h>

namespace vexal {

/// What the menu can ask of the store at this moment, kept in step with it.
class Commands : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Store *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(bool canSync READ canSync NOTIFY changed FINAL)
    Q_PROPERTY(bool canRefresh READ canRefresh NOTIFY changed FINAL)
    Q_PROPERTY(bool canMakeReport READ canMakeReport NOTIFY changed FINAL)
    Q_PROPERTY(bool canMarkReviewed READ canMarkReviewed NOTIFY changed FINAL)
    Q_PROPERTY(bool canChangePhoto READ canChangePhoto NOTIFY changed FINAL)

public:
    explicit Commands(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);

    /// Nobody is asking for a sync, and none waits or runs; one that is stuck counts for nothing.
    bool canSync() const;
    /// No refresh that was asked for is running.
    bool canRefresh() const;
    /// There is a current file whose report is not being made.
    bool canMakeReport() const;
    /// There is a current file that is not reviewed.
    bool canMarkReviewed() const;
    bool canChangePhoto() const;

    /// Asks for the current file's report.
    Q_INVOKABLE void makeReport();
    /// Marks the current file reviewed.
    Q_INVOKABLE void markReviewed();

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    bool idle(const QString &key) const { return m_store && m_store->signedIn() && !m_store->isBusy(key); }
    const FileItem *current() const { return m_store ? m_store->current() : nullptr; }

    Store *m_store = nullptr;
};

} // namespace vexal
