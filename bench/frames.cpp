#include "frames.h"

#include <QEventLoop>
#include <QQuickWindow>
#include <QTimer>

namespace vexal::bench {

QQuickItem *findItem(QQuickItem *from, const QByteArray &name)
{
    // "FileList" is "FileList_QMLTYPE_7" once the engine has made a type of it.
    const bool isOfType = QByteArray(from->metaObject()->className()).startsWith(name + '_');
    if (isOfType || from->objectName() == QLatin1String(name))
        return from;
    for (QQuickItem *child : from->childItems()) {
        if (QQuickItem *found = findItem(child, name))
            return found;
    }
    return nullptr;
}

void drawFrame(QQuickWindow &window)
{
    QEventLoop loop;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    window.update();
    loop.exec();
}

void goOnFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

double spentOnScrolledFrame(QQuickWindow &window, QQuickItem &list)
{
    constexpr int line = 20; // points
    return spentOnFrame(window, [&list] { list.setProperty("contentY", list.property("contentY").toReal() + line); });
}

} // namespace vexal::bench
