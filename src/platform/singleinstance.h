#pragma once

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QUrl>

namespace vexal {

/// Sees to it that a person has one Vexal: the first start answers to the application id on the session bus, every
/// later one hands its URLs over and ends. Where there is no session bus, they meet in a folder instead.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum class Role {
        First,  ///< This is the one.
        Second, ///< The URLs went to the first, or wait in its queue: end.
        Alone,  ///< There is nowhere to meet.
    };

    /// `folder` is one that nobody but the person can open, such as runtimeFolder().
    SingleInstance(const QDBusConnection &bus, const QString &applicationId, const QString &folder,
                   QObject *parent = nullptr);

    /// Claims the application id or, where it is taken, hands `urls` over, waiting at most five seconds for an answer.
    Role claim(const QList<QUrl> &urls);

Q_SIGNALS:
    /// URLs were opened into the program from outside.
    void opened(const QList<QUrl> &urls);

    /// The program was started again without a URL, or otherwise asked to come forward.
    void activated();

private:
    Role claimOnBus(const QList<QUrl> &urls);
    Role claimInFolder(const QList<QUrl> &urls);
    QString path() const;
    void handOver(const QList<QUrl> &urls);

    QDBusConnection m_bus;
    QString m_id;
    QString m_folder;
};

} // namespace vexal
