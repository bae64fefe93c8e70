#include "demosignin.h"

#include <QNetworkReply>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace vexal {

DemoSignIn::DemoSignIn(QString email, std::function<void(const QUrl &)> opened)
    : m_email(std::move(email))
    , m_opened(std::move(opened))
{
}

void DemoSignIn::openPrivately(const QUrl &page)
{
    QUrlQuery form;
    form.addQueryItem(u"state"_s, QUrlQuery(page).queryItemValue(u"state"_s));
    form.addQueryItem(u"email"_s, m_email);
    QNetworkRequest request(page.adjusted(QUrl::RemoveQuery));
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/x-www-form-urlencoded"_s);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    QNetworkReply *reply = m_network.post(request, form.toString(QUrl::FullyEncoded).toUtf8());
    QObject::connect(reply, &QNetworkReply::finished, reply, [this, reply] {
        reply->deleteLater();
        // A page that leads nowhere ends the attempt, as a callback without a code does.
        const QUrl end = reply->header(QNetworkRequest::LocationHeader).toUrl();
        m_opened(end.isEmpty() ? QUrl(u"vexal://signed-in"_s) : end);
    });
}

} // namespace vexal
