#pragma once

#include <httplib.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace vexal::local {

/// Gives each connection a thread of its own, so that a client that keeps its connection open, or is slow, keeps no
/// other waiting. Threads are made as they are needed, up to a bound, and used again.
class ConnectionThreads : public httplib::TaskQueue
{
public:
    /// \a crowded is called when a connection finds every thread taken, \a closing before the threads are waited for.
    ConnectionThreads(std::size_t most, std::function<void()> crowded, std::function<void()> closing);
    ~ConnectionThreads() override;
    ConnectionThreads(const ConnectionThreads &) = delete;
    ConnectionThreads &operator=(const ConnectionThreads &) = delete;

    void enqueue(std::function<void()> task) override;
    void shutdown() override;

private:
    bool addThread();
    void work();

    const std::size_t m_most;
    const std::function<void()> m_crowded;
    const std::function<void()> m_closing;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::function<void()>> m_tasks;
    std::vector<std::thread> m_threads;
    std::size_t m_idle = 0;
    bool m_shutdown = false;
};

} // namespace vexal::local
