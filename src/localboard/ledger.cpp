#include "ledger.h"

#include "derived.h"

#include <QRandomGenerator>

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

/// Stands in the file; a file that says something else was made by another version of this program.
constexpr qint64 layout = 1;

QByteArray randomHex()
{
    return QByteArray::number(QRandomGenerator::system()->generate64(), 16);
}

} // namespace

Ledger::Ledger(const QString &path, Now now_)
    : now(std::move(now_))
    , database(path)
    , people(database, "people")
    , files(database, "files")
    , findings(database, "findings")
    , notes(database, "notes")
    , jobs(database, "jobs")
    , reports(database, "reports")
    , events(database, "events")
    , inbox(database, "inbox")
{
    qint64 found = 0;
    database.each("PRAGMA user_version", [&](const Row &row) { found = row.integer(0); });
    if (found == 0)
        create();
    else if (found != layout)
        throw DatabaseError("another version of this program made it");
    database.each("SELECT rev, edition FROM board", [this](const Row &row) {
        rev = row.integer(0);
        edition = row.bytes(1);
    });
}

void Ledger::create()
{
    Transaction transaction(database);
    people.create();
    files.create();
    findings.create();
    notes.create();
    jobs.create();
    reports.create();
    events.create();
    inbox.create();
    database.run("CREATE TABLE blobs (key TEXT PRIMARY KEY, bytes BLOB NOT NULL)");
    database.run("CREATE TABLE sessions (token BLOB PRIMARY KEY, email TEXT NOT NULL, device TEXT NOT NULL)");
    database.run("CREATE TABLE codes (code BLOB PRIMARY KEY, email TEXT NOT NULL, good_until INTEGER NOT NULL)");
    database.run("CREATE TABLE board (rev INTEGER NOT NULL, edition TEXT NOT NULL)");
    database.run("INSERT INTO board (rev, edition) VALUES (0, ?)", Utf8{randomHex()});
    database.run("PRAGMA user_version = " + std::to_string(layout));
    transaction.commit();
}

void Ledger::putBlob(const QString &key, const QByteArray &bytes)
{
    database.run("INSERT OR REPLACE INTO blobs (key, bytes) VALUES (?, ?)", key, bytes);
}

void Ledger::removeBlob(const QString &key)
{
    database.run("DELETE FROM blobs WHERE key = ?", key);
}

std::optional<QByteArray> Ledger::blob(const QString &key)
{
    std::optional<QByteArray> bytes;
    database.each(
        "SELECT bytes FROM blobs WHERE key = ?", [&](const Row &row) { bytes = row.bytes(0); }, key);
    return bytes;
}

Change::Change(Ledger &ledger)
    : m_lock(ledger.mutex)
    , m_ledger(ledger)
    , m_transaction(ledger.database)
    , m_at(ledger.now())
{
}

void Change::tell(Event event)
{
    const auto last = m_ledger.events.first("ORDER BY place DESC");
    event.id = last ? last->id + 1 : 1;
    event.at = m_at;
    m_ledger.events.put(event);
    auto person = m_ledger.people.find(event.by.value_or(QString()));
    if (!person)
        return;
    person->last_seen = m_at;
    m_ledger.people.put(*person);
}

void Change::keep(FileItem &file)
{
    file.rev = file.rev.value_or(0) + 1;
    file.tally = tallyOf(m_ledger.findings.ofFile(file.id));
    m_ledger.files.put(file);
}

void Change::commit()
{
    m_ledger.database.run("UPDATE board SET rev = ?", m_ledger.rev + 1);
    m_transaction.commit();
    ++m_ledger.rev;
}

Tally tallyOf(const QList<Finding> &findings)
{
    Tally tally{.open = 0, .issues = 0, .total = findings.size()};
    for (const Finding &finding : findings) {
        tally.open = *tally.open + (!isSettled(finding) && finding.state == "open"_L1);
        tally.issues = *tally.issues + (finding.state == "issue"_L1);
    }
    return tally;
}

QString newId(const char *prefix)
{
    return QLatin1StringView(prefix) + QString::fromLatin1(randomHex());
}

} // namespace vexal::local
