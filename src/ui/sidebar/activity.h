#pragma once

#include "board.h"
#include "clock.h"

#include <QtQml/qqmlregistration.h>

namespace vexal {

/// A line of the activity log as its list shows it.
class ActivityRow
{
    Q_GADGET
    QML_VALUE_TYPE(activityRow)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(QString actor MEMBER actor FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString photo MEMBER photo FINAL)
    Q_PROPERTY(QString color MEMBER color FINAL)
    Q_PROPERTY(QString sentence MEMBER sentence FINAL)
    Q_PROPERTY(QString styled MEMBER styled FINAL)
    Q_PROPERTY(QString when MEMBER when FINAL)
    Q_PROPERTY(bool leads READ leads FINAL)

public:
    QString key;      ///< The event's id.
    QString actor;    ///< E-mail address of who did it; empty for the worker machine.
    QString name;     ///< The actor's whole name; empty for somebody who is not known.
    QString color;    ///< The board's colour for the actor; empty without one.
    QString photo;    ///< Blob key of the actor's photo; empty without one.
    QString sentence; ///< "Teo started a sync"
    QString styled;   ///< The same with the actor's name set off, as the few tags of styled text say it.
    QString when;     ///< "3 min ago"
    QString file;     ///< Id of the file that it leads to; empty when it leads nowhere.
    qint64 page = -1; ///< The page of that file, from 0; -1 for none.

    /// There is a file behind it.
    bool leads() const { return !file.isEmpty(); }
    bool operator==(const ActivityRow &) const = default;
};

/// What happened, as a sentence. Without an actor's name it begins with what was done.
QString activitySentence(const Event &event, const QString &actorName);

/// The board's log in board order. An event whose file has gone from the board leads nowhere.
QList<ActivityRow> activityRows(const BoardState &board, const Clock &clock);

} // namespace vexal
