#pragma once

#include "activity.h"
#include "passingtime.h"
#include "rowlist.h"
#include "store.h"

namespace vexal {

/// The activity list, kept in step with the store while it is open.
class ActivityState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Store *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(vexal::PassingTime *time READ time WRITE setTime NOTIFY timeChanged REQUIRED FINAL)
    Q_PROPERTY(QAbstractListModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged FINAL)

public:
    explicit ActivityState(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);
    PassingTime *time() const { return m_time; }
    void setTime(PassingTime *time);

    /// The events as rows of `activityRow`.
    QAbstractListModel *rows() { return &m_rows; }
    /// Nothing has happened yet.
    bool empty() const { return m_empty; }

    /// Selects the file that the row leads to, turns to the event's page and closes the list. Does nothing for a row
    /// that leads nowhere.
    Q_INVOKABLE void follow(int row);

Q_SIGNALS:
    void storeChanged();
    void timeChanged();
    void emptyChanged();

private:
    void tell();
    void announce();

    Store *m_store = nullptr;
    PassingTime *m_time = nullptr;
    RowList<ActivityRow> m_rows;
    bool m_empty = true;
};

} // namespace vexal
