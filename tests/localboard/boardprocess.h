#pragma once

#include <QProcess>

namespace vexal {

/// The program vexal-board, that of this build or the one that VEXAL_BOARD_PROGRAM names, as a process of its own that
/// a test may kill.
class BoardProcess
{
public:
    /// Starts it with \a arguments on any port of this machine.
    explicit BoardProcess(const QStringList &arguments);
    ~BoardProcess();
    BoardProcess(const BoardProcess &) = delete;
    BoardProcess &operator=(const BoardProcess &) = delete;

    /// Waits until it says where it is: the port. 0 when it ends before.
    int port();

    /// Ends it at once, in the middle of whatever it does.
    void kill();

    /// Asks it to end, and waits for that: the exit status, or -1 when it did not end by itself.
    int terminate();

    /// Waits for it to end by itself: the exit status.
    int exitStatus();

    QString errors();

private:
    QProcess m_process;
};

} // namespace vexal
