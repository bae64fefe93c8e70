#include "certificate.h"

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>

using namespace Qt::StringLiterals;

Certificate::Certificate()
{
    const QString key = m_folder.filePath(u"key.pem"_s);
    QProcess openssl;
    openssl.start(u"openssl"_s,
                  {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:prime256v1"_s,
                   u"-nodes"_s, u"-days"_s, u"2"_s, u"-subj"_s, u"/CN=127.0.0.1"_s, u"-addext"_s,
                   u"subjectAltName=IP:127.0.0.1"_s, u"-keyout"_s, key, u"-out"_s, file()});
    if (!openssl.waitForFinished() || openssl.exitCode() != 0)
        qFatal("No certificate was made: %s", openssl.readAllStandardError().constData());
}

QString Certificate::file() const
{
    return m_folder.filePath(u"certificate.pem"_s);
}

QSslConfiguration Certificate::server() const
{
    QFile key(m_folder.filePath(u"key.pem"_s));
    if (!key.open(QIODevice::ReadOnly))
        qFatal("The key of the certificate cannot be read.");
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setPrivateKey(QSslKey(&key, QSsl::Ec));
    configuration.setLocalCertificateChain(QSslCertificate::fromPath(file()));
    return configuration;
}
