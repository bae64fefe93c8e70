#pragma once

#include "board.h"
#include "clock.h"

#include <QtQml/qqmlregistration.h>

namespace vexal {

/// A person as the people bar shows them.
class PersonRow
{
    Q_GADGET
    QML_VALUE_TYPE(personRow)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString photo MEMBER photo FINAL)
    Q_PROPERTY(QString color MEMBER color FINAL)
    Q_PROPERTY(bool live MEMBER live FINAL)
    Q_PROPERTY(QString help MEMBER help FINAL)

public:
    QString key; ///< The e-mail address.
    QString name;
    QString photo; ///< Blob key; empty without one.
    QString color; ///< As the board has it; empty without one.
    bool live = false;
    QString help; ///< "Mira · 5 min ago"
    bool operator==(const PersonRow &) const = default;
};

/// A person counts as live who was last seen less than twelve minutes ago.
bool isLive(const Person &person, const Clock &clock);

/// When a person who is live now stops being so, unless they are seen again. They have been seen.
QDateTime liveUntil(const Person &person);

/// The board's people in board order.
QList<PersonRow> peopleRows(const BoardState &board, const Clock &clock);

} // namespace vexal
