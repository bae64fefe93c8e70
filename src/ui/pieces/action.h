#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace vexal {

class OnAction;

/// Something that the person can ask for by a key, in a menu or with a button. It does nothing itself: the place of the
/// window that can do it at this moment answers.
class Action : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The actions stand in one table.")
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(QVariantList sequences READ sequences CONSTANT FINAL)
    Q_PROPERTY(bool enabled READ enabled NOTIFY enabledChanged FINAL)

public:
    /// `name` as a menu says it; `sequences` the keys that ask for it, as in "Ctrl+N".
    Action(const QString &name, const QStringList &sequences, QObject *parent);

    QString name() const { return m_name; }
    /// The keys that ask for it, each a text as in "Ctrl+N".
    QVariantList sequences() const { return {m_sequences.cbegin(), m_sequences.cend()}; }
    /// Somebody answers.
    bool enabled() const { return m_enabled; }

    /// Asks for it; nothing happens while nobody answers.
    Q_INVOKABLE void trigger();

Q_SIGNALS:
    void enabledChanged();

private:
    friend class OnAction;

    OnAction *answering() const;
    void add(OnAction *place);
    void remove(OnAction *place);
    void update();

    QString m_name;
    QStringList m_sequences;
    bool m_enabled = false;
    QList<OnAction *> m_places;
};

/// A place of the window that answers an action as long as it stands and is enabled. Of several that do, the one that
/// came last answers.
class OnAction : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Action *action READ action WRITE setAction NOTIFY actionChanged REQUIRED FINAL)
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY enabledChanged FINAL)

public:
    explicit OnAction(QObject *parent = nullptr);
    ~OnAction() override;

    Action *action() const { return m_action; }
    void setAction(Action *action);
    bool enabled() const { return m_enabled; }
    void setEnabled(bool enabled);

Q_SIGNALS:
    void actionChanged();
    void enabledChanged();
    void triggered();

private:
    QPointer<Action> m_action; ///< The table may go first.
    bool m_enabled = true;
};

} // namespace vexal
