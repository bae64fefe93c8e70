#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

QT_BEGIN_NAMESPACE
class QSocketNotifier;
QT_END_NAMESPACE

namespace vexal {

class Transfer;

/// The one HTTP session of the program: keeps connections for the next request, lets a few transfers run at once and
/// the rest wait their turn. It turns with the event loop and blocks nothing.
///
/// libcurl does the talking. QNetworkAccessManager (6.4) will not do: of bodies that were cut short it took up to 8 in
/// 10 for whole, it sends again what was lost, and it cannot tell a server that broke off from one that speaks
/// nonsense.
class Session : public QObject
{
    Q_OBJECT

public:
    /// The most transfers at once, and so the most connections that are in use.
    static constexpr int most = 6;

    Session();
    ~Session() override;

    /// Runs the transfer now or when there is room: one place is never given to those in the background.
    void add(Transfer &transfer);

    /// Forgets the transfer, whether it waits, runs or has ended.
    void remove(Transfer &transfer);

private:
    struct Watch
    {
        QSocketNotifier *read = nullptr;
        QSocketNotifier *write = nullptr;
    };

    struct Calls;

    void watch(int socket, int what);
    void unwatch(int socket);
    void act(int socket, int events);
    void tellTheEnded();
    void fill();

    void *m_multi;
    QTimer m_timer;
    QHash<int, Watch> m_watches;
    QList<Transfer *> m_waiting;
    QList<Transfer *> m_running;
};

} // namespace vexal
