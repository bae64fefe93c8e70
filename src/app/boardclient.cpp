#include "boardclient.h"

#include "deployment.h"

using namespace Qt::StringLiterals;

namespace vexal {

BoardClient::BoardClient(const Desktop &desktop)
    : m_desktop(desktop)
    , m_api(desktop.preferences, desktop.credentials, desktop.network)
    , m_signIn(m_api, desktop.preferences, desktop.credentials, desktop.browser, desktop.device)
{
}

Surroundings BoardClient::surroundings()
{
    return {.api = m_api,
            .signIn = m_signIn,
            .credentials = m_desktop.credentials,
            .windows = m_windows,
            .badge = m_desktop.badge,
            .notifications = m_desktop.notifications,
            .opener = m_desktop.opener,
            .picker = m_desktop.picker,
            .downloads = m_desktop.downloads,
            .build = deployment::build};
}

Images::Fetch BoardClient::fetch()
{
    return [this](const QString &key, QObject *context, const Images::Fetched &fetched) {
        const Request request{.path = u"api/blob/"_s + key, .limit = limit::picture, .background = true};
        m_api.send(request, context, [fetched](const Result<Response> &answer) {
            fetched(answer ? std::optional(answer->body) : std::nullopt);
        });
    };
}

} // namespace vexal
