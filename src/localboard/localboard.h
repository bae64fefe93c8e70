#pragma once

#include "services.h"

#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace vexal {

/// How a local board is set up.
struct LocalBoardOptions
{
    QString host = QStringLiteral("127.0.0.1"); ///< The address that is listened on. Whoever reaches it can sign in.
    int port = 0;                               ///< 0: any.
    QString data;          ///< Folder that keeps the board, made if need be; without one, memory does.
    QString seed;          ///< Folder of the board that an empty one starts from, if any.
    bool seedIsNow = true; ///< The seed's times are moved so that the newest of them is now.
    std::chrono::milliseconds stepTime{1400}; ///< A job spends this on each of its steps at least.
    std::function<double()> now;              ///< Milliseconds since 1970-01-01 00:00 UTC; without it the system's.
};

/// A board server for one machine, with a worker that does its jobs: what `vexal-board` runs, and what the demo and the
/// tests hold in their own process. Needs a QGuiApplication (its reports are drawn with fonts) and runs on threads of
/// its own. Made, started and stopped on one thread; what stands under "after start()" may be called from any, and
/// throws DatabaseError when the data folder fails it.
class LocalBoard
{
public:
    explicit LocalBoard(LocalBoardOptions options = {});
    ~LocalBoard();
    LocalBoard(const LocalBoard &) = delete;
    LocalBoard &operator=(const LocalBoard &) = delete;

    /// Opens the board and serves it from now on. Answers what went wrong, for the log; nothing when it runs.
    [[nodiscard]] std::optional<QString> start();

    /// Ends serving: every connection is closed, the worker rests. What the board holds stays, and start() serves it
    /// again on the same port.
    void stop();

    /// The port that is served; before the first start() the one that was asked for.
    int port() const { return m_port; }

    /// Where it is: "http://127.0.0.1:8123".
    QUrl url() const;

    // After start():

    /// A session of its own for \a email: the token. Empty when nobody of that address is on the board.
    QString signInAs(const QString &email);

    /// Ends every session of \a email: their tokens are refused from now on.
    void revoke(const QString &email);

    /// Puts \a person on the board, or in the place of who has that address.
    void addPerson(const Person &person);

    /// Puts \a proof at the end of the inbox, from which each sync takes one.
    void addProof(const FileDetail &proof);

    /// Keeps \a bytes as the picture of the key \a key.
    void addPicture(const QString &key, const QByteArray &bytes);

    /// What "version.json" answers from now on.
    void offer(const VersionInfo &version);

    /// Everyone on the board.
    QList<Person> people();

    /// The board as \a email would be shown it now.
    BoardState state(const QString &email);

    /// What people do on the board, without HTTP: `board.review().setStatus(email, fileId, status)`.
    local::Review &review();

    /// Jobs, asked for and stopped without HTTP.
    local::Jobs &jobs();

private:
    struct Serving;

    std::optional<QString> openLedger();
    std::optional<QString> plantSeed(local::Ledger &ledger) const;
    VersionInfo version() const;

    LocalBoardOptions m_options;
    int m_port = 0;
    std::unique_ptr<local::Services> m_services; ///< From the first start() on.
    std::unique_ptr<Serving> m_serving;          ///< While it is served.
    mutable std::mutex m_offerMutex;
    std::optional<VersionInfo> m_offer;
};

} // namespace vexal
