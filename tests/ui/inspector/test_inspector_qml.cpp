#include "appearance.h"
#include "typeface.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QtQuickTest>

/// Sets the stage as the application does.
class Stage : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    static void applicationAvailable()
    {
        QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
        vexal::applyTypeface(*qGuiApp, vexal::Typeface::Ours);
    }
};

QUICK_TEST_MAIN_WITH_SETUP(inspector, Stage)
#include "test_inspector_qml.moc"
