// The floor: the least that a Qt Quick window can be. Says how long it took from the given start to its first frame.
#include "moment.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>

#include <atomic>
#include <utility>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QQuickView window;
    window.setResizeMode(QQuickView::SizeRootObjectToView);
    window.resize(1500, 940);
    window.setSource(QUrl(QStringLiteral("qrc:/bench/Bare.qml")));
    std::atomic<double> swapped = 0;
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &application,
        [&] {
            if (swapped == 0)
                swapped = vexal::bench::millisecondsSince(argv[1]);
        },
        Qt::DirectConnection);
    bool told = false;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &application, [&] {
        if (std::exchange(told, true))
            return;
        vexal::bench::tell("start", swapped);
        vexal::bench::tell("memory", vexal::bench::proportionalMegabytes());
        QCoreApplication::quit();
    });
    window.show();
    return QGuiApplication::exec();
}
