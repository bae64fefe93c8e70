// The whole window on the sample board: how long until both pages are on the screen, how much memory that takes, how
// long turning a page takes, and what the window costs while nothing happens.
#include "canvasstate.h"
#include "moment.h"
#include "remoteimage.h"
#include "samplefolder.h"
#include "typeface.h"
#include "vexalapp.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <cstring>

using namespace vexal;
using namespace vexal::bench;

namespace {

constexpr int idleMilliseconds = 30000;
constexpr int turns = 40;

// The canvas's pages: the pictures that are tall, as no thumbnail is.
bool pagesShown(const QQuickItem *item)
{
    int shown = 0;
    const auto visit = [&shown](const auto &self, const QQuickItem *at) -> bool {
        if (const auto *picture = qobject_cast<const RemoteImage *>(at);
            picture && picture->isVisible() && !picture->key().isEmpty() && at->height() > 200) {
            if (!picture->isSharp())
                return false;
            ++shown;
        }
        const QList<QQuickItem *> children = at->childItems();
        return std::all_of(children.cbegin(), children.cend(),
                           [&](const QQuickItem *child) { return self(self, child); });
    };
    return visit(visit, item) && shown == 2;
}

class Measure : public QObject
{
public:
    Measure(VexalApp &app, QByteArray start, bool longer)
        : m_app(app)
        , m_start(std::move(start))
        , m_longer(longer)
    {
        connect(
            &app.window(), &QQuickWindow::afterSynchronizing, this,
            [this] { m_inFrame = pagesShown(m_app.window().contentItem()); }, Qt::DirectConnection);
        connect(
            &app.window(), &QQuickWindow::frameSwapped, this,
            [this] {
                if (m_inFrame && m_swapped == 0)
                    m_swapped = millisecondsSince(m_start);
            },
            Qt::DirectConnection);
        connect(&app.window(), &QQuickWindow::frameSwapped, this, [this] { frame(); });
    }

private:
    void frame()
    {
        if (m_phase == Starting && m_inFrame)
            started();
        else if (m_phase == Turning)
            turned();
    }

    void started()
    {
        tell("start", m_swapped);
        m_phase = Resting;
        if (!m_longer)
            return QCoreApplication::quit();
        QTimer::singleShot(2000, this, [this] { rest(); });
    }

    void rest()
    {
        tell("memory", proportionalMegabytes());
        const double before = processorSeconds();
        QTimer::singleShot(idleMilliseconds, this, [this, before] {
            tell("idle", processorSeconds() - before);
            turn();
        });
    }

    // Back and forth between two pages: after the first round both are in memory.
    void turn()
    {
        Store &store = m_app.store();
        const FileItem *file = store.current();
        m_frames = 0;
        m_phase = Turning;
        m_clock.start();
        store.turnPage(file->id, store.shownPage(file->id) + (m_turn % 2 == 0 ? 1 : -1));
    }

    void turned()
    {
        ++m_frames;
        if (!m_inFrame)
            return;
        if (m_turn >= 2) {
            m_milliseconds.append(double(m_clock.nsecsElapsed()) / 1e6);
            m_mostFrames = std::max(m_mostFrames, m_frames);
        }
        if (++m_turn == turns + 2)
            return finish();
        m_phase = Resting; // what still moves after a turn, a mark fading in, is no frame of the next one
        QTimer::singleShot(600, this, [this] { turn(); });
    }

    void finish()
    {
        std::sort(m_milliseconds.begin(), m_milliseconds.end());
        tell("turn", m_milliseconds[m_milliseconds.size() / 2]);
        tell("turn_frames", m_mostFrames);
        QCoreApplication::quit();
    }

    enum Phase { Starting, Resting, Turning };

    VexalApp &m_app;
    QByteArray m_start;
    bool m_longer;
    Phase m_phase = Starting;
    std::atomic_bool m_inFrame = false; ///< The frame that was handed over last has both pages.
    /// When the first frame with both pages was on the screen, in milliseconds since the start.
    std::atomic<double> m_swapped = 0;
    int m_turn = 0;
    int m_frames = 0;
    int m_mostFrames = 0;
    QElapsedTimer m_clock;
    QList<double> m_milliseconds;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3)
        return 2;
    prepareProcess();
    QGuiApplication application(argc, argv);
    applyTypeface(application, Typeface::Ours);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    SampleRead read = readSample(folder);
    if (!read.sample)
        return 1;
    VexalApp app({clockFrom(latestMoment(*read.sample)), QString(), Images::fetchNothing});
    app.showSample(std::move(*read.sample), folder);
    Measure measure(app, argv[1], argc > 3);
    app.show();
    return QGuiApplication::exec();
}
