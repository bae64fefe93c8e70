#pragma once

#include "credentialstore.h"

#include <QTimer>

#include <utility>

namespace vexal {

/// Keeps the token for this run alone.
class MemoryCredentialStore : public CredentialStore
{
    Q_OBJECT

public:
    explicit MemoryCredentialStore(const QString &token = {}, QObject *parent = nullptr)
        : CredentialStore(parent)
        , m_token(token)
    {
    }

    QString token() const override { return m_token; }
    bool known() const override { return true; }

    void store(const QString &token, QObject *context, std::function<void()> done) override
    {
        replace(token);
        QTimer::singleShot(0, context, std::move(done));
    }

    void forget() override { replace({}); }

private:
    void replace(const QString &token)
    {
        if (std::exchange(m_token, token) != token)
            Q_EMIT tokenChanged();
    }

    QString m_token;
};

} // namespace vexal
