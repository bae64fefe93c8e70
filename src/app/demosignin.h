#pragma once

#include "browser.h"

#include <QNetworkAccessManager>

#include <functional>

namespace vexal {

/// Signs the same person in whenever the sign-in page is asked for: does what they would do on it.
class DemoSignIn : public Browser
{
public:
    /// `opened` is told the URL in which the page ends.
    DemoSignIn(QString email, std::function<void(const QUrl &)> opened);

    void openPrivately(const QUrl &page) override;

private:
    QString m_email;
    std::function<void(const QUrl &)> m_opened;
    QNetworkAccessManager m_network;
};

} // namespace vexal
