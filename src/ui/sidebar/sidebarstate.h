#pragma once

#include "palette.h"
#include "passingtime.h"
#include "people.h"
#include "rowlist.h"
#include "store.h"

namespace vexal {

/// What the sidebar says around the list of files, kept in step with the store.
class SidebarState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Store *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(vexal::PassingTime *time READ time WRITE setTime NOTIFY timeChanged REQUIRED FINAL)
    Q_PROPERTY(QString liveText READ liveText NOTIFY liveChanged FINAL)
    Q_PROPERTY(int liveTone READ liveTone NOTIFY liveChanged FINAL)
    Q_PROPERTY(QAbstractListModel *people READ people CONSTANT FINAL)

public:
    explicit SidebarState(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);
    PassingTime *time() const { return m_time; }
    void setTime(PassingTime *time);

    /// How fresh the board is, in words and as a tone.
    QString liveText() const { return m_liveText; }
    int liveTone() const { return m_liveTone; }
    /// The board's people as rows of `personRow`.
    QAbstractListModel *people() { return &m_people; }

Q_SIGNALS:
    void storeChanged();
    void timeChanged();
    void liveChanged();

private:
    void tell();
    void tellLive();
    void tellPeople();
    void announceLive();
    void announcePeople();

    Store *m_store = nullptr;
    PassingTime *m_time = nullptr;
    QString m_liveText;
    Tone::Value m_liveTone = Tone::Neutral;
    RowList<PersonRow> m_people;
};

} // namespace vexal
