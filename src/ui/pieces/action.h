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
    Q_PROPERTY(QString section READ section CONSTANT FINAL)
    Q_PROPERTY(bool repeats READ repeats CONSTANT FINAL)
    Q_PROPERTY(bool enabled READ enabled NOTIFY enabledChanged FINAL)
    Q_PROPERTY(bool checked READ checked NOTIFY checkedChanged FINAL)

public:
    /// What its keys do when they are held down: ask once, or go on asking as a step or a degree does.
    enum class Held { AsksOnce, Repeats };

    /// `name` as a menu says it; `sequences` the keys that ask for it, as in "Ctrl+N"; `section` the part of the menu
    /// that it stands in, none for what is not in the menu.
    Action(const QString &name, const QStringList &sequences, const QString &section, Held held, QObject *parent);

    QString name() const { return m_name; }
    /// The keys that ask for it, each a text as in "Ctrl+N".
    QVariantList sequences() const { return {m_sequences.cbegin(), m_sequences.cend()}; }
    QString section() const { return m_section; }
    bool repeats() const { return m_held == Held::Repeats; }
    /// Somebody answers.
    bool enabled() const { return m_enabled; }

    /// It is a state, and who answers is in it.
    bool checked() const { return m_checked; }

    /// Asks for it; nothing happens while nobody answers.
    Q_INVOKABLE void trigger();

Q_SIGNALS:
    void enabledChanged();
    void checkedChanged();

private:
    friend class OnAction;

    OnAction *answering() const;
    void add(OnAction *place);
    void remove(OnAction *place);
    void update();

    QString m_name;
    QStringList m_sequences;
    QString m_section;
    Held m_held;
    bool m_enabled = false;
    bool m_checked = false;
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
    Q_PROPERTY(bool checked READ checked WRITE setChecked NOTIFY checkedChanged FINAL)

public:
    explicit OnAction(QObject *parent = nullptr);
    ~OnAction() override;

    Action *action() const { return m_action; }
    void setAction(Action *action);
    bool enabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    /// What the action stands for is so already.
    bool checked() const { return m_checked; }
    void setChecked(bool checked);

Q_SIGNALS:
    void actionChanged();
    void enabledChanged();
    void checkedChanged();
    void triggered();

private:
    QPointer<Action> m_action; ///< The table may go first.
    bool m_enabled = true;
    bool m_checked = false;
};

} // namespace vexal
