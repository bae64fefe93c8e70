// What a person waits for on the canvas: from asking for it until the frame that shows it, in milliseconds. The first
// row of each run, a frame in which nothing changed, is its floor.
//   bench_canvas SAMPLE          on the sample board
//   bench_canvas FOLDER long     on a file of many large pages, whose pictures are put into the folder
//   bench_canvas FOLDER cards    scrolling the cards of a page with 500 findings: processor time a frame
#include "difference.h"
#include "frames.h"
#include "longfile.h"
#include "pagezoom.h"
#include "samplefolder.h"
#include "typeface.h"
#include "vexalapp.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <future>
#include <utility>

using namespace vexal;
using namespace vexal::bench;

namespace {

constexpr int rounds = 20;
constexpr int settling = 400;     ///< Milliseconds between two: what is decoded ahead gets done.
constexpr int longSettling = 900; ///< The same for large pages.
constexpr int farAway = 3;        ///< Pages: nothing of such a page is decoded ahead.

class Canvas
{
public:
    explicit Canvas(VexalApp &app)
        : m_app(app)
        , m_canvas(findItem(app.window().contentItem(), "CompareCanvas"))
    {
    }

    Store &store() { return m_app.store(); }
    PageZoom &zoom() { return *m_canvas->findChild<PageZoom *>(); }
    void set(const char *name, const QVariant &value)
    {
        m_canvas->property("blending").value<QObject *>()->setProperty(name, value);
    }
    void turn()
    {
        const QString file = store().current()->id;
        store().turnPage(file, store().shownPage(file) == 3 ? 4 : 3);
    }
    void turnOn(int pages)
    {
        const QString file = store().current()->id;
        store().turnPage(file, store().shownPage(file) + pages);
    }

    /// Milliseconds from a change to the frame in which every picture that is to be seen is shown.
    template <typename Change>
    double measured(Change change, int pause = settling)
    {
        QList<double> times;
        for (int i = 0; i < rounds; ++i) {
            goOnFor(pause);
            QElapsedTimer clock;
            clock.start();
            change();
            // Frames that show nothing new would keep the processor from what is waited for.
            while (!m_canvas->property("shown").toBool())
                goOnFor(1);
            drawFrame(m_app.window());
            times.append(double(clock.nsecsElapsed()) / 1e6);
        }
        std::sort(times.begin(), times.end());
        return times[times.size() / 2];
    }

private:
    VexalApp &m_app;
    QQuickItem *m_canvas;
};

void measureSample(Canvas &canvas)
{
    Store &store = canvas.store();
    tell("floor", canvas.measured([] {}));
    tell("page_turn_side_by_side", canvas.measured([&] { canvas.turn(); }));
    tell("mode_switch", canvas.measured([&] {
        store.setMode(store.mode() == CompareMode::Side ? CompareMode::Overlay : CompareMode::Side);
    }));
    store.setMode(CompareMode::Overlay);
    tell("page_turn_overlay", canvas.measured([&] { canvas.turn(); }));
    canvas.set("difference", true);
    tell("page_turn_difference", canvas.measured([&] { canvas.turn(); }));
    store.setMode(CompareMode::Blink);
    bool ours = false;
    tell("blink_frame", canvas.measured([&] { canvas.set("ours", ours = !ours); }));
    store.setMode(CompareMode::Side);
    int step = 0;
    tell("zoom_frame", canvas.measured([&] {
        PageZoom &zoom = canvas.zoom();
        zoom.zoomBy(step++ % 10 == 9 ? 0.01 : 1.2, {200, 200}, zoom.property("page").toSizeF());
    }));
}

/// From two files to their difference, as a page turn does it, without a window.
double differenceOfFiles(const QString &folder)
{
    const auto decoded = [&folder](const char *name) {
        const Picture picture = *Picture::fromFile(folder + u'/' + QLatin1String(name));
        return picture.decoded(picture.size());
    };
    QList<double> times;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer clock;
        clock.start();
        auto ours = std::async(std::launch::async, decoded, ourPage);
        QImage theirs = decoded(supplierPage);
        if (pageDifference(std::move(theirs), ours.get()).isNull())
            return 0;
        times.append(double(clock.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void measureLongFile(Canvas &canvas, const QString &folder)
{
    tell("large_floor", canvas.measured([] {}));
    tell("cold_page_turn", canvas.measured([&] { canvas.turnOn(farAway); }, longSettling));
    canvas.store().setMode(CompareMode::Overlay);
    canvas.set("difference", true);
    tell("difference_of_the_next_page", canvas.measured([&] { canvas.turnOn(1); }, longSettling));
    tell("difference_of_a_cold_page", canvas.measured([&] { canvas.turnOn(farAway); }, longSettling));
    tell("difference_of_two_files", differenceOfFiles(folder));
}

/// The inspector's column, which stands once the pages do.
QQuickItem &columnOf(VexalApp &app)
{
    QQuickItem *column = nullptr;
    while (!(column = findItem(app.window().contentItem(), "column")))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return *column;
}

void measureCards(QQuickWindow &window, QQuickItem &column)
{
    // Where the pointer rests on them, card after card is entered and left.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    tell("frame_floor", spentOnFrame(window, [] {}));
    tell("frame_scrolling_500_cards", spentOnScrolledFrame(window, column));
    QCursor::setPos(column.mapToGlobal(QPointF(column.width() / 2, column.height() / 2)).toPoint());
    tell("frame_scrolling_under_the_pointer", spentOnScrolledFrame(window, column));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2)
        return 2;
    prepareProcess();
    QGuiApplication application(argc, argv);
    applyTypeface(application, Typeface::Ours);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const QByteArray what(argc > 2 ? argv[2] : "");
    const bool cards = what == "cards";
    std::optional<Sample> sample = what.isEmpty() ? readSample(folder).sample
                                                  : longFile(folder, cards ? 1 : 3 * farAway * rounds, cards ? 500 : 0);
    if (!sample)
        return 1;
    VexalApp app({clockFrom(latestMoment(*sample)), QString(), Images::fetchNothing});
    app.showSample(std::move(*sample), folder);
    app.show();

    Canvas canvas(app);
    if (cards)
        measureCards(app.window(), columnOf(app));
    else if (what == "long")
        measureLongFile(canvas, folder);
    else
        measureSample(canvas);
    return 0;
}
