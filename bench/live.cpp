// What living on a server costs.
//   bench_life SAMPLE poll           one round of the loop while nothing changes
//   bench_life FILES refresh CHANGED a board of so many files of which some change
//   bench_life 20 parallel           so many requests at once
//   bench_life FILES serve           answers with a board of so many files until its input ends
//   bench_life PORT list START       from the start until such a board's list is on the screen
//   bench_life PORT scroll           scrolls that list
#include "api.h"
#include "boards.h"
#include "encode.h"
#include "frames.h"
#include "liveclient.h"
#include "relay.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <mutex>
#include <set>
#include <thread>

#include <curl/curl.h>
#include <httplib.h>
#include <pthread.h>

using namespace Qt::StringLiterals;
using namespace vexal;
using namespace vexal::bench;

namespace {

double secondsOf(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values[values.size() / 2];
}

template <typename Condition>
void waitUntil(const Condition &holds)
{
    // Woken now and then: what is waited for may come about in another thread.
    QTimer pulse;
    pulse.start(20);
    while (!holds())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// An HTTP server in threads of its own.
class Server
{
public:
    Server()
    {
        http.set_tcp_nodelay(true); // or every answer waits 40 ms for an acknowledgement
        port = http.bind_to_any_port("127.0.0.1");
    }
    ~Server()
    {
        http.stop();
        m_thread.join();
    }
    void start()
    {
        m_thread = std::thread([this] { http.listen_after_bind(); });
        while (!http.is_running())
            std::this_thread::yield();
    }
    QUrl url() const { return QUrl(u"http://127.0.0.1:%1"_s.arg(port)); }

    httplib::Server http;
    int port = 0;

private:
    std::thread m_thread;
};

size_t forget(char *, size_t, size_t size, void *)
{
    return size;
}

/// What the same request costs a program that blocks on it and does nothing with the answer.
double blockingMicroseconds(const QUrl &url, const QString &token, const QByteArray &tag, int times)
{
    CURL *handle = curl_easy_init();
    curl_slist *lines = curl_slist_append(nullptr, ("Authorization: Bearer " + token.toUtf8()).constData());
    lines = curl_slist_append(lines, ("If-None-Match: " + tag).constData());
    curl_easy_setopt(handle, CURLOPT_URL, (url.toEncoded() + "/api/state").constData());
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, lines);
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &forget);
    curl_easy_perform(handle);
    long status = 0;
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &status);
    if (status != 304)
        qFatal("The board is not the one that was polled: %ld.", status);
    const double before = processorSeconds();
    for (int i = 0; i < times; ++i)
        curl_easy_perform(handle);
    const double used = processorSeconds() - before;
    curl_slist_free_all(lines);
    curl_easy_cleanup(handle);
    return used * 1e6 / times;
}

/// The tag of the board that the server has now.
QByteArray tagOfBoard(LiveClient &client)
{
    QByteArray tag;
    client.api().send({.path = u"api/state"_s}, &client.app.store(), [&tag](const Result<Response> &answer) {
        tag = answer ? answer->entityTag().value_or(QString()).toLatin1() : "none";
    });
    waitUntil([&tag] { return !tag.isEmpty(); });
    return tag;
}

void pollTimes(Store &store, int times)
{
    for (int i = 0; i < times; ++i) {
        bool over = false;
        store.refresh(holdUntil([&over] { over = true; }));
        waitUntil([&over] { return over; });
    }
}

/// Until the board and the selected file are on the screen, with their pictures, and nothing moves any more.
void settle(LiveClient &client)
{
    Store &store = client.app.store();
    client.app.show();
    store.signIn();
    waitUntil([&] { return store.current() && store.detail(store.current()->id); });
    QElapsedTimer settling;
    settling.start();
    waitUntil([&] {
        pollTimes(store, 1);
        return settling.elapsed() > 3000;
    });
}

/// One round of the loop while nothing changes: the board and the selected file's detail.
int poll(const QString &sample)
{
    constexpr int times = 300;
    const BoardServer board(sample);
    {
        Relay relay(quint16(board.url().port()));
        LiveClient client(relay.url(), {}, LiveClient::Pace::None);
        settle(client);
        relay.forget();
        pollTimes(client.app.store(), times);
        tell("poll_sent", double(relay.sent()) / times);
        tell("poll_received", double(relay.received()) / times);
    }
    LiveClient client(board.url(), {}, LiveClient::Pace::None);
    settle(client);
    const double before = processorSeconds();
    pollTimes(client.app.store(), times);
    tell("poll", (processorSeconds() - before) * 1e6 / times);
    tell("poll_blocking", 2 * blockingMicroseconds(board.url(), client.token(), tagOfBoard(client), times));
    return 0;
}

/// The moment at which the last byte of a board goes out, and what the user-interface thread had used by then.
struct LastByte
{
    std::atomic<double> at = 0;
    std::atomic<double> used = 0;
};

/// A board of so many files of which some change with every refresh.
int refresh(int files, int changes)
{
    constexpr int times = 30;
    clockid_t mainThread{};
    pthread_getcpuclockid(pthread_self(), &mainThread);
    BoardState board = busyBoard({.files = files});
    board.events.clear();
    LastByte last;
    std::mutex guard;
    std::string body = encode(board).toStdString();
    Server server;
    server.http.Get("/api/state", [&](const httplib::Request &, httplib::Response &response) {
        const std::lock_guard lock(guard);
        response.set_content_provider(body.size(), "application/json",
                                      [&, whole = body](size_t offset, size_t, httplib::DataSink &sink) {
                                          if (offset == 0)
                                              return sink.write(whole.data(), whole.size() - 1);
                                          // By now everything else has been read, and the window rests.
                                          std::this_thread::sleep_for(std::chrono::milliseconds(150));
                                          last.used = secondsOf(mainThread);
                                          last.at = secondsOf(CLOCK_MONOTONIC);
                                          return sink.write(whole.data() + offset, 1);
                                      });
    });
    server.start();
    LiveClient client(server.url(), u"token"_s, LiveClient::Pace::None);
    Store &store = client.app.store();
    client.app.show();
    store.resume();
    waitUntil([&] { return store.board().has_value(); });

    std::atomic<bool> changed = false;
    std::atomic<double> frameAt = 0;
    QObject::connect(&store, &Store::boardChanged, &store, [&] { changed = true; });
    QObject::connect(
        &client.app.window(), &QQuickWindow::frameSwapped, &store,
        [&] {
            if (changed.exchange(false))
                frameAt = secondsOf(CLOCK_MONOTONIC);
        },
        Qt::DirectConnection);
    QList<double> bare; // Frames of the same window in which nothing changed.
    QList<double> used;
    QList<double> shown;
    for (int i = 0; i < times; ++i) {
        frameAt = 0;
        changed = true;
        const double asked = secondsOf(CLOCK_MONOTONIC);
        client.app.window().update();
        waitUntil([&] { return frameAt != 0; });
        bare.append((frameAt - asked) * 1e3);
        {
            for (int change = 0; change < changes; ++change)
                board.files[change * (files / changes) + i].title = u"Changed %1"_s.arg(i);
            board.rev += 1;
            const std::lock_guard lock(guard);
            body = encode(board).toStdString();
        }
        frameAt = 0;
        store.refresh();
        waitUntil([&] { return frameAt != 0; });
        used.append((secondsOf(mainThread) - last.used) * 1e3);
        shown.append((frameAt - last.at) * 1e3);
    }
    tell("refresh_thread", median(used));
    tell("refresh_frame", median(shown));
    tell("bare_frame", median(bare));
    return 0;
}

/// Requests that each take the server 20 ms, at once and one after the other.
int parallel(int many)
{
    std::mutex guard;
    std::set<int> connections;
    Server server;
    server.http.new_task_queue = [] { return new httplib::ThreadPool(64); };
    server.http.Get(".*", [&](const httplib::Request &request, httplib::Response &response) {
        {
            const std::lock_guard lock(guard);
            connections.insert(request.remote_port);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        response.set_content("x", "text/plain");
    });
    server.start();
    LiveClient client(server.url(), u"token"_s, LiveClient::Pace::None);
    API &api = client.api();
    int over = 0;
    const auto send = [&] { api.send({.path = u"x"_s}, &client.app.store(), [&over](const auto &) { ++over; }); };
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < many; ++i)
        send();
    waitUntil([&] { return over == many; });
    tell("parallel", double(clock.nsecsElapsed()) / 1e6);
    tell("parallel_connections", double(connections.size()));
    clock.restart();
    for (int i = 1; i <= many; ++i) {
        send();
        waitUntil([&] { return over == many + i; });
    }
    tell("sequential", double(clock.nsecsElapsed()) / 1e6);
    return 0;
}

/// Answers with the same board until somebody closes the input.
int serve(int files)
{
    BoardState board = busyBoard({.files = files});
    board.events.clear();
    const std::string body = encode(board).toStdString();
    Server server;
    server.http.Get("/api/state", [&body](const httplib::Request &, httplib::Response &response) {
        response.set_content(body, "application/json");
    });
    server.start();
    tell("port", server.port);
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}

QUrl onPort(const QString &port)
{
    return QUrl(u"http://127.0.0.1:"_s + port);
}

/// From the start of the process, which another one noted, until a large board's list is on the screen.
int list(const QString &port, const QByteArray &start)
{
    LiveClient client(onPort(port), u"token"_s, LiveClient::Pace::None);
    QQuickWindow &window = client.app.window();
    std::atomic<bool> inFrame = false;
    std::atomic<double> shown = 0;
    QObject::connect(
        &window, &QQuickWindow::afterSynchronizing, &window,
        [&] { inFrame = findItem(window.contentItem(), "FilePlace") != nullptr; }, Qt::DirectConnection);
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window,
        [&] {
            if (inFrame && shown == 0)
                shown = millisecondsSince(start);
        },
        Qt::DirectConnection);
    client.app.store().resume();
    client.app.show();
    waitUntil([&shown] { return shown != 0; });
    tell("list", shown);
    goOnFor(2000);
    tell("list_memory", proportionalMegabytes());
    return 0;
}

int scroll(const QString &port)
{
    LiveClient client(onPort(port), u"token"_s, LiveClient::Pace::None);
    client.app.store().resume();
    client.app.show();
    QQuickWindow &window = client.app.window();
    waitUntil([&window] { return findItem(window.contentItem(), "FilePlace") != nullptr; });
    tell("list_floor", spentOnFrame(window, [] {}));
    tell("list_scrolling", spentOnScrolledFrame(window, *findItem(window.contentItem(), "files")));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    prepareProcess();
    QGuiApplication application(argc, argv);
    const QString about = QString::fromLocal8Bit(argv[1]);
    const QByteArray what = argv[2];
    const QByteArray more = argc > 3 ? argv[3] : "";
    if (what == "poll")
        return poll(about);
    if (what == "refresh")
        return refresh(about.toInt(), more.toInt());
    if (what == "parallel")
        return parallel(about.toInt());
    if (what == "serve")
        return serve(about.toInt());
    return what == "list" ? list(about, more) : scroll(about);
}
