#include "refreshloop.h"

#include <QPointer>

using namespace std::chrono_literals;

namespace vexal {

std::chrono::milliseconds pollPause(bool working, bool seen)
{
    if (working)
        return 3s;
    return seen ? 5s : 45s;
}

RefreshLoop::RefreshLoop(Sleep sleep, Round round, Pause pause)
    : m_sleep(std::move(sleep))
    , m_round(std::move(round))
    , m_pause(std::move(pause))
{
}

void RefreshLoop::run()
{
    m_round(holdUntil([loop = QPointer(this)] {
        if (RefreshLoop *self = loop)
            self->rest();
    }));
}

void RefreshLoop::rest()
{
    m_sleep(m_pause(), this, [this] { run(); });
}

} // namespace vexal
