#include "meetingsocket.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr qint64 longestMessage = 65'536; ///< Bytes: more than any list of URLs that a desktop hands over.
constexpr unsigned long breath = 20;      ///< Milliseconds between two tries.

} // namespace

MeetingSocket::MeetingSocket(const QString &folder, const QString &name, QObject *parent)
    : QObject(parent)
    , m_path(folder + u'/' + name + ".socket"_L1)
    , m_lock(folder + u'/' + name + ".lock"_L1)
{
    m_lock.setStaleLockTime(0); // held for as long as its process lives
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *visitor = m_server.nextPendingConnection())
            listenTo(visitor);
    });
}

MeetingSocket::Outcome MeetingSocket::openOrTell(const QStringList &lines, std::chrono::milliseconds patience)
{
    const QByteArray message = lines.join(u'\n').toUtf8();
    const QDeadlineTimer end(patience);
    // Who has the lock may not have come to listening yet, or may just be leaving.
    for (;; QThread::msleep(breath)) {
        if (m_lock.tryLock(0))
            return open() ? Outcome::Opened : Outcome::Unreachable;
        if (m_lock.error() != QLockFile::LockFailedError)
            return Outcome::Unreachable;
        if (tell(message, int(end.remainingTime())))
            return Outcome::Delivered;
        if (end.hasExpired())
            return Outcome::Unreachable;
    }
}

bool MeetingSocket::open()
{
    QLocalServer::removeServer(m_path);
    if (m_server.listen(m_path))
        return true;
    m_lock.unlock();
    return false;
}

bool MeetingSocket::tell(const QByteArray &message, int patience) const
{
    QLocalSocket socket;
    socket.connectToServer(m_path);
    if (!socket.waitForConnected(patience))
        return false;
    socket.write(message);
    socket.disconnectFromServer();
    return socket.state() == QLocalSocket::UnconnectedState || socket.waitForDisconnected(patience);
}

// The end of the connection is the end of the message.
void MeetingSocket::listenTo(QLocalSocket *visitor)
{
    visitor->setReadBufferSize(longestMessage);
    const auto hear = [this, visitor] {
        visitor->deleteLater();
        Q_EMIT heard(QString::fromUtf8(visitor->read(longestMessage)).split(u'\n', Qt::SkipEmptyParts));
    };
    if (visitor->state() == QLocalSocket::UnconnectedState)
        return hear();
    connect(visitor, &QLocalSocket::disconnected, this, hear);
}

} // namespace vexal
