#pragma once

#include "jobs.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <thread>

namespace vexal::local {

/// Goes through the board's jobs on a thread of its own, one after the other.
class Worker
{
public:
    /// Starts at once. Each step of a job takes \a stepTime at least.
    Worker(Ledger &ledger, Jobs &jobs, std::chrono::milliseconds stepTime);

    /// Leaves the job under way as it is: it is begun again by the next worker.
    ~Worker();
    Worker(const Worker &) = delete;
    Worker &operator=(const Worker &) = delete;

    /// There is something new in line, or a job was stopped.
    void wake();

private:
    using Clock = std::chrono::steady_clock;

    void work(const std::stop_token &leave);
    bool takeOne(const std::stop_token &leave);
    void attempt(const std::stop_token &leave, const Job &job);
    void sync(const std::stop_token &leave, const Job &job);
    void report(const std::stop_token &leave, const Job &job);
    bool go(const std::stop_token &leave, const Job &job, const QList<Step> &done, const Step &step);
    bool isWokenBefore(const std::stop_token &leave, Clock::time_point end);

    Ledger &m_ledger;
    Jobs &m_jobs;
    const std::chrono::milliseconds m_stepTime;
    std::mutex m_mutex;
    std::condition_variable_any m_woken;
    bool m_news = false;
    std::jthread m_thread; // last: it works with all of the above
};

} // namespace vexal::local
