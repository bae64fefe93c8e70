#include "desktopopener.h"

#include <QDesktopServices>
#include <QPointer>
#include <QProcess>
#include <QTimer>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

DesktopOpener::DesktopOpener(std::chrono::milliseconds patience)
    : m_patience(patience)
{
}

void DesktopOpener::openLink(const QUrl &link)
{
    QDesktopServices::openUrl(link);
}

void DesktopOpener::openFile(const QString &path, QObject *context, std::function<void(bool)> done)
{
    // The process may outlive whoever asked, and must not take the viewer with it when the program ends.
    auto *process = new QProcess;
    const auto tell = [context = QPointer(context),
                       done = std::make_shared<std::function<void(bool)>>(std::move(done))](bool opened) {
        if (const auto once = std::exchange(*done, nullptr); once && context)
            once(opened);
    };
    QObject::connect(process, &QProcess::finished, process, [process, tell](int code, QProcess::ExitStatus status) {
        process->deleteLater();
        tell(status == QProcess::NormalExit && code == 0);
    });
    QObject::connect(process, &QProcess::errorOccurred, process, [process, tell](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        process->deleteLater();
        tell(false);
    });
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(u"xdg-open"_s, {path});
    QTimer::singleShot(m_patience, process, [tell] { tell(true); });
}

} // namespace vexal
