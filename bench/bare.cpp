// The floor: the least that a Qt Quick window can be. Says how long it took from the given start to its first frame.
#include "moment.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>

#include <utility>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QQuickView window;
    window.setResizeMode(QQuickView::SizeRootObjectToView);
    window.resize(1500, 940);
    window.setSource(QUrl(QStringLiteral("qrc:/bench/Bare.qml")));
    bool told = false;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &application, [&] {
        if (std::exchange(told, true))
            return;
        vexal::bench::tell("start", vexal::bench::millisecondsSince(argv[1]));
        vexal::bench::tell("memory", vexal::bench::proportionalMegabytes());
        QCoreApplication::quit();
    });
    window.show();
    return QGuiApplication::exec();
}
