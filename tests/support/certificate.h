#pragma once

#include <QSslConfiguration>
#include <QTemporaryDir>

/// A certificate for 127.0.0.1 that nobody but the test knows, fresh for each run.
class Certificate
{
public:
    Certificate();

    /// The file by which the certificate is known to those who trust it.
    QString file() const;

    /// What a server that shows the certificate is set to.
    QSslConfiguration server() const;

private:
    QTemporaryDir m_folder;
};
