#include "capture.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <cstdio>

namespace vexal {

namespace {

QWindow *windowToCapture()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto visible =
        std::find_if(windows.cbegin(), windows.cend(), [](const QWindow *window) { return window->isVisible(); });
    if (visible != windows.cend())
        return *visible;
    return windows.isEmpty() ? nullptr : windows.first();
}

QByteArray pngOf(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? bytes : QByteArray();
}

void write(const QByteArray &bytes, const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush())
        return;
    std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(file.errorString()));
}

} // namespace

CaptureStatus capture(const QString &path)
{
    auto *window = qobject_cast<QQuickWindow *>(windowToCapture());
    if (!window || !window->contentItem())
        return CaptureStatus::NoWindow;
    const QImage image = window->grabWindow();
    if (image.isNull())
        return CaptureStatus::NoBitmap;
    const QByteArray bytes = pngOf(image);
    if (!bytes.isEmpty())
        write(bytes, path);
    return CaptureStatus::Written;
}

} // namespace vexal
