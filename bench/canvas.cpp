// What a person waits for on the canvas: from asking for it until the frame that shows it, in milliseconds. Each is
// asked for twenty times; the first row, a frame in which nothing changed, is the floor.
#include "moment.h"
#include "pagezoom.h"
#include "remoteimage.h"
#include "samplefolder.h"
#include "typeface.h"
#include "vexalapp.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

#include <algorithm>

using namespace vexal;
using namespace vexal::bench;

namespace {

constexpr int rounds = 20;
constexpr int settling = 400; ///< Milliseconds between two: what is decoded ahead gets done.

QList<RemoteImage *> shownPictures(QQuickItem *item)
{
    QList<RemoteImage *> pictures;
    if (!item->isVisible())
        return pictures;
    if (auto *picture = qobject_cast<RemoteImage *>(item); picture && !picture->key().isEmpty() && item->height() > 200)
        pictures.append(picture);
    for (QQuickItem *child : item->childItems())
        pictures.append(shownPictures(child));
    return pictures;
}

class Canvas
{
public:
    explicit Canvas(VexalApp &app)
        : m_app(app)
        , m_canvas(find(app.window().contentItem(), "CompareCanvas"))
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

    /// Milliseconds from a change to the frame in which every picture it asked for is shown.
    template <typename Change>
    double measured(Change change)
    {
        QList<double> times;
        for (int i = 0; i < rounds; ++i) {
            wait(settling);
            QElapsedTimer clock;
            clock.start();
            change();
            frame();
            while (!ready())
                frame();
            times.append(double(clock.nsecsElapsed()) / 1e6);
        }
        std::sort(times.begin(), times.end());
        return times[times.size() / 2];
    }

private:
    static QQuickItem *find(QQuickItem *item, const QByteArray &type)
    {
        if (QByteArray(item->metaObject()->className()).startsWith(type))
            return item;
        for (QQuickItem *child : item->childItems()) {
            if (QQuickItem *found = find(child, type))
                return found;
        }
        return nullptr;
    }

    bool ready() const
    {
        const auto pictures = shownPictures(m_canvas);
        return std::all_of(pictures.cbegin(), pictures.cend(),
                           [](const RemoteImage *picture) { return picture->hasPicture(); });
    }
    void frame()
    {
        QEventLoop loop;
        QObject::connect(&m_app.window(), &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
        m_app.window().update();
        loop.exec();
    }
    static void wait(int milliseconds)
    {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }

    VexalApp &m_app;
    QQuickItem *m_canvas;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2)
        return 2;
    prepareProcess();
    QGuiApplication application(argc, argv);
    applyTypeface(application, Typeface::Ours);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    SampleRead read = readSample(folder);
    if (!read.sample)
        return 1;
    const auto fetchNothing = [](const QString &, QObject *, const Images::Fetched &fetched) { fetched(std::nullopt); };
    VexalApp app({clockFrom(latestMoment(*read.sample)), QString(), fetchNothing});
    app.showSample(std::move(*read.sample), folder);
    app.show();

    Canvas canvas(app);
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
    return 0;
}
