#include "signin.h"

#include "address.h"
#include "decode.h"
#include "deployment.h"

#include <QLoggingCategory>
#include <QUrlQuery>
#include <QUuid>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

Q_LOGGING_CATEGORY(log, "vexal.signin")

constexpr auto scheme = "vexal"_L1;
constexpr auto signedIn = "signed-in"_L1;

QString newState()
{
    return QUuid::createUuid().toString(QUuid::Id128).toUpper();
}

/// The value of the query item; empty when there is none.
QString item(const QUrl &url, const QString &name)
{
    return QUrlQuery(url).queryItemValue(name, QUrl::FullyDecoded);
}

/// As one query item, which "+" and "&" do not end.
QString encodedItem(QLatin1StringView name, const QString &value)
{
    return name + u'=' + QString::fromLatin1(QUrl::toPercentEncoding(value, "@"));
}

/// It can stand in the head of a request.
bool isToken(const QString &text)
{
    const auto fits = [](QChar c) { return c >= u' ' && c != u'\x7f'; };
    return !text.isEmpty() && std::all_of(text.cbegin(), text.cend(), fits);
}

bool saysSignedIn(const QUrl &url)
{
    return url.host() == signedIn || url.path().split(u'/').contains(signedIn);
}

} // namespace

SignIn::SignIn(API &api, Preferences &preferences, CredentialStore &credentials, Browser &browser,
               const QString &device, QObject *parent)
    : QObject(parent)
    , m_api(api)
    , m_preferences(preferences)
    , m_credentials(credentials)
    , m_browser(browser)
    , m_device(device.isEmpty() ? u"Mac"_s : device)
{
}

SignIn::~SignIn() = default;

void SignIn::start(QObject *context, Done done)
{
    auto attempt = std::make_unique<Attempt>();
    attempt->state = newState();
    attempt->page = pageFor(attempt->state);
    attempt->context = context;
    attempt->done = std::move(done);
    connect(context, &QObject::destroyed, &attempt->life, [this] { cancel(); });
    m_browser.openPrivately(attempt->page);
    tell(std::exchange(m_attempt, std::move(attempt)), Failure::cancelled());
}

QUrl SignIn::pageFor(const QString &state) const
{
    QUrl page = appended(m_api.base(), u"signin"_s).value_or(QUrl());
    QString query = encodedItem("state"_L1, state);
    const QString lastEmail = m_preferences.value(preference::lastEmail).value_or(QString());
    if (lastEmail.endsWith(u'@' + deployment::emailDomain.toString()))
        query += u'&' + encodedItem("hint"_L1, lastEmail);
    page.setQuery(query, QUrl::StrictMode);
    return page;
}

void SignIn::cancel()
{
    if (m_attempt)
        end(Failure::cancelled());
}

QUrl SignIn::page() const
{
    return m_attempt ? m_attempt->page : QUrl();
}

SignIn::Arrival SignIn::take(const QUrl &url)
{
    if (url.scheme() != scheme)
        return Arrival::Ignored;
    if (m_attempt) {
        const bool isLate = m_attempt->page.isEmpty() || m_over.contains(item(url, u"state"_s));
        if (isLate)
            return Arrival::Ignored;
        receive(url);
        return Arrival::Callback;
    }
    if (!saysSignedIn(url))
        return Arrival::Ignored;
    return m_credentials.token().isEmpty() ? Arrival::NobodyIn : Arrival::SignedIn;
}

void SignIn::receive(const QUrl &callback)
{
    const QString code = item(callback, u"code"_s);
    if (item(callback, u"state"_s) != m_attempt->state || code.isEmpty())
        return end(Failure::server(u"That sign-in did not come through. Try again."_s));
    m_attempt->page.clear();
    Q_EMIT waitingChanged();
    exchange(code);
}

void SignIn::exchange(const QString &code)
{
    const Request request{.path = u"api/login/exchange"_s,
                          .method = "POST",
                          .json = QJsonObject{{u"code"_s, code}, {u"device"_s, m_device}}};
    m_api.send(request, &m_attempt->life, [this](const Result<Response> &answer) {
        if (answer)
            keep(*answer);
        else
            end(answer.failure());
    });
}

void SignIn::keep(const Response &response)
{
    const auto answer = decode<SignInAnswer>(response.body);
    if (!answer) {
        qCWarning(log, "The answer to a sign-in is no such answer: %ls", qUtf16Printable(answer.error.text()));
        return end(Failure::other());
    }
    if (!isToken(answer->token)) {
        qCWarning(log, "The answer to a sign-in has a token that no request can carry");
        return end(Failure::other());
    }
    m_attempt->stored = true;
    m_credentials.store(answer->token, &m_attempt->life, [this, me = answer->me] {
        m_preferences.setValue(preference::lastEmail, me.email);
        m_attempt->stored = false;
        end(me);
    });
}

void SignIn::end(const Result<Me> &result)
{
    tell(std::exchange(m_attempt, nullptr), result);
}

void SignIn::tell(std::unique_ptr<Attempt> attempt, const Result<Me> &result)
{
    if (attempt) {
        m_over += attempt->state;
        // Given up at the last moment, it leaves nobody signed in.
        if (attempt->stored)
            m_credentials.forget();
    }
    Q_EMIT waitingChanged();
    if (attempt && attempt->context)
        attempt->done(result);
}

} // namespace vexal
