#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QString>

#include <optional>

namespace vexal {

/// The words around the field for a new note.
class ComposerView
{
    Q_GADGET
    QML_VALUE_TYPE(composerView)
    Q_PROPERTY(QString context MEMBER context FINAL)
    Q_PROPERTY(bool attached MEMBER attached FINAL)
    Q_PROPERTY(QString placeholder MEMBER placeholder FINAL)
    Q_PROPERTY(bool posting MEMBER posting FINAL)
    Q_PROPERTY(bool onItsWay MEMBER onItsWay FINAL)

public:
    QString context;       ///< What the note will be on: "Note pinned on page 7".
    bool attached = false; ///< It is pinned, or answers a finding.
    QString placeholder;
    bool posting = false;  ///< A note is being posted, so that another cannot be.
    bool onItsWay = false; ///< This one is.
    bool operator==(const ComposerView &) const = default;
};

/// "Note pinned on page 7", "Note on: “lantern” reads “lantem”" or "Note on page 7". A pin goes before a finding.
QString composerContext(bool pinned, const std::optional<QString> &findingTitle, const QString &pageName);

/// What an empty field asks for.
QString composerPlaceholder(bool pinning);

} // namespace vexal
