#include "localboard.h"
#include "loopback.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QStandardPaths>

#include <csignal>
#include <cstdio>
#include <optional>
#include <pthread.h>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

/// "127.0.0.1:8123", "[::1]:8123".
struct Address
{
    QString host;
    int port = 0;
};

std::optional<Address> addressIn(const QString &text)
{
    const QUrl url(u"http://"_s + text, QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty() || url.port() < 0)
        return std::nullopt;
    return Address{url.host(), url.port()};
}

void say(FILE *where, const QString &line)
{
    std::fprintf(where, "%s\n", qUtf8Printable(line));
    std::fflush(where);
}

LocalBoardOptions optionsFrom(const QStringList &arguments)
{
    const QCommandLineOption listen(u"listen"_s, u"Address to serve."_s, u"host:port"_s, u"127.0.0.1:8123"_s);
    const QCommandLineOption data(u"data"_s, u"Folder that keeps the board."_s, u"folder"_s,
                                  QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                                      u"/vexal-board"_s);
    const QCommandLineOption seed(u"seed"_s, u"Folder with the board that an empty one starts from."_s, u"folder"_s);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"A Vexal board server for one machine."_s);
    parser.addHelpOption();
    parser.addOptions({listen, data, seed});
    parser.process(arguments);
    const auto address = addressIn(parser.value(listen));
    if (!address) {
        say(stderr, u"%1 is no address like 127.0.0.1:8123."_s.arg(parser.value(listen)));
        std::exit(1);
    }
    return {.host = address->host, .port = address->port, .data = parser.value(data), .seed = parser.value(seed)};
}

} // namespace

int main(int argc, char **argv)
{
    // Waited for below, and so kept from every thread that is started.
    sigset_t endings;
    sigemptyset(&endings);
    sigaddset(&endings, SIGTERM);
    sigaddset(&endings, SIGINT);
    pthread_sigmask(SIG_BLOCK, &endings, nullptr);

    qputenv("QT_QPA_PLATFORM", "offscreen"); // fonts for the reports, and no window
    const QGuiApplication app(argc, argv);
    const auto options = optionsFrom(QGuiApplication::arguments());
    LocalBoard board(options);
    if (const auto problem = board.start()) {
        say(stderr, *problem);
        return 1;
    }
    if (board.people().isEmpty()) {
        say(stderr, u"There is nobody on this board. Name a folder to start from: --seed."_s);
        return 1;
    }
    if (!local::isLoopback(options.host.toStdString()))
        say(stderr, u"Whoever reaches this address can sign in as anybody on the board."_s);
    say(stdout, u"The board is at %1, its data in %2."_s.arg(board.url().toString(), options.data));
    int signal = 0;
    sigwait(&endings, &signal);
    return 0;
}
