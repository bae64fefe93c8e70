#pragma once

#include <QObject>
#include <QUuid>

#include <functional>
#include <optional>

namespace vexal {

/// A short message at the window's foot, with an undo button where there is something to take back.
struct Toast
{
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString undoLabel READ undoLabelText)

public:
    QUuid id; ///< New for every toast, so that the same text shown twice counts as a new toast. Null: no toast.
    QString text;
    std::optional<QString> undoLabel; ///< What the undo button says; none, no button.
    std::function<void()> undo;       ///< What the undo button does; may be empty.

    /// A toast is the same while its id is: what it undoes cannot be compared.
    bool operator==(const Toast &other) const { return id == other.id; }

private:
    QString undoLabelText() const { return undoLabel.value_or(QString()); }
};

} // namespace vexal
