#include "boardprocess.h"

using namespace Qt::StringLiterals;

namespace vexal {

BoardProcess::BoardProcess(const QStringList &arguments)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, u"/nonexistent"_s); // what a test forgets to name must not be the person's
    m_process.setProcessEnvironment(environment);
    m_process.start(qEnvironmentVariable("VEXAL_BOARD_PROGRAM", QStringLiteral(VEXAL_BOARD_PROGRAM)),
                    QStringList{u"--listen"_s, u"127.0.0.1:0"_s} + arguments);
}

BoardProcess::~BoardProcess()
{
    kill();
}

int BoardProcess::port()
{
    QByteArray said;
    while (!said.contains('\n')) {
        if (!m_process.waitForReadyRead(20'000))
            return 0;
        said += m_process.readAllStandardOutput();
    }
    constexpr QByteArrayView before = "http://127.0.0.1:";
    const auto at = said.indexOf(before) + before.size();
    return said.mid(at, said.indexOf(',', at) - at).toInt();
}

void BoardProcess::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}

int BoardProcess::terminate()
{
    m_process.terminate();
    return exitStatus();
}

int BoardProcess::exitStatus()
{
    const bool isOver = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(20'000);
    return isOver && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QString BoardProcess::errors()
{
    return QString::fromUtf8(m_process.readAllStandardError());
}

} // namespace vexal
