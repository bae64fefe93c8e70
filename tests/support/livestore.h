#pragma once

#include "boards.h"
#include "client.h"
#include "encode.h"
#include "filepicker.h"
#include "launcherbadge.h"
#include "notifications.h"
#include "opener.h"
#include "signin.h"
#include "store.h"
#include "surroundings.h"
#include "testclock.h"
#include "windowpresence.h"

#include <QCryptographicHash>
#include <QTemporaryDir>
#include <QTest>

#include <utility>

namespace vexal {

/// Windows that are seen or not, as the test says.
class SaidWindows : public WindowPresence
{
public:
    bool seen() const override { return isSeen; }
    bool isSeen = false;
};

/// A browser in which the person does nothing by themselves.
class ToldBrowser : public Browser
{
public:
    void openPrivately(const QUrl &page) override { pages.append(page); }
    QList<QUrl> pages;
};

/// A badge that remembers what it was told.
class ToldBadge : public LauncherBadge
{
public:
    void show(int count) override { shown.append(count); }
    QList<int> shown;
};

/// Notifications that remember what they were told, newest last, until it is taken back.
class ToldNotifications : public Notifications
{
public:
    void show(const QString &text, const QString &fileId) override
    {
        told.append(text + QStringLiteral(" > ") + fileId);
    }
    void withdraw() override { told.clear(); }
    QStringList told;
};

/// Opens nothing, and remembers what it should have opened.
class ToldOpener : public Opener
{
public:
    void openLink(const QUrl &) override {}
    void openFile(const QString &path, QObject *context, std::function<void(bool)> done) override
    {
        files.append(path);
        QTimer::singleShot(0, context, [this, done = std::move(done)] { done(hasProgram); });
    }
    QStringList files;
    bool hasProgram = true;
};

/// A person who picks the file that the test names, or none.
class SaidPicker : public FilePicker
{
public:
    void pick(const QString &message, const QStringList &patterns, QObject *context,
              std::function<void(const QString &)> done) override
    {
        messages.append(message);
        lastPatterns = patterns;
        if (!path.isEmpty())
            QTimer::singleShot(0, context, [done = std::move(done), picked = path] { done(picked); });
    }
    QString path;
    QStringList messages;
    QStringList lastPatterns;
};

/// A sleep that lasts until the test wakes the sleeper.
class SaidSleep
{
public:
    Sleep sleep()
    {
        return [this](std::chrono::milliseconds pause, QObject *context, std::function<void()> awake) {
            pauses.append(pause);
            m_sleeper = context;
            m_awake = std::move(awake);
        };
    }
    /// Somebody sleeps.
    bool asleep() const { return m_awake && m_sleeper; }
    void wake()
    {
        const auto awake = std::exchange(m_awake, nullptr);
        if (m_sleeper)
            awake();
    }

    QList<std::chrono::milliseconds> pauses; ///< Every pause so far.

private:
    QPointer<QObject> m_sleeper;
    std::function<void()> m_awake;
};

/// A Store on a scripted server that serves `board` and `details` by the rules, and all that stands around it, in the
/// test's hands. The server and the Store are in one thread: nothing happens before the test waits.
class LiveStore
{
public:
    explicit LiveStore(BoardState serverBoard = aBoard({aFile(QStringLiteral("f"))}))
        : board(std::move(serverBoard))
    {
        client.server.on("GET", "/api/state").react([this](const Received &request) {
            return tagged(encode(board), request);
        });
        client.server.on("GET", "/version.json").answer(404);
        for (const FileItem &file : std::as_const(board.files))
            serveDetail(file.id);
    }

    /// The server answers by the rules for the file, with what `details` holds then.
    void serveDetail(const QString &fileId)
    {
        if (!details.contains(fileId))
            details.insert(fileId, aDetail(fileId, 3));
        client.server.on("GET", "/api/files/" + fileId.toUtf8()).react([this, fileId](const Received &request) {
            return tagged(encode(details.value(fileId)), request);
        });
    }

    /// Signs in with the stored credential and waits for the first round to end.
    void begin()
    {
        store.resume();
        QTRY_VERIFY(sleep.asleep());
        client.server.forgetRequests();
    }

    /// The loop's next round, to its end.
    void round()
    {
        sleep.wake();
        QTRY_VERIFY(sleep.asleep());
    }

    /// What the toast says; empty without one.
    QString toast() const { return store.toast() ? store.toast()->text : QString(); }

    /// The requests since the beginning, as "GET /api/state", in their order.
    QStringList asked() const
    {
        QStringList lines;
        for (const Received &request : client.server.requests())
            lines.append(QString::fromUtf8(request.method + ' ' + request.target));
        return lines;
    }

    static QByteArray tagOf(const QByteArray &body)
    {
        return '"' + QCryptographicHash::hash(body, QCryptographicHash::Md5).toHex() + '"';
    }

    static Answer tagged(const QByteArray &body, const Received &request)
    {
        const QByteArray tag = tagOf(body);
        if (request.header("If-None-Match") == tag)
            return Answer(304, AnswerBody(), {{"Etag", tag}});
        return Answer(200, body, {{"Etag", tag}});
    }

    BoardState board;
    QMap<QString, FileDetail> details;
    QTemporaryDir downloads;
    Client client;
    TestClock clock;
    SaidWindows windows;
    ToldBadge badge;
    ToldNotifications notifications;
    ToldOpener opener;
    SaidPicker picker;
    SaidSleep sleep;
    ToldBrowser browser;
    SignIn signIn{client.api, client.preferences, client.credentials, browser, QStringLiteral("desk")};
    Store store{clock.clock(), surroundings(sleep)};

    /// Everything a Store needs, with a sleep of its own.
    Surroundings surroundings(SaidSleep &own)
    {
        return {.api = client.api,
                .signIn = signIn,
                .credentials = client.credentials,
                .windows = windows,
                .badge = badge,
                .notifications = notifications,
                .opener = opener,
                .picker = picker,
                .downloads = downloads.path(),
                .build = 7,
                .sleep = own.sleep()};
    }
};

} // namespace vexal
