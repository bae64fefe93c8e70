#include "liveclient.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vexal::bench {

LiveClient::LiveClient(const QUrl &server, const QString &token, Pace pace)
    : m_preferences(m_folder.filePath(u"Vexal.conf"_s), {u"-ServerURL"_s, server.toString()})
    , m_credentials(token)
    , m_browser(u"mira@lanternhouse.example"_s, [this](const QUrl &url) { app.store().openUrl(url); })
    , m_client({.preferences = m_preferences,
                .credentials = m_credentials,
                .network = m_network,
                .browser = m_browser,
                .opener = m_opener,
                .badge = m_badge,
                .notifications = m_notifications,
                .picker = m_picker,
                .device = u"Bench"_s,
                .downloads = m_folder.path()})
    , app({systemClock(), m_folder.filePath(u"pictures"_s), m_client.fetch(), surroundings(pace)})
{
}

Surroundings LiveClient::surroundings(Pace pace)
{
    Surroundings surroundings = m_client.surroundings();
    if (pace == Pace::None)
        surroundings.sleep = [](auto, auto *, const auto &) {};
    return surroundings;
}

BoardServer::BoardServer(const QString &seed)
{
    m_process.start(QCoreApplication::applicationDirPath() + u"/vexal-board"_s,
                    {u"--listen"_s, u"127.0.0.1:0"_s, u"--data"_s, m_data.path(), u"--seed"_s, seed});
    QByteArray said;
    while (!said.contains('\n') && m_process.waitForReadyRead())
        said += m_process.readAllStandardOutput();
    m_url = QUrl(QString::fromUtf8(said.mid(said.indexOf("http://"))).section(u',', 0, 0));
}

BoardServer::~BoardServer()
{
    m_process.terminate();
    m_process.waitForFinished();
}

} // namespace vexal::bench
