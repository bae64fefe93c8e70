#pragma once

#include <QFutureWatcher>
#include <QThreadPool>
#include <QtConcurrentRun>

#include <memory>

namespace vexal {

/// Runs `work` in a thread of its own; `done` follows in this one with what came of it, unless `context` has gone.
template <typename Work, typename Done>
void inBackground(QObject *context, Work work, Done done)
{
    using Found = std::invoke_result_t<Work>;
    auto *watcher = new QFutureWatcher<Found>(context);
    QObject::connect(watcher, &QFutureWatcherBase::finished, context, [watcher, done = std::move(done)] {
        watcher->deleteLater();
        done(watcher->result());
    });
    watcher->setFuture(QtConcurrent::run(std::move(work)));
}

/// Has a value that takes long to go, such as a board of thousands of files, go in a thread of its own. Declared before
/// the value's other copies go.
template <typename Value>
class Farewell
{
public:
    explicit Farewell(const Value &value)
        : m_value(std::make_unique<Value>(value))
    {
    }
    ~Farewell()
    {
        QThreadPool::globalInstance()->start([value = std::shared_ptr<Value>(std::move(m_value))] {});
    }
    Farewell(const Farewell &) = delete;
    Farewell &operator=(const Farewell &) = delete;

private:
    std::unique_ptr<Value> m_value;
};

} // namespace vexal
