// One start of the program, as far as there being one of it goes: says what it became and, if it is the one, what was
// opened into it, until its input ends: instance_peer FOLDER [URL...].
#include "singleinstance.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTextStream>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void say(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

} // namespace

int main(int count, char **arguments)
{
    QCoreApplication application(count, arguments);
    QList<QUrl> urls;
    for (const QString &argument : application.arguments().sliced(2))
        urls += QUrl(argument);

    vexal::SingleInstance instance(QDBusConnection::sessionBus(), u"org.vexal.Test-Peer"_s,
                                   QCoreApplication::arguments().at(1));
    QObject::connect(&instance, &vexal::SingleInstance::activated, [] { say(u"activated"_s); });
    QObject::connect(&instance, &vexal::SingleInstance::opened, [](const QList<QUrl> &opened) {
        say("opened "_L1 + QUrl::toStringList(opened, QUrl::FullyEncoded).join(u' '));
    });
    switch (instance.claim(urls)) {
    case vexal::SingleInstance::Role::Second:
        say(u"second"_s);
        return 0;
    case vexal::SingleInstance::Role::Alone:
        say(u"alone"_s);
        return 0;
    case vexal::SingleInstance::Role::First:
        say(u"first"_s);
    }
    QSocketNotifier end(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&end, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    return QCoreApplication::exec();
}
