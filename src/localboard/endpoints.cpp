#include "endpoints.h"

#include "bodies.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

constexpr qsizetype largestJson = 256'000;
constexpr qsizetype longestDeviceName = 200;

QString fromUtf8(const std::string &text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

QString tokenOf(const httplib::Request &request)
{
    const auto header = fromUtf8(request.get_header_value("Authorization"));
    return header.startsWith("Bearer "_L1) ? header.mid(7) : QString();
}

const char *typeOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\x89PNG"))
        return "image/png";
    if (bytes.startsWith("\xFF\xD8"))
        return "image/jpeg";
    return bytes.startsWith("%PDF") ? "application/pdf" : "application/octet-stream";
}

void put(httplib::Response &response, const QByteArray &bytes, const char *type = "application/json")
{
    response.set_content(bytes.constData(), std::size_t(bytes.size()), type);
}

void put(httplib::Response &response, const Refusal &refusal)
{
    response.status = refusal.status;
    response.set_content(HttpServer::errorBody(refusal.sentence.toStdString()), "application/json");
}

void put(httplib::Response &response, const Document &document)
{
    response.set_header("ETag", document.tag.toStdString());
    response.set_header("Cache-Control", "no-cache");
    if (document.isHeld)
        response.status = 304;
    else
        put(response, document.json);
}

template <Record R>
void put(httplib::Response &response, const R &record)
{
    put(response, encode(record));
}

/// Answers what came of it: a record, a document, or why there is none.
template <typename T>
void put(httplib::Response &response, const Outcome<T> &outcome)
{
    outcome ? put(response, *outcome) : put(response, outcome.refusal());
}

/// The same for a picture or a PDF.
void putFile(httplib::Response &response, const Outcome<QByteArray> &outcome)
{
    outcome ? put(response, *outcome, typeOf(*outcome)) : put(response, outcome.refusal());
}

Outcome<QJsonObject> bodyOf(const httplib::Request &request)
{
    if (qsizetype(request.body.size()) > largestJson)
        return Refusal{413, u"That is too much at once."_s};
    return objectIn(QByteArray::fromStdString(request.body));
}

/// The text under \a key of the request's body.
Outcome<QString> textOf(const httplib::Request &request, QLatin1StringView key)
{
    return bodyOf(request).then([key](const QJsonObject &body) { return textIn(body, key); });
}

QByteArray heldTags(const httplib::Request &request)
{
    return QByteArray::fromStdString(request.get_header_value("If-None-Match"));
}

} // namespace

Endpoints::Endpoints(Services &services, HttpServer &server, std::function<VersionInfo()> version)
    : m_services(services)
    , m_server(server)
    , m_version(std::move(version))
{
    const Route get = &httplib::Server::Get;
    const Route post = &httplib::Server::Post;
    const Route put = &httplib::Server::Put;
    open(post, "/api/login/exchange", &Endpoints::exchange);
    open(get, "/version\\.json", &Endpoints::version);
    member(get, "/api/state", &Endpoints::state);
    member(get, "/api/files/([^/]+)", &Endpoints::detail);
    member(get, "/api/blob/(.+)", &Endpoints::blob);
    member(post, "/api/jobs", &Endpoints::askJob);
    member(post, "/api/jobs/([^/]+)/stop", &Endpoints::stopJob);
    member(post, "/api/findings/([^/]+)", &Endpoints::setFindingState);
    member(post, "/api/comments", &Endpoints::addNote);
    member(post, "/api/comments/([^/]+)", &Endpoints::changeNote);
    member(post, "/api/files/([^/]+)/status", &Endpoints::setStatus);
    member(get, "/api/reports/([^/]+)/pdf", &Endpoints::reportPdf);
    member(put, "/api/me/photo", &Endpoints::setPhoto);
    member(post, "/api/logout", &Endpoints::logout);
}

void Endpoints::open(Route route, const char *pattern, Action action)
{
    (m_server.*route)(pattern, [this, action](const httplib::Request &request, httplib::Response &response) {
        (this->*action)({.request = request}, response);
    });
}

void Endpoints::member(Route route, const char *pattern, Action action)
{
    (m_server.*route)(pattern, [this, action](const httplib::Request &request, httplib::Response &response) {
        const auto who = m_services.sessions.holder(tokenOf(request));
        if (!who) {
            response.set_header("WWW-Authenticate", "Bearer");
            put(response, Refusal{401, u"Sign in first."_s});
            return;
        }
        const auto id = request.matches.size() > 1 ? fromUtf8(request.matches[1]) : QString();
        (this->*action)({*who, id, request}, response);
    });
}

void Endpoints::exchange(const Call &call, httplib::Response &response)
{
    put(response, bodyOf(call.request).then([this](const QJsonObject &body) {
        const auto device = body.value("device"_L1).toString().left(longestDeviceName);
        return textIn(body, "code"_L1).then([&](const QString &code) {
            return m_services.sessions.exchange(code, device);
        });
    }));
}

void Endpoints::version(const Call &, httplib::Response &response)
{
    put(response, m_version());
}

void Endpoints::logout(const Call &call, httplib::Response &response)
{
    m_services.sessions.end(tokenOf(call.request));
    put(response, "{}");
}

void Endpoints::state(const Call &call, httplib::Response &response)
{
    put(response, m_services.documents.state(call.who, heldTags(call.request)));
}

void Endpoints::detail(const Call &call, httplib::Response &response)
{
    put(response, m_services.documents.detail(call.id, heldTags(call.request)));
}

void Endpoints::blob(const Call &call, httplib::Response &response)
{
    putFile(response, m_services.documents.blob(call.id));
}

void Endpoints::reportPdf(const Call &call, httplib::Response &response)
{
    putFile(response, m_services.reports.pdf(call.id));
}

void Endpoints::askJob(const Call &call, httplib::Response &response)
{
    put(response, bodyOf(call.request).then([&](const QJsonObject &body) {
        return textIn(body, "kind"_L1).then([&](const QString &kind) -> Outcome<Job> {
            if (kind == "sync"_L1)
                return m_services.jobs.askSync(call.who);
            if (kind != "report"_L1)
                return refused(u"The worker knows syncs and reports only."_s);
            return textsIn(body, "file_ids"_L1).then([&](const QList<QString> &files) {
                return m_services.jobs.askReport(call.who, files);
            });
        });
    }));
}

void Endpoints::stopJob(const Call &call, httplib::Response &response)
{
    put(response, m_services.jobs.stop(call.who, call.id));
}

void Endpoints::setFindingState(const Call &call, httplib::Response &response)
{
    put(response, textOf(call.request, "state"_L1).then([&](const QString &state) {
        return m_services.review.setFindingState(call.who, call.id, state);
    }));
}

void Endpoints::addNote(const Call &call, httplib::Response &response)
{
    put(response, bodyOf(call.request).then(newNoteIn).then([&](const NewNote &note) {
        return m_services.review.addNote(call.who, note);
    }));
}

void Endpoints::changeNote(const Call &call, httplib::Response &response)
{
    put(response, bodyOf(call.request).then(noteChangeIn).then([&](const NoteChange &change) {
        return m_services.review.changeNote(call.who, call.id, change);
    }));
}

void Endpoints::setStatus(const Call &call, httplib::Response &response)
{
    put(response, textOf(call.request, "status"_L1).then([&](const QString &status) {
        return m_services.review.setStatus(call.who, call.id, status);
    }));
}

void Endpoints::setPhoto(const Call &call, httplib::Response &response)
{
    put(response, m_services.review.setPhoto(call.who, QByteArray::fromStdString(call.request.body)));
}

} // namespace vexal::local
