// Stands in for NetworkManager on the system bus: its state is the last number that came in.
#include <QCoreApplication>
#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QSocketNotifier>
#include <QTextStream>
#include <QVariantMap>

#include <unistd.h>

using namespace Qt::StringLiterals;

class NetworkManager : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.NetworkManager")
    Q_PROPERTY(uint State MEMBER m_state)
    Q_PROPERTY(uint Connectivity MEMBER m_connectivity)

public:
    explicit NetworkManager(QObject *object)
        : QDBusAbstractAdaptor(object)
    {
    }

    void setState(uint state)
    {
        m_state = state;
        auto changed = QDBusMessage::createSignal(u"/org/freedesktop/NetworkManager"_s,
                                                  u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
        changed << u"org.freedesktop.NetworkManager"_s << QVariantMap{{u"State"_s, state}} << QStringList();
        QDBusConnection::systemBus().send(changed);
    }

private:
    uint m_state = 70;
    uint m_connectivity = 4;
};

int main(int count, char **arguments)
{
    QCoreApplication application(count, arguments);
    QObject object;
    auto *manager = new NetworkManager(&object);
    QDBusConnection bus = QDBusConnection::systemBus();
    bus.registerObject(u"/org/freedesktop/NetworkManager"_s, &object, QDBusConnection::ExportAdaptors);
    bus.registerService(u"org.freedesktop.NetworkManager"_s);
    QTextStream(stdout) << "ready" << Qt::endl;

    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &object, [manager] {
        char line[16] = {};
        const auto size = ::read(STDIN_FILENO, line, sizeof line - 1);
        if (size <= 0)
            return QCoreApplication::quit();
        manager->setState(QByteArray(line, size).trimmed().toUInt());
    });
    return QCoreApplication::exec();
}

#include "networkmanagerpeer.moc"
