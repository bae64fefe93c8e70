#include "localboard.h"

#include "endpoints.h"
#include "seed.h"
#include "signinpage.h"
#include "worker.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <mutex>
#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

using namespace local;

namespace {

double systemNow()
{
    return double(QDateTime::currentMSecsSinceEpoch());
}

} // namespace

/// What runs while the board is served.
struct LocalBoard::Serving
{
    Serving(LocalBoard &board, Services &services)
        : api(services, server, [&board] { return board.version(); })
        , signInPage(services, server)
        , worker(services.ledger, services.jobs, board.m_options.stepTime)
        , jobs(services.jobs)
    {
        jobs.onAsked = [this] { worker.wake(); };
    }

    ~Serving()
    {
        server.close(); // before what its handlers use goes
        jobs.onAsked = [] {};
    }

    HttpServer server;
    Endpoints api;
    SignInPage signInPage;
    Worker worker;
    Jobs &jobs;
};

LocalBoard::LocalBoard(LocalBoardOptions options)
    : m_options(std::move(options))
    , m_port(m_options.port)
{
    if (!m_options.now)
        m_options.now = systemNow;
}

LocalBoard::~LocalBoard() = default;

std::optional<QString> LocalBoard::start()
{
    if (m_serving)
        return std::nullopt;
    if (!m_services) {
        if (auto problem = openLedger())
            return problem;
    }
    auto serving = std::make_unique<Serving>(*this, *m_services);
    if (!serving->server.open(m_options.host.toStdString(), m_port))
        return u"Can't listen on %1, port %2."_s.arg(m_options.host, QString::number(m_port));
    m_port = serving->server.port();
    m_serving = std::move(serving);
    return std::nullopt;
}

void LocalBoard::stop()
{
    m_serving.reset();
}

std::optional<QString> LocalBoard::openLedger()
{
    const QDir folder(m_options.data);
    const bool inMemory = m_options.data.isEmpty();
    if (!inMemory && !folder.mkpath(u"."_s))
        return u"Can't make the folder %1."_s.arg(m_options.data);
    try {
        auto services =
            std::make_unique<Services>(inMemory ? QString() : folder.filePath(u"board.sqlite"_s), m_options.now);
        if (auto problem = plantSeed(services->ledger))
            return problem;
        m_services = std::move(services);
    } catch (const DatabaseError &error) {
        return u"The board in %1 can't be opened: %2."_s.arg(m_options.data, QString::fromUtf8(error.what()));
    }
    return std::nullopt;
}

std::optional<QString> LocalBoard::plantSeed(Ledger &ledger) const
{
    if (m_options.seed.isEmpty() || !ledger.people.isEmpty() || !ledger.files.isEmpty())
        return std::nullopt;
    const auto read = readSeed(m_options.seed);
    if (!read)
        return read.refusal().sentence;
    auto seed = *read;
    if (m_options.seedIsNow)
        moveTimes(seed, m_options.now());
    plant(seed, ledger);
    return std::nullopt;
}

QUrl LocalBoard::url() const
{
    QUrl url;
    url.setScheme(u"http"_s);
    url.setHost(m_options.host);
    url.setPort(m_port);
    return url;
}

QString LocalBoard::signInAs(const QString &email)
{
    const auto answer = m_services->sessions.open(email, u"this computer"_s);
    return answer ? answer->token : QString();
}

void LocalBoard::revoke(const QString &email)
{
    m_services->sessions.endAll(email);
}

void LocalBoard::addPerson(const Person &person)
{
    Change change(m_services->ledger);
    m_services->ledger.people.put(person);
    change.commit();
}

void LocalBoard::addProof(const FileDetail &proof)
{
    Change change(m_services->ledger);
    m_services->ledger.inbox.put(proof);
    change.commit();
}

void LocalBoard::addPicture(const QString &key, const QByteArray &bytes)
{
    Change change(m_services->ledger);
    m_services->ledger.putBlob(key, bytes);
    change.commit();
}

QList<Person> LocalBoard::people()
{
    return m_services->documents.people();
}

BoardState LocalBoard::state(const QString &email)
{
    return *decode<BoardState>(m_services->documents.state(email, {}).json);
}

Review &LocalBoard::review()
{
    return m_services->review;
}

Jobs &LocalBoard::jobs()
{
    return m_services->jobs;
}

void LocalBoard::offer(const VersionInfo &version)
{
    const std::lock_guard lock(m_offerMutex);
    m_offer = version;
}

/// Asked on the server's threads.
VersionInfo LocalBoard::version() const
{
    QFile file(QDir(m_options.data).filePath(u"version.json"_s));
    if (!m_options.data.isEmpty() && file.open(QIODevice::ReadOnly)) {
        if (const auto placed = decode<VersionInfo>(file.readAll()))
            return *placed;
    }
    const std::lock_guard lock(m_offerMutex);
    return m_offer.value_or(
        VersionInfo{.version = QStringLiteral(VEXAL_VERSION), .build = VEXAL_BUILD, .url = url().toString()});
}

} // namespace vexal
