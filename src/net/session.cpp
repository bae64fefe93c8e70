#include "session.h"

#include "transfer.h"

#include <QSocketNotifier>

#include <curl/curl.h>

#include <algorithm>
#include <csignal>
#include <utility>

namespace vexal {

/// What libcurl asks of the event loop.
struct Session::Calls
{
    static int watch(CURL *, curl_socket_t socket, int what, void *session, void *)
    {
        auto *self = static_cast<Session *>(session);
        self->unwatch(socket);
        if (what != CURL_POLL_REMOVE)
            self->watch(socket, what);
        return 0;
    }

    static int wake(CURLM *, long milliseconds, void *session)
    {
        QTimer &timer = static_cast<Session *>(session)->m_timer;
        if (milliseconds < 0)
            timer.stop();
        else
            timer.start(int(milliseconds));
        return 0;
    }
};

Session::Session()
{
    static const CURLcode ready = curl_global_init(CURL_GLOBAL_DEFAULT);
    Q_UNUSED(ready)
    // A connection that the server has closed is for us to hear of, not to die of.
    std::signal(SIGPIPE, SIG_IGN);
    m_multi = curl_multi_init();
    curl_multi_setopt(m_multi, CURLMOPT_SOCKETFUNCTION, &Calls::watch);
    curl_multi_setopt(m_multi, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(m_multi, CURLMOPT_TIMERFUNCTION, &Calls::wake);
    curl_multi_setopt(m_multi, CURLMOPT_TIMERDATA, this);
    curl_multi_setopt(m_multi, CURLMOPT_MAXCONNECTS, long(most));
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { act(CURL_SOCKET_TIMEOUT, 0); });
}

Session::~Session()
{
    curl_multi_cleanup(m_multi);
}

void Session::add(Transfer &transfer)
{
    const auto behind = [&transfer](const Transfer *other) {
        return other->inBackground() && !transfer.inBackground();
    };
    m_waiting.insert(std::find_if(m_waiting.cbegin(), m_waiting.cend(), behind), &transfer);
    fill();
}

void Session::remove(Transfer &transfer)
{
    m_waiting.removeOne(&transfer);
    if (!m_running.removeOne(&transfer))
        return;
    curl_multi_remove_handle(m_multi, transfer.handle());
    fill();
}

void Session::fill()
{
    while (!m_waiting.isEmpty() && m_running.size() < (m_waiting.first()->inBackground() ? most - 1 : most)) {
        m_running += m_waiting.takeFirst();
        m_running.last()->begin();
        curl_multi_add_handle(m_multi, m_running.last()->handle());
    }
}

void Session::watch(int socket, int what)
{
    Watch &watch = m_watches[socket];
    if ((what & CURL_POLL_IN) != 0) {
        watch.read = new QSocketNotifier(socket, QSocketNotifier::Read, this);
        connect(watch.read, &QSocketNotifier::activated, this, [this, socket] { act(socket, CURL_CSELECT_IN); });
    }
    if ((what & CURL_POLL_OUT) != 0) {
        watch.write = new QSocketNotifier(socket, QSocketNotifier::Write, this);
        connect(watch.write, &QSocketNotifier::activated, this, [this, socket] { act(socket, CURL_CSELECT_OUT); });
    }
}

void Session::unwatch(int socket)
{
    const Watch watch = m_watches.take(socket);
    for (QSocketNotifier *notifier : {watch.read, watch.write}) {
        if (!notifier)
            continue;
        // It may be the one that is speaking.
        notifier->setEnabled(false);
        notifier->deleteLater();
    }
}

void Session::act(int socket, int events)
{
    int running = 0;
    curl_multi_socket_action(m_multi, socket, events, &running);
    tellTheEnded();
}

void Session::tellTheEnded()
{
    // Whoever is told may end any other transfer.
    QList<std::pair<QPointer<Transfer>, int>> ended;
    int left = 0;
    while (const CURLMsg *message = curl_multi_info_read(m_multi, &left)) {
        char *transfer = nullptr;
        curl_easy_getinfo(message->easy_handle, CURLINFO_PRIVATE, &transfer);
        ended.append({reinterpret_cast<Transfer *>(transfer), int(message->data.result)});
    }
    for (const auto &[transfer, code] : std::as_const(ended)) {
        if (transfer)
            transfer->end(code);
    }
}

} // namespace vexal
