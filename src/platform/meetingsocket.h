#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QStringList>

#include <chrono>

namespace vexal {

/// Where the starts of a program meet that have no session bus: a socket in a folder of the person's, which nobody else
/// can open. A lock beside it, not the socket, says whose it is, so that a start that crashed leaves it free.
class MeetingSocket : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        Opened,      ///< It is ours now: what others say arrives as heard().
        Delivered,   ///< Another start has it, and was told.
        Unreachable, ///< It can neither be had nor spoken to.
    };

    /// Meets in that folder, under a name that all starts of the program share. Opens nothing yet.
    MeetingSocket(const QString &folder, const QString &name, QObject *parent = nullptr);

    /// Opens it or, where another start has, tells that one these lines, for at most the time given. A line holds no
    /// line end.
    Outcome openOrTell(const QStringList &lines, std::chrono::milliseconds patience);

Q_SIGNALS:
    /// Another start told this: none or some lines.
    void heard(const QStringList &lines);

private:
    bool open();
    bool tell(const QByteArray &message, int patience) const;
    void listenTo(QLocalSocket *visitor);

    QString m_path;
    QLockFile m_lock;
    QLocalServer m_server;
};

} // namespace vexal
