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
    Q_PROPERTY(QString file READ file NOTIFY changed FINAL)
    Q_PROPERTY(vexal::Closeup closeup READ closeup NOTIFY changed FINAL)
    Q_PROPERTY(QAbstractListModel *marks READ marks CONSTANT FINAL)
    Q_PROPERTY(QAbstractListModel *pins READ pins CONSTANT FINAL)
    Q_PROPERTY(QAbstractListModel *ahead READ ahead CONSTANT FINAL)
    Q_PROPERTY(QList<QString> modeLabels READ modeLabels CONSTANT FINAL)

public:
    explicit CanvasState(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);

    /// The current file's detail is here, so that there is something to compare.
    bool ready() const { return m_ready; }
    Comparison comparison() const { return m_comparison; }
    /// Id of the current file; empty without one.
    QString file() const { return m_file; }
    /// What the loupe enlarges.
    Closeup closeup() const { return m_closeup; }
    /// What the ways of comparing are called, in the order of their values.
    static QStringList modeLabels();
    /// The findings' marks on the supplier's page, as rows of `boxMark`.
    QAbstractListModel *marks() { return &m_marks; }
    /// The notes' pins there, as rows of `pinMark`.
    QAbstractListModel *pins() { return &m_pins; }
    /// The pages that may be shown next, as rows of `pageAhead`.
    QAbstractListModel *ahead() { return &m_ahead; }

    /// Shows the next page (1) or the previous one (-1); nothing past the ends of the file.
    Q_INVOKABLE void turn(int step);
    /// Focuses a finding, or lets go of it when it has the focus.
    Q_INVOKABLE void toggleFocus(const QString &finding);
    /// Compares in the way of that index among `modeLabels`.
    Q_INVOKABLE void chooseMode(int index);

Q_SIGNALS:
    void storeChanged();
    void changed();

private:
    void update();
    void turnToFocus();

    Store *m_store = nullptr;
    bool m_ready = false;
    QString m_file;
    Comparison m_comparison;
    Closeup m_closeup;
    RowList<BoxMark> m_marks;
    RowList<PinMark> m_pins;
    RowList<PageAhead> m_ahead;
};

} // namespace vexal
