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

// What was answered; empty when nothing was, or a refusal.
QVariant answered(QDBusPendingCall call)
{
    call.waitForFinished();
    const QDBusMessage reply = call.reply();
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant();
}

QString propertyIn(const QDBusPendingCall &call)
{
    return answered(call).value<QDBusVariant>().variant().toString();
}

uint statesIn(const QDBusPendingCall &call)
{
    return qdbus_cast<QList<uint>>(answered(call)).value(0);
}

} // namespace

Accessible::Accessible(const QDBusConnection &bus, const QString &program, const QString &path)
    : m_bus(bus)
    , m_program(program)
    , m_path(path)
{
}

QDBusPendingCall Accessible::ask(const QLatin1StringView &interface, const QString &method,
                                 const QList<QVariant> &arguments) const
{
    auto call = QDBusMessage::createMethodCall(m_program, m_path, interface, method);
    call.setArguments(arguments);
    return m_bus.asyncCall(call, patience);
}

QDBusPendingCall Accessible::askForProperty(const QString &name) const
{
    return ask("org.freedesktop.DBus.Properties"_L1, u"Get"_s, {QString(accessibleInterface), name});
}

QString Accessible::name() const
{
    return propertyIn(askForProperty(u"Name"_s));
}

QString Accessible::description() const
{
    return propertyIn(askForProperty(u"Description"_s));
}

QString Accessible::role() const
{
    return answered(ask(accessibleInterface, u"GetRoleName"_s)).toString();
}

bool Accessible::hasState(uint number) const
{
    return (statesIn(ask(accessibleInterface, u"GetState"_s)) & 1U << number) != 0;
}

bool Accessible::isEnabled() const
{
    return hasState(enabled);
}

bool Accessible::isFocused() const
{
    return hasState(focused);
}

bool Accessible::isChecked() const
{
    return hasState(checked);
}

QList<Accessible> Accessible::childrenIn(const QDBusPendingCall &reply) const
{
    const QVariant told = answered(reply);
    if (!told.isValid())
        return {};
    QList<Accessible> children;
    const auto references = told.value<QDBusArgument>();
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

QList<Accessible> Accessible::children() const
{
    return childrenIn(ask(accessibleInterface, u"GetChildren"_s));
}

QRect Accessible::place() const
{
    const QVariant told = answered(ask("org.a11y.atspi.Component"_L1, u"GetExtents"_s, {screenCoordinates}));
    if (!told.isValid())
        return {};
    int x = 0, y = 0, width = 0, height = 0;
    const auto extents = told.value<QDBusArgument>();
    extents.beginStructure();
    extents >> x >> y >> width >> height;
    extents.endStructure();
    return {x, y, width, height};
}

int Accessible::pressAction() const
{
    const QVariant told = answered(ask(actionInterface, u"GetActions"_s));
    if (!told.isValid())
        return 0;
    int press = -1;
    int number = 0;
    const auto actions = told.value<QDBusArgument>();
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
    return answered(ask(actionInterface, u"DoAction"_s, {pressAction()})).toBool();
}

// Everything is asked before the first answer is awaited: what shows for a moment only would be gone before a walk from
// thing to thing came to it.
QList<Accessible::Sight> Accessible::look(const QList<Accessible> &things)
{
    struct Asked
    {
        QDBusPendingCall role, name, states, children;
    };
    QList<Asked> asked;
    for (const Accessible &thing : things) {
        asked.append({thing.ask(accessibleInterface, u"GetRoleName"_s), thing.askForProperty(u"Name"_s),
                      thing.ask(accessibleInterface, u"GetState"_s), thing.ask(accessibleInterface, u"GetChildren"_s)});
    }
    QList<Sight> sights;
    for (qsizetype i = 0; i < things.size(); ++i) {
        sights.append({things[i], answered(asked[i].role).toString(), propertyIn(asked[i].name),
                       statesIn(asked[i].states), things[i].childrenIn(asked[i].children)});
    }
    return sights;
}

std::optional<Accessible> Accessible::find(const std::function<bool(const Sight &)> &fits) const
{
    int visited = 0;
    for (QList<Accessible> level = children(); !level.isEmpty() && visited < mostVisited;) {
        visited += int(level.size());
        const QList<Sight> sights = look(level);
        level.clear();
        for (const Sight &candidate : sights) {
            if (!candidate.has(showing))
                continue;
            if (fits(candidate))
                return candidate.thing;
            level += candidate.children;
        }
    }
    return std::nullopt;
}

std::optional<Accessible> Accessible::find(const QString &role, const QString &name) const
{
    return find([&](const Sight &candidate) { return candidate.role == role && candidate.name == name; });
}

QList<Accessible> Accessible::all(const QString &role) const
{
    QList<Accessible> found;
    find([&](const Sight &candidate) {
        if (candidate.role == role)
            found.append(candidate.thing);
        return false;
    });
    return found;
}

std::optional<Accessible> Accessible::focus() const
{
    std::optional<Accessible> innermost;
    find([&](const Sight &candidate) {
        if (candidate.has(focused))
            innermost = candidate.thing;
        return false;
    });
    return innermost;
}

} // namespace vexal
