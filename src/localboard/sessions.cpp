#include "sessions.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

#include <array>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

constexpr double minute = 60'000;
constexpr double codeLife = 10 * minute;

QString newSecret()
{
    std::array<quint32, 8> words;
    QRandomGenerator::system()->fillRange(words.data(), words.size());
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(words.data()), sizeof words);
    return QString::fromLatin1(bytes.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
}

QByteArray hashed(const QString &secret)
{
    return QCryptographicHash::hash(secret.toUtf8(), QCryptographicHash::Sha256);
}

Refusal nobody()
{
    return refused(u"Nobody of that address is on this board."_s);
}

} // namespace

Outcome<QString> Sessions::issueCode(const QString &email)
{
    const std::lock_guard lock(m_ledger.mutex);
    if (!m_ledger.people.find(email))
        return nobody();
    const auto now = m_ledger.now();
    auto code = newSecret();
    m_ledger.database.run("DELETE FROM codes WHERE good_until < ?", qint64(now));
    m_ledger.database.run("INSERT INTO codes (code, email, good_until) VALUES (?, ?, ?)", hashed(code), email,
                          qint64(now + codeLife));
    return code;
}

Outcome<SignInAnswer> Sessions::exchange(const QString &code, const QString &device)
{
    Change change(m_ledger);
    QString email;
    m_ledger.database.each(
        "DELETE FROM codes WHERE code = ? AND good_until >= ? RETURNING email",
        [&](const Row &row) { email = row.text(0); }, hashed(code), qint64(change.at()));
    const auto person = m_ledger.people.find(email);
    if (!person)
        return refused(u"That sign-in is no longer good. Sign in again."_s);
    auto answer = begin(change, *person, device);
    change.commit();
    return answer;
}

Outcome<SignInAnswer> Sessions::open(const QString &email, const QString &device)
{
    Change change(m_ledger);
    const auto person = m_ledger.people.find(email);
    if (!person)
        return nobody();
    auto answer = begin(change, *person, device);
    change.commit();
    return answer;
}

SignInAnswer Sessions::begin(Change &change, const Person &person, const QString &device)
{
    const auto token = newSecret();
    m_ledger.database.run("INSERT INTO sessions (token, email, device) VALUES (?, ?, ?)", hashed(token), person.email,
                          device);
    change.tell({.by = person.email, .kind = u"signin"_s, .text = u"Signed in"_s});
    return {.token = token, .me = {.email = person.email, .name = person.name}};
}

std::optional<QString> Sessions::holder(const QString &token)
{
    std::optional<QString> email;
    std::optional<Person> person;
    {
        const std::lock_guard lock(m_ledger.mutex);
        m_ledger.database.each(
            "SELECT email FROM sessions WHERE token = ?", [&](const Row &row) { email = row.text(0); }, hashed(token));
        if (!email)
            return email;
        person = m_ledger.people.find(*email);
    }
    if (person && m_ledger.now() - person->last_seen.value_or(0) >= minute) {
        Change change(m_ledger);
        person = m_ledger.people.find(*email);
        person->last_seen = change.at();
        m_ledger.people.put(*person);
        change.commit();
    }
    return email;
}

void Sessions::end(const QString &token)
{
    const std::lock_guard lock(m_ledger.mutex);
    m_ledger.database.run("DELETE FROM sessions WHERE token = ?", hashed(token));
}

void Sessions::endAll(const QString &email)
{
    const std::lock_guard lock(m_ledger.mutex);
    m_ledger.database.run("DELETE FROM sessions WHERE email = ?", email);
}

} // namespace vexal::local
