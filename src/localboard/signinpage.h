#pragma once

#include "httpserver.h"
#include "services.h"

namespace vexal::local {

/// The board's sign-in page: "signin" with the query items "state" and, perhaps, "hint" lists the people of the board;
/// choosing one leads back to the client by vexal://signed-in with that state and a one-time code.
class SignInPage
{
public:
    SignInPage(Services &services, HttpServer &server);

private:
    void show(const httplib::Request &request, httplib::Response &response);
    void choose(const httplib::Request &request, httplib::Response &response);

    Services &m_services;
};

/// The page that offers \a people to sign in as, the one with the address \a hint first. Without a \a state, which no
/// client gives, it says what this place is.
QString signInHtml(const QList<Person> &people, const QString &state, const QString &hint);

} // namespace vexal::local
