#include "privatebus.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr auto configuration = R"(<busconfig>
  <type>session</type>
  <listen>unix:dir=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)"_L1;

} // namespace

PrivateBus::PrivateBus(const char *variable)
{
    const QString path = m_folder.filePath(u"bus.conf"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QString(configuration).arg(m_folder.path()).toUtf8()) < 0)
        qFatal("The configuration of the bus was not written.");
    file.close();
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
    m_daemon.start(u"dbus-daemon"_s, {"--config-file="_L1 + path, u"--nofork"_s, u"--print-address=1"_s});
    if (!m_daemon.waitForReadyRead(10000))
        qFatal("The bus did not start.");
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    qputenv(variable, m_address.toUtf8());
}

PrivateBus::~PrivateBus()
{
    m_daemon.terminate();
    m_daemon.waitForFinished();
}
