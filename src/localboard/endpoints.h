#pragma once

#include "httpserver.h"
#include "services.h"

#include <functional>

namespace vexal::local {

/// The board's HTTP and JSON interface (docs/server.md): puts a handler for each of its endpoints into a server. Every
/// one but the sign-in's and the version's asks for the token of a session.
class Endpoints
{
public:
    /// \a version answers what "version.json" is.
    Endpoints(Services &services, HttpServer &server, std::function<VersionInfo()> version);

private:
    /// Who asks, and for what.
    struct Call
    {
        QString who; ///< E-mail address; empty where nobody need be signed in.
        QString id;  ///< The identifier in the path, where there is one.
        const httplib::Request &request;
    };
    using Action = void (Endpoints::*)(const Call &call, httplib::Response &response);
    using Route = httplib::Server &(httplib::Server::*)(const std::string &, httplib::Server::Handler);

    void open(Route route, const char *pattern, Action action);
    void member(Route route, const char *pattern, Action action);

    void exchange(const Call &call, httplib::Response &response);
    void version(const Call &call, httplib::Response &response);
    void logout(const Call &call, httplib::Response &response);
    void state(const Call &call, httplib::Response &response);
    void detail(const Call &call, httplib::Response &response);
    void blob(const Call &call, httplib::Response &response);
    void reportPdf(const Call &call, httplib::Response &response);
    void askJob(const Call &call, httplib::Response &response);
    void stopJob(const Call &call, httplib::Response &response);
    void setFindingState(const Call &call, httplib::Response &response);
    void addNote(const Call &call, httplib::Response &response);
    void changeNote(const Call &call, httplib::Response &response);
    void setStatus(const Call &call, httplib::Response &response);
    void setPhoto(const Call &call, httplib::Response &response);

    Services &m_services;
    HttpServer &m_server;
    const std::function<VersionInfo()> m_version;
};

} // namespace vexal::local
