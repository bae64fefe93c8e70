#pragma once

#include <QFutureWatcher>
#include <QtConcurrentRun>

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

} // namespace vexal
