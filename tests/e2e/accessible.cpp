#include "accessible.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr auto accessibleInterface = "org.a11y.atspi.Accessible"_L1;
constexpr auto actionInterface = "org.a11y.atspi.Action"_L1;
constexpr int patience = 10'000;      ///< Milliseconds for one answer.
constexpr int mostVisited = 5000;     ///< So many on one way through, should a tree run in a circle.
constexpr uint screenCoordinates = 0; ///< As against those of the window.
constexpr uint checked = 4;           ///< Numbers of states.
constexpr uint enabled = 8;
constexpr uint focused = 12;
constexpr uint showing = 25;

} // namespace

Accessible::Accessible(const QDBusConnection &bus, const QString &program, const QString &path)
    : m_bus(bus)
    , m_program(program)
    , m_path(path)
{
}

QList<QVariant> Accessible::ask(const QString &interface, const QString &method, const QList<QVariant> &arguments) const
{
    auto call = QDBusMessage::createMethodCall(m_program, m_path, interface, method);
    call.setArguments(arguments);
    const QDBusMessage reply = m_bus.call(call, QDBus::Block, patience);
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments() : QList<QVariant>{};
}

QVariant Accessible::property(const QString &name) const
{
    const auto reply = ask(u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {QString(accessibleInterface), name});
    return reply.isEmpty() ? QVariant() : reply.first().value<QDBusVariant>().variant();
}

QString Accessible::name() const
{
    return property(u"Name"_s).toString();
}

QString Accessible::description() const
{
    return property(u"Description"_s).toString();
}

QString Accessible::role() const
{
    const auto reply = ask(accessibleInterface, u"GetRoleName"_s);
    return reply.isEmpty() ? QString() : reply.first().toString();
}

bool Accessible::hasState(uint number) const
{
    const auto reply = ask(accessibleInterface, u"GetState"_s);
    const auto states = reply.isEmpty() ? QList<uint>() : qdbus_cast<QList<uint>>(reply.first());
    return !states.isEmpty() && (states.first() & 1U << number) != 0;
}

bool Accessible::isEnabled() const
{
    return hasState(enabled);
}

bool Accessible::isShowing() const
{
    return hasState(showing);
}

bool Accessible::isFocused() const
{
    return hasState(focused);
}

bool Accessible::isChecked() const
{
    return hasState(checked);
}

QList<Accessible> Accessible::children() const
{
    const auto reply = ask(accessibleInterface, u"GetChildren"_s);
    if (reply.isEmpty())
        return {};
    QList<Accessible> children;
    const auto references = reply.first().value<QDBusArgument>();
    references.beginArray();
    while (!references.atEnd()) {
        QString program;
        QDBusObjectPath path;
        references.beginStructure();
        references >> program >> path;
        references.endStructure();
        children.append({m_bus, program, path.path()});
    }
    references.endArray();
    return children;
}

QRect Accessible::place() const
{
    const auto reply = ask(u"org.a11y.atspi.Component"_s, u"GetExtents"_s, {screenCoordinates});
    if (reply.isEmpty())
        return {};
    int x = 0, y = 0, width = 0, height = 0;
    const auto extents = reply.first().value<QDBusArgument>();
    extents.beginStructure();
    extents >> x >> y >> width >> height;
    extents.endStructure();
    return {x, y, width, height};
}

int Accessible::pressAction() const
{
    const auto reply = ask(actionInterface, u"GetActions"_s);
    if (reply.isEmpty())
        return 0;
    int press = -1;
    int number = 0;
    const auto actions = reply.first().value<QDBusArgument>();
    actions.beginArray();
    for (; !actions.atEnd(); ++number) {
        QString name, description, keys;
        actions.beginStructure();
        actions >> name >> description >> keys;
        actions.endStructure();
        if (press < 0 && name.compare("press"_L1, Qt::CaseInsensitive) == 0)
            press = number;
    }
    actions.endArray();
    return qMax(0, press);
}

bool Accessible::press() const
{
    const auto reply = ask(actionInterface, u"DoAction"_s, {pressAction()});
    return !reply.isEmpty() && reply.first().toBool();
}

std::optional<Accessible> Accessible::find(const std::function<bool(const Accessible &)> &fits) const
{
    QList<Accessible> queue = children();
    for (qsizetype i = 0; i < queue.size() && i < mostVisited; ++i) {
        const Accessible candidate = queue[i];
        if (!candidate.isShowing())
            continue;
        if (fits(candidate))
            return candidate;
        queue += candidate.children();
    }
    return std::nullopt;
}

std::optional<Accessible> Accessible::find(const QString &role, const QString &name) const
{
    return find([&](const Accessible &candidate) { return candidate.role() == role && candidate.name() == name; });
}

QList<Accessible> Accessible::all(const QString &role) const
{
    QList<Accessible> found;
    find([&](const Accessible &candidate) {
        if (candidate.role() == role)
            found.append(candidate);
        return false;
    });
    return found;
}

std::optional<Accessible> Accessible::focus() const
{
    std::optional<Accessible> innermost;
    find([&](const Accessible &candidate) {
        if (candidate.isFocused())
            innermost = candidate;
        return false;
    });
    return innermost;
}

} // namespace vexal
