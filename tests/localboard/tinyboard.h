#pragma once

#include "localboard.h"
#include "tinyseed.h"
#include "visitor.h"

#include <QTemporaryDir>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

namespace vexal {

/// A served board that starts from the tiny seed and works fast. Time is the test's to move.
class TinyBoard
{
public:
    /// In memory, or in the folder \a data.
    explicit TinyBoard(const QString &data = {}, std::chrono::milliseconds stepTime = std::chrono::milliseconds(1));

    LocalBoard &operator*() { return *m_board; }
    LocalBoard *operator->() { return m_board.get(); }

    Visitor stranger() { return Visitor(m_board->port()); }
    Visitor mira() { return Visitor(m_board->port(), m_board->signInAs(miraEmail)); }
    Visitor teo() { return Visitor(m_board->port(), m_board->signInAs(teoEmail)); }

    /// Waits until a job is under way; false after 20 s.
    bool isAtWork();

    /// Waits until no job is in line or under way; false after 20 s.
    bool isAtRest();

    std::atomic<double> now = tinyNewest + 1000;

    static const QString miraEmail;
    static const QString teoEmail;

private:
    bool waitFor(const std::function<bool(const QList<Job> &)> &condition);

    std::unique_ptr<LocalBoard> m_board;
};

} // namespace vexal
