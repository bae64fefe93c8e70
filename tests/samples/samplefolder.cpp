#include "samplefolder.h"

#include "decode.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

using namespace Qt::StringLiterals;
using namespace vexal;

QString SampleFolder::make(const QMap<QString, QString> &around)
{
    QProcess maker;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto it = around.begin(); it != around.end(); ++it)
        environment.insert(it.key(), it.value());
    maker.setProcessEnvironment(environment);
    maker.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    maker.start(QStringLiteral(MAKE_SAMPLE), {path()});
    if (!maker.waitForFinished(240'000))
        return maker.errorString();
    if (maker.exitStatus() != QProcess::NormalExit || maker.exitCode() != 0)
        return u"make-sample ended with %1"_s.arg(maker.exitCode());
    return read();
}

QString SampleFolder::read()
{
    const Decoded<Sample> sample = decode<Sample>(bytes(u"sample.json"_s));
    if (!sample)
        return sample.error.text();
    m_sample = *sample;
    const QJsonObject inbox = QJsonDocument::fromJson(bytes(u"inbox/inbox.json"_s)).object();
    const QJsonArray details = inbox.value(u"details"_s).toArray();
    for (const auto &one : details) {
        const Decoded<FileDetail> detail = decode<FileDetail>(QJsonDocument(one.toObject()).toJson());
        if (!detail)
            return detail.error.text();
        m_inbox.append(*detail);
    }
    return {};
}

QStringList SampleFolder::files() const
{
    QStringList names = QDir(path()).entryList(QDir::Files, QDir::Name);
    for (const QString &name : QDir(path() + u"/inbox"_s).entryList(QDir::Files, QDir::Name))
        names.append(u"inbox/"_s + name);
    return names;
}

QByteArray SampleFolder::bytes(const QString &file) const
{
    QFile source(path() + u'/' + file);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

QString SampleFolder::picture(const FileDetail &detail, const QString &key) const
{
    const bool onBoard = m_sample.details.contains(detail.file.id);
    return path() + (onBoard ? u"/"_s : u"/inbox/"_s) + QString(key).replace(u'/', u'_');
}

QString SampleFolder::picture(const QString &key) const
{
    return path() + u'/' + QString(key).replace(u'/', u'_');
}
