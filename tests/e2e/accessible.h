#pragma once

#include <QDBusConnection>
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
    Accessible(const QDBusConnection &bus, const QString &program, const QString &path);

    QString busName() const { return m_program; } ///< Of its program.
    QString name() const;                         ///< What a person reads.
    QString description() const;                  ///< The tooltip.
    QString role() const;                         ///< "push button", "alert".
    QList<Accessible> children() const;
    bool isEnabled() const;
    bool isShowing() const; ///< As against there, but hidden.
    bool isFocused() const; ///< It has the keyboard.
    bool isChecked() const; ///< It is on.

    /// Where it is on the screen, in pixels.
    QRect place() const;

    /// The very same thing, whatever it is called now.
    bool operator==(const Accessible &other) const { return m_program == other.m_program && m_path == other.m_path; }

    /// Does what it is there for. False when it takes no action.
    bool press() const;

    /// The nearest to this among its descendants that fits, of those that show.
    std::optional<Accessible> find(const std::function<bool(const Accessible &)> &fits) const;
    std::optional<Accessible> find(const QString &role, const QString &name) const;
    /// Every descendant of the role that shows, nearest first.
    QList<Accessible> all(const QString &role) const;
    /// The innermost of its descendants that has the keyboard.
    std::optional<Accessible> focus() const;

private:
    bool hasState(uint number) const;
    int pressAction() const; ///< Its number: taking the focus may come before it.
    QVariant property(const QString &name) const;
    QList<QVariant> ask(const QString &interface, const QString &method, const QList<QVariant> &arguments = {}) const;

    QDBusConnection m_bus;
    QString m_program;
    QString m_path;
};

} // namespace vexal
