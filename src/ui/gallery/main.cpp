// Shows every piece in all its states: `--dark` in the dark appearance, `--signin` the sign-in screen instead,
// `--review` what a page is reviewed with, and with `--shot FILE` photographs the window and ends.
#include "appearance.h"
#include "typeface.h"

#include <QGuiApplication>
#include <QImage>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
QString valueAfter(const QStringList &arguments, const QString &flag)
{
    const qsizetype at = arguments.indexOf(flag);
    return at < 0 ? QString() : arguments.value(at + 1);
}

void photograph(QQuickWindow &window, const QString &path)
{
    // The second frame has everything that the first one asked for.
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window,
        [&window, path] { QCoreApplication::exit(window.grabWindow().save(path) ? 0 : 1); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}
} // namespace

int main(int argc, char **argv)
{
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    vexal::applyTypeface(application, vexal::Typeface::Ours);

    QQmlApplicationEngine engine;
    auto &appearance = vexal::Appearance::of(engine);
    appearance.setDark(arguments.contains("--dark"_L1));
    const QString shot = valueAfter(arguments, u"--shot"_s);
    appearance.setResting(!shot.isEmpty());

    engine.setInitialProperties(
        {{u"signIn"_s, arguments.contains("--signin"_L1)}, {u"review"_s, arguments.contains("--review"_L1)}});
    engine.load(u"qrc:/qt-project.org/imports/Vexal/Gallery/Gallery.qml"_s);
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window)
        return 1;
    if (!shot.isEmpty())
        photograph(*window, shot);
    return QGuiApplication::exec();
}
