#include "tinyboard.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

const QString TinyBoard::miraEmail = u"mira@lanternhouse.example"_s;
const QString TinyBoard::teoEmail = u"teo@lanternhouse.example"_s;

namespace {

/// Written once, read by every board of the test.
QString seedFolder()
{
    static const auto folder = [] {
        auto written = std::make_unique<QTemporaryDir>();
        writeTinySeed(written->path());
        return written;
    }();
    return folder->path();
}

bool isUnderWay(const Job &job)
{
    return job.status == "running"_L1;
}

bool isInLine(const Job &job)
{
    return job.status == "queued"_L1;
}

} // namespace

TinyBoard::TinyBoard(const QString &data, std::chrono::milliseconds stepTime)
{
    m_board = std::make_unique<LocalBoard>(
        LocalBoardOptions{.data = data, .seed = seedFolder(), .seedIsNow = false, .stepTime = stepTime, .now = [this] {
                              return now.load();
                          }});
    if (const auto problem = m_board->start())
        qFatal("%s", qUtf8Printable(*problem));
}

bool TinyBoard::isAtWork()
{
    return waitFor([](const QList<Job> &jobs) { return std::any_of(jobs.begin(), jobs.end(), isUnderWay); });
}

bool TinyBoard::isAtRest()
{
    return waitFor([](const QList<Job> &jobs) {
        return std::none_of(jobs.begin(), jobs.end(), [](const Job &job) { return isUnderWay(job) || isInLine(job); });
    });
}

bool TinyBoard::waitFor(const std::function<bool(const QList<Job> &)> &condition)
{
    return QTest::qWaitFor([&] { return condition(m_board->state(miraEmail).jobs); }, 20'000);
}

} // namespace vexal
