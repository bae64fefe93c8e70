#pragma once

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QList>
#include <QRect>
#include <QString>

#include <functional>
#include <optional>

namespace vexal {

/// Something on the screen, as a program tells of it on the desktop's accessibility bus. It may go away at any moment:
/// then it has no name, no children and cannot be pressed.
class Accessible
{
public:
    struct Sight;

    Accessible(const QDBusConnection &bus, const QString &program, const QString &path);

    QString busName() const { return m_program; } ///< Of its program.
    QString name() const;                         ///< What a person reads.
    QString description() const;                  ///< The tooltip.
    QString role() const;                         ///< "push button", "alert".
    bool isEnabled() const;
    bool isFocused() const; ///< It has the keyboard.
    bool isChecked() const; ///< It is on.

    /// Where it is on the screen, in pixels.
    QRect place() const;

    /// The very same thing, whatever it is called now.
    bool operator==(const Accessible &other) const { return m_program == other.m_program && m_path == other.m_path; }

    /// Does what it is there for. False when it takes no action.
    bool press() const;

    QList<Accessible> children() const;
    /// The nearest to this among its descendants that fits, of those that show, as against being there, but hidden.
    std::optional<Accessible> find(const std::function<bool(const Sight &)> &fits) const;
    std::optional<Accessible> find(const QString &role, const QString &name) const;
    /// Every descendant of the role that shows, nearest first.
    QList<Accessible> all(const QString &role) const;
    /// The innermost of its descendants that has the keyboard.
    std::optional<Accessible> focus() const;

private:
    bool hasState(uint number) const;
    int pressAction() const; ///< Its number: taking the focus may come before it.
    QDBusPendingCall askForProperty(const QString &name) const;
    QDBusPendingCall ask(const QLatin1StringView &interface, const QString &method,
                         const QList<QVariant> &arguments = {}) const;
    QList<Accessible> childrenIn(const QDBusPendingCall &reply) const;
    static QList<Sight> look(const QList<Accessible> &things);

    QDBusConnection m_bus;
    QString m_program;
    QString m_path;
};

/// What a thing tells of itself at one moment.
struct Accessible::Sight
{
    Accessible thing;
    QString role;
    QString name;
    uint states = 0;
    QList<Accessible> children;

    bool has(uint state) const { return (states & 1U << state) != 0; }
};

} // namespace vexal
