#include "portallook.h"
#include "privatebus.h"

#include <QCoreApplication>
#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using vexal::Look;
using vexal::PortalLook;

namespace {

using Settings = QMap<QString, QVariantMap>;

const QString appearance = u"org.freedesktop.appearance"_s;
const QString desktop = u"org.gnome.desktop.interface"_s;

/// A desktop's settings portal, on the bus while it lives.
class Portal : public QObject
{
    Q_OBJECT

public:
    explicit Portal(const Settings &values);
    ~Portal() override
    {
        m_bus.unregisterObject(path);
        m_bus.unregisterService(service);
        QDBusConnection::disconnectFromBus(u"portal"_s);
    }

    void set(const QString &space, const QString &key, const QVariant &value)
    {
        settings[space][key] = value;
        auto changed = QDBusMessage::createSignal(path, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        changed << space << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(changed);
    }

    Settings settings;
    QStringList asked;

private:
    const QString path = u"/org/freedesktop/portal/desktop"_s;
    const QString service = u"org.freedesktop.portal.Desktop"_s;
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s);
};

class PortalSettings : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit PortalSettings(Portal &portal)
        : QDBusAbstractAdaptor(&portal)
        , m_portal(portal)
    {
    }

public Q_SLOTS:
    QMap<QString, QVariantMap> ReadAll(const QStringList &spaces)
    {
        m_portal.asked = spaces;
        return m_portal.settings;
    }

private:
    Portal &m_portal;
};

Portal::Portal(const Settings &values)
    : settings(values)
{
    new PortalSettings(*this);
    m_bus.registerObject(path, this, QDBusConnection::ExportAdaptors);
    if (!m_bus.registerService(service))
        qFatal("There is another portal on the bus.");
}

} // namespace

class DesktopLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutABusItIsTheUsualLookAtOnce();
    void withoutAPortalItIsTheUsualLook();
    void theDesktopsWishesAreRead_data();
    void theDesktopsWishesAreRead();
    void aChangeOfMindIsFollowed();
    void whatIsNoneOfOursChangesNothing();
    void aPortalThatComesLaterIsHeard();
};

void DesktopLookTest::withoutABusItIsTheUsualLookAtOnce()
{
    const PortalLook look(QDBusConnection(u"none"_s));
    QVERIFY(look.known());
    QCOMPARE(look.look(), Look());
}

void DesktopLookTest::withoutAPortalItIsTheUsualLook()
{
    PortalLook look(QDBusConnection::sessionBus());
    QVERIFY(!look.known());
    QSignalSpy known(&look, &PortalLook::becameKnown);
    QTRY_COMPARE(known.size(), 1);
    QVERIFY(look.known());
    QCOMPARE(look.look(), Look());
}

void DesktopLookTest::theDesktopsWishesAreRead_data()
{
    QTest::addColumn<Settings>("settings");
    QTest::addColumn<Look>("expected");
    QTest::newRow("nothing said") << Settings{} << Look{};
    QTest::newRow("no preference") << Settings{{appearance, {{u"color-scheme"_s, 0U}}}} << Look{};
    QTest::newRow("dark") << Settings{{appearance, {{u"color-scheme"_s, 1U}}}} << Look{.dark = true};
    QTest::newRow("light") << Settings{{appearance, {{u"color-scheme"_s, 2U}}}} << Look{};
    QTest::newRow("a scheme of the future") << Settings{{appearance, {{u"color-scheme"_s, 7U}}}} << Look{};
    QTest::newRow("no number") << Settings{{appearance, {{u"color-scheme"_s, u"dark"_s}}}} << Look{};
    QTest::newRow("contrast") << Settings{{appearance, {{u"contrast"_s, 1U}}}} << Look{.contrast = true};
    QTest::newRow("no animations") << Settings{{desktop, {{u"enable-animations"_s, false}}}}
                                   << Look{.reducedMotion = true};
    QTest::newRow("animations") << Settings{{desktop, {{u"enable-animations"_s, true}}}} << Look{};
    QTest::newRow("less motion") << Settings{{desktop, {{u"enable-animations"_s, true}}},
                                             {appearance, {{u"reduced-motion"_s, 1U}}}}
                                 << Look{.reducedMotion = true};
    QTest::newRow("all of it") << Settings{{appearance, {{u"color-scheme"_s, 1U}, {u"contrast"_s, 1U}}},
                                           {desktop, {{u"enable-animations"_s, false}}}}
                               << Look{true, true, true};
}

void DesktopLookTest::theDesktopsWishesAreRead()
{
    QFETCH(Settings, settings);
    QFETCH(Look, expected);
    const Portal portal(settings);
    const PortalLook look(QDBusConnection::sessionBus());
    QTRY_VERIFY(look.known());
    QCOMPARE(look.look(), expected);
    QCOMPARE(portal.asked, (QStringList{appearance, desktop}));
}

void DesktopLookTest::aChangeOfMindIsFollowed()
{
    Portal portal({});
    PortalLook look(QDBusConnection::sessionBus());
    QTRY_VERIFY(look.known());
    QSignalSpy changed(&look, &PortalLook::changed);
    portal.set(appearance, u"color-scheme"_s, 1U);
    QTRY_COMPARE(look.look(), Look{.dark = true});
    portal.set(desktop, u"enable-animations"_s, false);
    QTRY_COMPARE(look.look(), (Look{.dark = true, .reducedMotion = true}));
    portal.set(appearance, u"color-scheme"_s, 2U);
    QTRY_COMPARE(look.look(), Look{.reducedMotion = true});
    QCOMPARE(changed.size(), 3);
}

void DesktopLookTest::whatIsNoneOfOursChangesNothing()
{
    Portal portal({});
    PortalLook look(QDBusConnection::sessionBus());
    QTRY_VERIFY(look.known());
    QSignalSpy changed(&look, &PortalLook::changed);
    portal.set(appearance, u"accent-color"_s, 1U);
    portal.set(desktop, u"color-scheme"_s, u"prefer-dark"_s);
    portal.set(u"org.example"_s, u"color-scheme"_s, 1U);
    portal.set(appearance, u"contrast"_s, 1U); // the last of the row: what came before it has been heard
    QTRY_COMPARE(look.look(), Look{.contrast = true});
    QCOMPARE(changed.size(), 1);
}

void DesktopLookTest::aPortalThatComesLaterIsHeard()
{
    PortalLook look(QDBusConnection::sessionBus());
    QTRY_VERIFY(look.known());
    Portal portal({{appearance, {{u"color-scheme"_s, 1U}}}});
    QTRY_COMPARE(look.look(), Look{.dark = true});
    portal.set(appearance, u"color-scheme"_s, 0U);
    QTRY_COMPARE(look.look(), Look());
}

int main(int count, char **arguments)
{
    QCoreApplication application(count, arguments);
    qDBusRegisterMetaType<Settings>();
    PrivateBus bus;
    DesktopLookTest test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_desktoplook.moc"
