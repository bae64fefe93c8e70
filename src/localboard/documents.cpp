#include "documents.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

// Jobs in line are bounded below this, so that none under way is left out.
constexpr qint64 recentJobs = 40;
constexpr qint64 recentReports = 100;
constexpr qint64 recentEvents = 200;

/// Whether \a held, the value of an If-None-Match, names \a tag.
bool names(const QByteArray &held, const QByteArray &tag)
{
    const auto tags = held.split(',');
    return std::any_of(tags.begin(), tags.end(), [&](const QByteArray &each) {
        const auto one = each.trimmed();
        return one == tag || one == "*" || one == "W/" + tag;
    });
}

QByteArray field(const char *key, const QByteArray &json)
{
    return '"' + QByteArray(key) + "\":" + json;
}

} // namespace

Document Documents::state(const QString &email, const QByteArray &held)
{
    const std::lock_guard lock(m_ledger.mutex);
    const auto reader = QCryptographicHash::hash(email.toUtf8(), QCryptographicHash::Sha256).toHex().first(8);
    Document document{.tag = '"' + m_ledger.edition + '-' + QByteArray::number(m_ledger.rev) + '-' + reader + '"'};
    document.isHeld = names(held, document.tag);
    if (document.isHeld)
        return document;

    const auto person = m_ledger.people.find(email).value_or(Person{.email = email, .name = email});
    const auto sync = m_ledger.jobs.first("WHERE json ->> 'kind' = 'sync' ORDER BY place DESC");
    QByteArrayList fields = {
        field("rev", QByteArray::number(m_ledger.rev)),
        field("me", encode(Me{person.email, person.name})),
        field("users", m_ledger.people.list("ORDER BY place")),
        field("files", m_ledger.files.listWithout("pages", "ORDER BY place DESC")),
        field("jobs", m_ledger.jobs.list("ORDER BY place DESC LIMIT ?", recentJobs)),
        field("reports", m_ledger.reports.list("ORDER BY place DESC LIMIT ?", recentReports)),
        field("events", m_ledger.events.list("ORDER BY place DESC LIMIT ?", recentEvents)),
    };
    if (sync)
        fields.append(field("sync", encode(*sync)));
    document.json = '{' + fields.join(',') + '}';
    return document;
}

Outcome<Document> Documents::detail(const QString &id, const QByteArray &held)
{
    const std::lock_guard lock(m_ledger.mutex);
    const auto file = m_ledger.files.find(id);
    if (!file)
        return unknown(u"That file isn't on the board."_s);
    Document document{.tag = '"' + m_ledger.edition + "-f" + QByteArray::number(file->rev.value_or(0)) + '"'};
    document.isHeld = names(held, document.tag);
    if (document.isHeld)
        return document;
    const QByteArrayList fields = {
        field("file", encode(*file)),
        field("findings", m_ledger.findings.list("WHERE file_id = ? ORDER BY place", id)),
        field("comments", m_ledger.notes.list("WHERE file_id = ? ORDER BY place", id)),
    };
    document.json = '{' + fields.join(',') + '}';
    return document;
}

Outcome<QByteArray> Documents::blob(const QString &key)
{
    const std::lock_guard lock(m_ledger.mutex);
    const auto bytes = m_ledger.blob(key);
    if (!bytes)
        return unknown(u"That picture isn't on the board."_s);
    return *bytes;
}

QList<Person> Documents::people()
{
    const std::lock_guard lock(m_ledger.mutex);
    return m_ledger.people.all("ORDER BY place");
}

} // namespace vexal::local
