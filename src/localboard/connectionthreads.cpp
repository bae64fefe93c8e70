#include "connectionthreads.h"

#include <system_error>
#include <utility>

namespace vexal::local {

ConnectionThreads::ConnectionThreads(std::size_t most, std::function<void()> crowded, std::function<void()> closing)
    : m_most(most)
    , m_crowded(std::move(crowded))
    , m_closing(std::move(closing))
{
}

ConnectionThreads::~ConnectionThreads()
{
    for (auto &thread : m_threads) {
        if (thread.joinable())
            thread.join();
    }
}

void ConnectionThreads::enqueue(std::function<void()> task)
{
    bool crowded = false;
    {
        const std::lock_guard lock(m_mutex);
        m_tasks.push_back(std::move(task));
        crowded = m_tasks.size() > m_idle && !addThread();
    }
    m_wake.notify_one();
    if (crowded)
        m_crowded();
}

void ConnectionThreads::shutdown()
{
    {
        const std::lock_guard lock(m_mutex);
        m_shutdown = true;
    }
    m_closing();
    m_wake.notify_all();
    for (auto &thread : m_threads)
        thread.join();
}

bool ConnectionThreads::addThread()
{
    if (m_threads.size() >= m_most)
        return false;
    try {
        m_threads.emplace_back(&ConnectionThreads::work, this);
    } catch (const std::system_error &) {
        return false; // the system gives no more: those there are go round
    }
    return true;
}

void ConnectionThreads::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        ++m_idle;
        m_wake.wait(lock, [this] { return m_shutdown || !m_tasks.empty(); });
        --m_idle;
        if (m_tasks.empty())
            return;
        const auto task = std::exchange(m_tasks.front(), nullptr);
        m_tasks.pop_front();
        lock.unlock();
        task();
        lock.lock();
    }
}

} // namespace vexal::local
