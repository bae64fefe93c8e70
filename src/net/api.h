#pragma once

#include "credentialstore.h"
#include "exchange.h"
#include "networkpresence.h"
#include "preferences.h"
#include "request.h"
#include "result.h"
#include "session.h"

#include <QObject>
#include <QUrl>

#include <functional>

namespace vexal {

/// The way to the board server, for everything: one shared session, one operation.
class API : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(const Result<Response> &)>;

    API(Preferences &preferences, const CredentialStore &credentials, const NetworkPresence &network,
        const Timeouts &timeouts = {}, QObject *parent = nullptr);

    ~API() override;

    /// Base URL of the server, as the preferences have it at this moment.
    QUrl base() const;

    /// Sends the request with the token of this moment. `done` is called once, never from within this call, with a
    /// response of a status below 400 (304 included) or a failure; when `context` goes before, the request is given up
    /// and `done` is not called. What changes something is sent at most once; a fetch whose kept connection had
    /// gone goes out once more on a new one.
    void send(const Request &request, QObject *context, Done done);

private:
    Result<Outgoing> outgoing(const Request &request) const;
    Result<Response> classified(const Outcome &outcome) const;

    Preferences &m_preferences;
    const CredentialStore &m_credentials;
    const NetworkPresence &m_presence;
    Timeouts m_timeouts;
    Session m_session;
};

} // namespace vexal
