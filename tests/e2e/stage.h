#pragma once

#include "boardprocess.h"
#include "desk.h"
#include "vexalprocess.h"
#include "visitor.h"

#include <QTest>

#include <memory>

namespace vexal {

/// A desk, and a board of the sample's to look at from it. Each story begins with a fresh board and a clear desk.
class Stage
{
public:
    static constexpr int patience = 60'000; ///< Milliseconds for what a person would wait for, on a slow machine, too.

    Desk &desk() { return m_desk; }
    BoardProcess &board() { return *m_board; }
    int port() const { return m_port; }

    void begin();
    void end();

    /// Starts the board, again if need be, where it was, with what it had.
    void startBoard();
    /// The same, but other computers reach it there, too.
    void startBoardAt(const QString &address);

    /// Gives a person a session on the board, and keeps its token where the client will find it.
    void keepTokenOf(const QString &email);
    /// The tokens that the keyring holds for the client.
    QStringList keptTokens();
    /// Somebody who asks the board by the client's own token: it tells everybody of who signs in.
    Visitor visitor();

    /// Starts the client with the person signed in, by a command line of another program's if need be, and waits for
    /// the board to be on the screen.
    std::unique_ptr<VexalProcess> startSignedIn(const QStringList &launcher = {});
    /// Signs Mira in by the browser, from the sign-in screen to the board. False when it does not come to that.
    bool signsIn(const VexalProcess &vexal);
    /// Signs out by the menu: nothing of the board is left on the screen, and nothing of the token in the keyring.
    bool signsOut(const VexalProcess &vexal);

private:
    void run(const QString &address);

    Desk m_desk;
    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<BoardProcess> m_board;
    int m_port = 0;
};

inline const QString signInButton = QStringLiteral("Sign in with Google");
inline const QString mira = QStringLiteral("mira@lanternhouse.example");
inline const QString teo = QStringLiteral("teo@lanternhouse.example");

bool showsFile(const VexalProcess &vexal, const QString &title);
bool showsTheBoard(const VexalProcess &vexal);

/// The status with which the board takes a note of the person's on one of its files; 0 when they cannot sign in.
int writeNote(int port, const QString &email, const QString &text);

/// Whether there is more than the bare display.
bool isDrawn(const QByteArray &pixels);

} // namespace vexal

/// By the clock: looking takes its time, too.
#define WAIT_FOR(condition)                                                                                            \
    QVERIFY2(QTest::qWaitFor([&] { return bool(condition); }, vexal::Stage::patience), #condition)
