#pragma once

#include "hold.h"
#include "sleep.h"

#include <QObject>

namespace vexal {

/// How long to wait between two looks at the server: longest when nobody looks at the window, shortest when the worker
/// machine is `working`, for then the person waits for it, seen or not.
std::chrono::milliseconds pollPause(bool working, bool seen);

/// Does its rounds, one after the other with a pause between, for as long as it lives.
class RefreshLoop : public QObject
{
    Q_OBJECT

public:
    /// A round has ended when it has let go of the hold that it is given.
    using Round = std::function<void(const Hold &)>;
    /// How long to pause, asked after each round.
    using Pause = std::function<std::chrono::milliseconds()>;

    RefreshLoop(Sleep sleep, Round round, Pause pause);

    /// Begins with a round.
    void run();

private:
    void rest();

    Sleep m_sleep;
    Round m_round;
    Pause m_pause;
};

} // namespace vexal
