// The client at its fast pace for a long time, on a board that never rests: whether it keeps what it takes.
// soak SAMPLE SECONDS, which count once every picture has been seen. Ends with 1 when the memory or the descriptors
// grew.
#include "liveclient.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace vexal;
using namespace vexal::bench;

namespace {

constexpr double mostGrowth = 5;   ///< Percent.
constexpr int restlessness = 3000; ///< Milliseconds between two things that the person does.

constexpr double warmingUp = 150; ///< Seconds: two rounds over the files, and the caches are full.

struct Figures
{
    double megabytes = 0;
    double descriptors = 0;
};

/// What this process alone holds: what it shares weighs more or less with whoever else runs.
double ownMegabytes()
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("RssAnon:"))
            return line.mid(8).chopped(2).trimmed().toDouble() / 1024;
    }
    return 0;
}

Figures figuresNow()
{
    // The folder's own listing is one of them.
    const auto open = QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System);
    return {ownMegabytes(), double(open.size() - 1)};
}

double median(QList<Figures> samples, double Figures::*figure)
{
    const auto middle = samples.begin() + samples.size() / 2;
    std::nth_element(samples.begin(), middle, samples.end(),
                     [&](const Figures &a, const Figures &b) { return a.*figure < b.*figure; });
    return (*middle).*figure;
}

/// Somebody who never stops: a sync whenever none runs, another file, another page, another status.
class Soak : public QObject
{
public:
    Soak(Store &store, int seconds)
        : m_store(store)
        , m_seconds(seconds)
    {
        connect(&m_beat, &QTimer::timeout, this, [this] { act(); });
        connect(&store, &Store::boardChanged, this, [this] { ++m_boards; });
        m_beat.start(restlessness);
        m_age.start();
    }

private:
    void act()
    {
        if (m_store.board())
            changeSomething(*m_store.board());
        const double age = double(m_age.elapsed()) / 1000 - warmingUp;
        if (age < 0)
            return;
        m_samples.append(figuresNow());
        if (age >= m_seconds)
            finish();
    }

    void changeSomething(const BoardState &board)
    {
        const QString file = board.files.at(m_turn++ % board.files.size()).id;
        if (!m_store.activeWork())
            m_store.startSync();
        m_store.selectFile(file);
        m_store.turnPage(file, m_turn % 2);
        m_store.setStatus(file, m_turn % 2 == 0 ? u"in_review"_s : u"reviewed"_s);
    }

    void finish()
    {
        m_beat.stop();
        const qsizetype part = std::max<qsizetype>(1, m_samples.size() / 5);
        const auto first = m_samples.first(part);
        const auto last = m_samples.last(part);
        const double before = median(first, &Figures::megabytes);
        const double after = median(last, &Figures::megabytes);
        const double growth = 100 * (after - before) / before;
        const double descriptors = median(first, &Figures::descriptors);
        const double descriptorsAfter = median(last, &Figures::descriptors);
        std::printf("soak of %d s, %d boards: memory %.1f MB after warming up, %.1f MB at the end, %+.1f %%; "
                    "descriptors %.0f, then %.0f\n",
                    m_seconds, m_boards, before, after, growth, descriptors, descriptorsAfter);
        QCoreApplication::exit(growth > mostGrowth || descriptorsAfter > descriptors ? 1 : 0);
    }

    Store &m_store;
    int m_seconds;
    int m_turn = 0;
    int m_boards = 0;
    QTimer m_beat;
    QElapsedTimer m_age;
    QList<Figures> m_samples;
};

} // namespace

int main(int argc, char **argv)
{
    const int seconds = argc == 3 ? std::atoi(argv[2]) : 0;
    if (seconds <= 0)
        return 2;
    prepareProcess();
    QGuiApplication application(argc, argv);
    const BoardServer server(QString::fromLocal8Bit(argv[1]));
    LiveClient client(server.url(), {});
    client.app.show();
    client.app.comeForward();
    client.app.store().signIn();
    const Soak soak(client.app.store(), seconds);
    return QGuiApplication::exec();
}
