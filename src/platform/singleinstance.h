#pragma once

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QUrl>

namespace vexal {

/// Sees to it that a person has one Vexal: the first start answers to the application id on the session bus, every
/// later one hands its URLs over and ends.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum class Role {
        First,  ///< This is the one.
        Second, ///< The URLs went to the first, or wait in its queue: end.
        Alone,  ///< There is no session bus to meet on.
    };

    SingleInstance(const QDBusConnection &bus, const QString &applicationId, QObject *parent = nullptr);

    /// Claims the application id or, where it is taken, hands `urls` over, waiting at most five seconds for an answer.
    Role claim(const QList<QUrl> &urls);

Q_SIGNALS:
    /// URLs were opened into the program from outside.
    void opened(const QList<QUrl> &urls);

    /// The program was started again without a URL, or otherwise asked to come forward.
    void activated();

private:
    QString path() const;
    void handOver(const QList<QUrl> &urls);

    QDBusConnection m_bus;
    QString m_id;
};

} // namespace vexal
