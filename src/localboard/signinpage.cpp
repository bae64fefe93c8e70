#include "signinpage.h"

#include <QColor>
#include <QFile>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

constexpr qsizetype longestState = 200;

QString item(const httplib::Request &request, const char *key)
{
    return QString::fromStdString(request.get_param_value(key));
}

QString fragment(const QString &name)
{
    QFile file(u":/localboard/pages/"_s + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString page(const QString &content)
{
    return fragment(u"page.html"_s).replace("{{content}}"_L1, content);
}

void put(httplib::Response &response, const QString &html)
{
    // The form leads to the client's own scheme.
    response.set_header("Content-Security-Policy",
                        "default-src 'none'; style-src 'unsafe-inline'; img-src data:; form-action 'self' vexal:; "
                        "frame-ancestors 'none'; base-uri 'none'");
    response.set_header("Cache-Control", "no-store");
    response.set_header("Referrer-Policy", "no-referrer");
    response.set_content(html.toStdString(), "text/html; charset=utf-8");
}

/// The first letters of the first and the last word of a name.
QString initials(const QString &name)
{
    const auto words = name.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return u"?"_s;
    const auto last = words.size() > 1 ? words.last().left(1) : QString();
    return (words.first().left(1) + last).toUpper();
}

QString personHtml(const Person &person, bool isHinted)
{
    const QColor color(person.color.value_or(QString()));
    return u"<button name=\"email\" value=\"%1\"%2><i style=\"background:%3\">%4</i><span><b>%5</b>%6</span></button>\n"_s
        .arg(person.email.toHtmlEscaped(), isHinted ? u" autofocus"_s : QString(),
             color.isValid() ? color.name() : u"#6A625D"_s, initials(person.name).toHtmlEscaped(),
             person.name.toHtmlEscaped(), person.email.toHtmlEscaped());
}

} // namespace

SignInPage::SignInPage(Services &services, HttpServer &server)
    : m_services(services)
{
    server.Get("/", [this](const auto &request, auto &response) { show(request, response); });
    server.Get("/signin", [this](const auto &request, auto &response) { show(request, response); });
    server.Post("/signin", [this](const auto &request, auto &response) { choose(request, response); });
}

void SignInPage::show(const httplib::Request &request, httplib::Response &response)
{
    put(response, signInHtml(m_services.documents.people(), item(request, "state"), item(request, "hint")));
}

void SignInPage::choose(const httplib::Request &request, httplib::Response &response)
{
    const auto state = item(request, "state");
    const auto code = m_services.sessions.issueCode(item(request, "email"));
    if (!code || state.isEmpty() || state.size() > longestState) {
        response.status = 400;
        put(response, signInHtml({}, {}, {}));
        return;
    }
    const auto encodedState = QString::fromLatin1(QUrl::toPercentEncoding(state));
    const auto target = u"vexal://signed-in?state=%1&code=%2"_s.arg(encodedState, *code);
    put(response, page(fragment(u"signedin.html"_s).replace("{{target}}"_L1, target.toHtmlEscaped())));
    response.status = 303;
    response.set_header("Location", target.toStdString());
}

QString signInHtml(const QList<Person> &people, const QString &state, const QString &hint)
{
    if (state.isEmpty())
        return page(fragment(u"noclient.html"_s));
    QString buttons;
    for (const Person &person : people) {
        const bool isHinted = person.email == hint;
        buttons.insert(isHinted ? 0 : buttons.size(), personHtml(person, isHinted));
    }
    return page(fragment(u"signin.html"_s)
                    .replace("{{state}}"_L1, state.left(longestState).toHtmlEscaped())
                    .replace("{{people}}"_L1, buttons));
}

} // namespace vexal::local
