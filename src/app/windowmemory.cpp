#include "windowmemory.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWindow>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vexal {

namespace {

constexpr QSize smallestSize(1180, 720);
constexpr auto moment = 300ms;

int shared(const QRect &a, const QRect &b)
{
    const QRect both = a & b;
    return both.width() * both.height();
}

QRect within(QRect frame, const QRect &screen)
{
    frame.setSize(frame.size().expandedTo(leastSize(screen.size())).boundedTo(screen.size()));
    frame.moveLeft(std::clamp(frame.left(), screen.left(), screen.right() - frame.width() + 1));
    frame.moveTop(std::clamp(frame.top(), screen.top(), screen.bottom() - frame.height() + 1));
    return frame;
}

QRect centred(QSize size, const QRect &screen)
{
    QRect frame(QPoint(), size.boundedTo(screen.size()));
    frame.moveCenter(screen.center());
    return within(frame, screen);
}

QList<QRect> screensOfDesktop()
{
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens += screen->availableGeometry();
    return screens;
}

} // namespace

QSize leastSize(QSize room)
{
    return smallestSize.boundedTo(room);
}

QRect frameOnScreen(const std::optional<QRect> &wanted, const QList<QRect> &screens)
{
    if (!wanted)
        return centred(standardSize, screens.first());
    const auto screen = std::max_element(screens.cbegin(), screens.cend(), [&](const QRect &a, const QRect &b) {
        return shared(a, *wanted) < shared(b, *wanted);
    });
    return shared(*screen, *wanted) > 0 ? within(*wanted, *screen) : centred(wanted->size(), screens.first());
}

std::optional<WindowPlace> readPlace(const QString &path)
{
    const QSettings file(path, QSettings::IniFormat);
    const auto number = [&file](const QString &key) { return file.value(key).toInt(); };
    const QRect frame(number(u"Left"_s), number(u"Top"_s), number(u"Width"_s), number(u"Height"_s));
    if (!frame.isValid())
        return std::nullopt;
    return WindowPlace{frame, file.value(u"Zoomed"_s).toBool()};
}

void writePlace(const QString &path, const WindowPlace &place)
{
    QSettings file(path, QSettings::IniFormat);
    file.setValue(u"Left"_s, place.frame.left());
    file.setValue(u"Top"_s, place.frame.top());
    file.setValue(u"Width"_s, place.frame.width());
    file.setValue(u"Height"_s, place.frame.height());
    file.setValue(u"Zoomed"_s, place.zoomed);
}

WindowMemory::WindowMemory(QWindow &window, const QString &path)
    : m_window(window)
    , m_path(path)
{
    restore();
    watch();
}

WindowMemory::~WindowMemory()
{
    if (m_still.isActive())
        note();
}

void WindowMemory::restore()
{
    const auto kept = readPlace(m_path);
    m_place.frame = frameOnScreen(kept ? std::optional(kept->frame) : std::nullopt, screensOfDesktop());
    m_place.zoomed = kept && kept->zoomed;
    m_window.setGeometry(m_place.frame);
    if (m_place.zoomed)
        m_window.setWindowStates(Qt::WindowMaximized);
}

void WindowMemory::watch()
{
    m_still.setSingleShot(true);
    m_still.setInterval(moment);
    connect(&m_still, &QTimer::timeout, this, &WindowMemory::note);
    const auto wait = [this] { m_still.start(); };
    connect(&m_window, &QWindow::xChanged, &m_still, wait);
    connect(&m_window, &QWindow::yChanged, &m_still, wait);
    connect(&m_window, &QWindow::widthChanged, &m_still, wait);
    connect(&m_window, &QWindow::heightChanged, &m_still, wait);
    connect(&m_window, &QWindow::windowStateChanged, &m_still, wait);
}

// Only what has come to rest is a place: on its way to a zoomed state a window passes through others.
void WindowMemory::note()
{
    m_still.stop();
    const Qt::WindowStates states = m_window.windowStates();
    if (states.testFlag(Qt::WindowMinimized))
        return;
    m_place.zoomed = states.testFlag(Qt::WindowMaximized) || states.testFlag(Qt::WindowFullScreen);
    if (!m_place.zoomed)
        m_place.frame = m_window.geometry();
    writePlace(m_path, m_place);
}

} // namespace vexal
