#pragma once

#include "passingtime.h"
#include "store.h"
#include "synclast.h"

namespace vexal {

/// The board's sync, kept in step with the store: under way, or how the last one ended.
class SyncState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Store *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(vexal::PassingTime *time READ time WRITE setTime NOTIFY timeChanged REQUIRED FINAL)
    Q_PROPERTY(bool underWay READ underWay NOTIFY changed FINAL)
    Q_PROPERTY(vexal::JobRow job READ job NOTIFY changed FINAL)
    Q_PROPERTY(bool over READ over NOTIFY changed FINAL)
    Q_PROPERTY(vexal::SyncLast last READ last NOTIFY changed FINAL)
    Q_PROPERTY(bool starting READ starting NOTIFY changed FINAL)

public:
    explicit SyncState(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);
    PassingTime *time() const { return m_time; }
    void setTime(PassingTime *time);

    /// A sync waits, runs or does not answer: `job` is it.
    bool underWay() const { return m_shown.job.stage != JobStage::Over; }
    JobRow job() const { return m_shown.job; }
    /// There was a sync and it is over: `last` is how it ended.
    bool over() const { return m_shown.over; }
    SyncLast last() const { return m_shown.last; }
    /// The board is being asked for a sync.
    bool starting() const { return m_shown.starting; }

Q_SIGNALS:
    void storeChanged();
    void timeChanged();
    void changed();

private:
    struct Shown
    {
        JobRow job;
        SyncLast last;
        bool over = false;
        bool starting = false;
        bool operator==(const Shown &) const = default;
    };

    void tell();
    Shown shown() const;
    void announce();

    Store *m_store = nullptr;
    PassingTime *m_time = nullptr;
    Shown m_shown;
};

} // namespace vexal
