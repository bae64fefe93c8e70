#pragma once

#include "api.h"
#include "memorycredentialstore.h"
#include "memorypreferences.h"
#include "scriptedserver.h"

#include <QEventLoop>
#include <QTimer>

#include <optional>

/// A network that is there or not, as the test says.
class SaidPresence : public vexal::NetworkPresence
{
public:
    bool connected() const override { return m_connected; }
    void set(bool connected) { m_connected = connected; }

private:
    bool m_connected = true;
};

/// A client of a scripted server, signed in with "token", and all that it stands on. It is impatient, so that no test
/// waits for what a person would.
class Client
{
public:
    static constexpr vexal::Timeouts impatient{.idle = std::chrono::milliseconds(800),
                                               .head = std::chrono::milliseconds(1600)};

    explicit Client(const vexal::Timeouts &timeouts = impatient)
        : api(preferences, credentials, presence, timeouts)
    {
        preferences.setValue(vexal::preference::serverURL, server.url().toString());
    }

    /// What becomes of the request, which has ten seconds for it.
    vexal::Result<vexal::Response> send(const vexal::Request &request)
    {
        std::optional<vexal::Result<vexal::Response>> outcome;
        QEventLoop loop;
        api.send(request, &loop, [&](const vexal::Result<vexal::Response> &result) {
            if (outcome)
                qFatal("A request was answered twice.");
            outcome = result;
            loop.quit();
        });
        if (outcome)
            qFatal("A request was answered before its sender had a chance to go on.");
        QTimer::singleShot(std::chrono::seconds(10), &loop, &QEventLoop::quit);
        loop.exec();
        if (!outcome)
            qFatal("A request was never answered.");
        return *outcome;
    }

    ScriptedServer server;
    MemoryPreferences preferences;
    vexal::MemoryCredentialStore credentials{QStringLiteral("token")};
    SaidPresence presence;
    vexal::API api;
};
