#pragma once

#include "credentialstore.h"

namespace vexal {

/// A credential store that answers when the test says, and then holds "token".
class SlowCredentials : public CredentialStore
{
public:
    QString token() const override { return m_known ? QStringLiteral("token") : QString(); }
    bool known() const override { return m_known; }
    void store(const QString &, QObject *, std::function<void()>) override {}
    void forget() override {}
    void answer()
    {
        m_known = true;
        Q_EMIT becameKnown();
    }

private:
    bool m_known = false;
};

} // namespace vexal
