#include "vexalapp.h"

#include "appearance.h"
#include "capture.h"
#include "credentialstore.h"
#include "deployment.h"
#include "remoteimage.h"
#include "storeinqml.h"
#include "typeface.h"

#include <QGuiApplication>
#include <QTimer>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vexal {

namespace {

constexpr QSize standardSize(1500, 940);
constexpr QSize smallestSize(1180, 720);
constexpr int largestSide = 16384; ///< What a window system can hold, with room to spare.
constexpr auto settlingTime = 3s;
constexpr auto longestWaitForCredential = 300ms;

QSize windowSize(QSizeF asked)
{
    const auto side = [](qreal points) { return int(std::clamp<qreal>(points, 1, largestSide)); };
    return {side(asked.width()), side(asked.height())};
}

} // namespace

VexalApp::VexalApp(Parts parts)
    : m_store(parts.surroundings ? std::make_unique<Store>(std::move(parts.clock), *parts.surroundings)
                                 : std::make_unique<Store>(std::move(parts.clock)))
    , m_images(parts.pictureFolder, std::move(parts.fetch))
    , m_window(&m_engine, nullptr)
{
    giveStore(m_engine, *m_store);
    giveImages(m_engine, m_images);
    m_window.setTitle(u"Vexal"_s);
    m_window.setResizeMode(QQuickView::SizeRootObjectToView);
    m_window.setMinimumSize(smallestSize);
    m_window.resize(standardSize);
}

VexalApp::~VexalApp() = default;

void VexalApp::pose(const LaunchOptions &options)
{
    Appearance &appearance = Appearance::of(m_engine);
    appearance.setResting(true);
    appearance.setDark(options.dark);
    m_window.setFlag(Qt::BypassWindowManagerHint);
    if (!options.size)
        return;
    const QSize size = windowSize(*options.size);
    m_window.setMinimumSize(size.boundedTo(smallestSize));
    m_window.resize(size);
}

void VexalApp::showSample(Sample sample, const QString &folder)
{
    m_images.addSamples(folder);
    m_store->takeSample(std::move(sample));
}

void VexalApp::show()
{
    m_window.setSource(QUrl(u"qrc:/qt-project.org/imports/Vexal/Root/RootView.qml"_s));
    m_window.show();
}

void VexalApp::comeForward()
{
    if (m_window.windowStates().testFlag(Qt::WindowMinimized))
        m_window.showNormal();
    m_window.raise();
    m_window.requestActivate();
}

void whenCredentialIsKnown(CredentialStore &credentials, QObject *context, std::function<void()> then)
{
    if (credentials.known())
        return then();
    auto *wait = new QTimer(context);
    wait->setSingleShot(true);
    QObject::connect(wait, &QTimer::timeout, context, [wait, then = std::move(then)] {
        wait->deleteLater();
        then();
    });
    QObject::connect(&credentials, &CredentialStore::becameKnown, wait, [wait] { wait->start(0); });
    wait->start(longestWaitForCredential);
}

void prepareProcess()
{
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    QCoreApplication::setApplicationName(u"Vexal"_s);
    QGuiApplication::setDesktopFileName(deployment::applicationId.toString());
}

void captureWhenSettled(const QString &path)
{
    QTimer::singleShot(settlingTime, qGuiApp, [path] { QCoreApplication::exit(int(capture(path))); });
}

} // namespace vexal
