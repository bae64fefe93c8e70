#include "vexalapp.h"

#include "appearance.h"
#include "capture.h"
#include "credentialstore.h"
#include "deployment.h"
#include "desktoplook.h"
#include "following.h"
#include "notifications.h"
#include "remoteimage.h"
#include "storeinqml.h"
#include "typeface.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vexal {

namespace {

constexpr int largestSide = 16384; ///< What a window system can hold, with room to spare.
const QUrl screens(u"qrc:/qt-project.org/imports/Vexal/Root/RootView.qml"_s);
constexpr auto settlingTime = 3s;
constexpr auto longestWait = 300ms;
constexpr auto longestDecoding = 100ms;

// A timer that does something once, whenever it is started, and then is gone.
QTimer *singleShot(QObject *context, const std::function<void()> &then)
{
    auto *timer = new QTimer(context);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, context, [timer, then] {
        timer->deleteLater();
        then();
    });
    return timer;
}

// Keeps out of a photograph what the person does with mouse and keyboard while it is being taken.
class Inattention : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->isInputEvent())
            event->accept(); // or a key would go on and look for its shortcut
        return event->isInputEvent();
    }
};

// Introduces the modules of the screens to the engine, which can be done in this thread only: else the thread that
// loads the screens would wait for this one until the window is made.
QQmlEngine &introduced(QQmlEngine &engine)
{
    QQmlComponent modules(&engine);
    modules.setData(
        "import QtQuick; import Vexal.Root; import Vexal.File; import Vexal.Canvas; import Vexal.Inspector\n"
        "import Vexal.Sidebar; import Vexal.Pieces; QtObject {}",
        QUrl());
    return engine;
}

QSize windowSize(QSizeF asked)
{
    const auto side = [](qreal points) { return int(std::clamp<qreal>(points, 1, largestSide)); };
    return {side(asked.width()), side(asked.height())};
}

QSize roomOf(const QWindow &window)
{
    return window.screen()->availableSize();
}

} // namespace

VexalApp::VexalApp(Parts parts)
    : m_store(parts.surroundings ? std::make_unique<Store>(std::move(parts.clock), *parts.surroundings)
                                 : std::make_unique<Store>(std::move(parts.clock)))
    , m_images(parts.pictureFolder, std::move(parts.fetch))
    , m_screens(&introduced(m_engine), screens, QQmlComponent::Asynchronous)
    , m_window(&m_engine, nullptr)
{
    giveStore(m_engine, *m_store);
    giveImages(m_engine, m_images);
    m_window.setTitle(u"Vexal"_s);
    m_window.setResizeMode(QQuickView::SizeRootObjectToView);
    m_window.setFlag(Qt::FramelessWindowHint);
    m_window.setGeometry(frameOnScreen(std::nullopt, {m_window.screen()->availableGeometry()}));
    const auto bound = [this] { m_window.setMinimumSize(leastSize(roomOf(m_window))); };
    QObject::connect(&m_window, &QWindow::screenChanged, &m_window, bound);
    bound();
    followWindow(Appearance::of(m_engine), m_window);
}

VexalApp::~VexalApp() = default;

void VexalApp::pose(const LaunchOptions &options)
{
    Appearance &appearance = Appearance::of(m_engine);
    appearance.setResting(true);
    appearance.setDark(options.dark);
    QCoreApplication::instance()->installEventFilter(new Inattention(&m_window));
    m_window.setFlag(Qt::BypassWindowManagerHint);
    const QSize size = options.size ? windowSize(*options.size) : standardSize;
    m_window.setMinimumSize(leastSize(size));
    m_window.resize(size);
}

void VexalApp::follow(const DesktopLook &look)
{
    followLook(Appearance::of(m_engine), look);
}

void VexalApp::keepPlace(const QString &path)
{
    m_memory = std::make_unique<WindowMemory>(m_window, path);
}

void VexalApp::hear(Notifications &notifications)
{
    QObject::connect(&notifications, &Notifications::opened, m_store.get(), [this](const QString &fileId) {
        if (m_store->findFile(fileId))
            m_store->selectFile(fileId);
        comeForward();
    });
    QObject::connect(&m_window, &QWindow::activeChanged, &notifications, [this, &notifications] {
        if (m_window.isActive())
            notifications.withdraw();
    });
}

void VexalApp::showSample(Sample sample, const QString &folder)
{
    m_images.addSamples(folder);
    m_store->takeSample(std::move(sample));
}

void VexalApp::show()
{
    // At its size from the beginning, what is on the screens is laid out and asked for once.
    m_window.setInitialProperties({{u"width"_s, m_window.width()}, {u"height"_s, m_window.height()}});
    m_window.setSource(screens);
    QTimer *wait = singleShot(&m_window, [this] {
        m_window.show();
        m_window.requestActivate();
    });
    QObject::connect(&m_images.pixels(), &Pixels::rested, wait, [wait] { wait->start(0); });
    wait->start(longestDecoding);
    // The screens ask for their pictures at the end of this turn; there may be none.
    QMetaObject::invokeMethod(
        wait,
        [this, wait] {
            if (!m_images.pixels().isBusy())
                wait->start(0);
        },
        Qt::QueuedConnection);
}

void VexalApp::captureWhenSettled(const QString &path)
{
    QTimer *end = singleShot(&m_window, [path] { QCoreApplication::exit(int(capture(path))); });
    const auto endOnceDecoded = [this, end] {
        QObject::connect(&m_images.pixels(), &Pixels::rested, end, [end] { end->start(0); });
        if (!m_images.pixels().isBusy())
            end->start(0);
    };
    QTimer::singleShot(settlingTime, &m_window, endOnceDecoded);
}

void VexalApp::open(const QList<QUrl> &urls)
{
    for (const QUrl &url : urls)
        m_store->openUrl(url);
    comeForward();
}

void VexalApp::comeForward()
{
    if (!m_window.isVisible())
        return;
    if (m_window.windowStates().testFlag(Qt::WindowMinimized))
        m_window.showNormal();
    m_window.raise();
    m_window.requestActivate();
}

void whenKnown(CredentialStore &credentials, DesktopLook &look, QObject *context, const std::function<void()> &then)
{
    const auto known = [&credentials, &look] { return credentials.known() && look.known(); };
    if (known())
        return then();
    QTimer *wait = singleShot(context, then);
    const auto goOn = [wait, known] {
        if (known())
            wait->start(0);
    };
    QObject::connect(&credentials, &CredentialStore::becameKnown, wait, goOn);
    QObject::connect(&look, &DesktopLook::becameKnown, wait, goOn);
    wait->start(longestWait);
}

void prepareProcess()
{
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    QCoreApplication::setApplicationName(u"Vexal"_s);
    QGuiApplication::setDesktopFileName(deployment::applicationId.toString());
}

} // namespace vexal
