#pragma once

#include "comparison.h"
#include "rowlist.h"
#include "store.h"

namespace vexal {

/// What the canvas draws of the current file, kept in step with the store.
class CanvasState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Store *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(bool ready READ ready NOTIFY changed FINAL)
    Q_PROPERTY(vexal::Comparison comparison READ comparison NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractListModel *marks READ marks CONSTANT FINAL)

public:
    explicit CanvasState(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);

    /// The current file's detail is here, so that there is something to compare.
    bool ready() const { return m_ready; }
    Comparison comparison() const { return m_comparison; }
    /// The findings' marks on the supplier's page, as rows of `boxMark`.
    QAbstractListModel *marks() { return &m_marks; }

    /// Shows the next page (1) or the previous one (-1); nothing past the ends of the file.
    Q_INVOKABLE void turn(int step);
    /// Focuses a finding, or lets go of it when it has the focus.
    Q_INVOKABLE void toggleFocus(const QString &finding);

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    void update();

    Store *m_store = nullptr;
    bool m_ready = false;
    Comparison m_comparison;
    RowList<BoxMark> m_marks;
};

} // namespace vexal
