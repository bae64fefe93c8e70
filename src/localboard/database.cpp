#include "database.h"

#include <QFile>

#include <sqlite3.h>

namespace vexal::local {

QString Row::text(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_statement, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(m_statement, column));
}

QByteArray Row::bytes(int column) const
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(m_statement, column));
    return {bytes, sqlite3_column_bytes(m_statement, column)};
}

qint64 Row::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

Database::Database(const QString &path)
    : m_connection(nullptr, sqlite3_close)
{
    sqlite3 *connection = nullptr;
    const auto name = path.isEmpty() ? QByteArray(":memory:") : QFile::encodeName(path);
    const int result = sqlite3_open_v2(name.constData(), &connection,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    m_connection.reset(connection);
    check(result);
    // Held exclusively, so that a second board on the same folder is refused instead of both going astray.
    run("PRAGMA locking_mode = EXCLUSIVE");
    run("PRAGMA journal_mode = WAL");
    run("PRAGMA synchronous = FULL");
    run("PRAGMA journal_size_limit = 4000000"); // planting a seed makes the log large once
    run("PRAGMA foreign_keys = ON");
    const Transaction claim(*this);
}

Database::~Database() = default;

int Database::changed() const
{
    return sqlite3_changes(m_connection.get());
}

Database::Use::Use(Database &database, const std::string &sql)
    : statement(database.prepared(sql))
{
}

Database::Use::~Use()
{
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
}

sqlite3_stmt *Database::prepared(const std::string &sql)
{
    if (const auto known = m_statements.find(sql); known != m_statements.end())
        return known->second.get();
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v3(m_connection.get(), sql.c_str(), int(sql.size()), SQLITE_PREPARE_PERSISTENT, &statement,
                             nullptr));
    m_statements.try_emplace(sql, statement, sqlite3_finalize);
    return statement;
}

void Database::bind(sqlite3_stmt *statement, int place, const QString &text)
{
    bind(statement, place, Utf8{text.toUtf8()});
}

void Database::bind(sqlite3_stmt *statement, int place, const std::optional<QString> &text)
{
    if (text)
        bind(statement, place, *text);
}

void Database::bind(sqlite3_stmt *statement, int place, Utf8 utf8)
{
    check(sqlite3_bind_text64(statement, place, utf8.text.constData(), sqlite3_uint64(utf8.text.size()),
                              SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Database::bind(sqlite3_stmt *statement, int place, const QByteArray &bytes)
{
    check(sqlite3_bind_blob64(statement, place, bytes.constData(), sqlite3_uint64(bytes.size()), SQLITE_TRANSIENT));
}

void Database::bind(sqlite3_stmt *statement, int place, qint64 number)
{
    check(sqlite3_bind_int64(statement, place, number));
}

bool Database::step(sqlite3_stmt *statement)
{
    const int result = sqlite3_step(statement);
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        check(result);
    return false;
}

void Database::check(int result) const
{
    if (result == SQLITE_OK)
        return;
    if (result == SQLITE_BUSY)
        throw DatabaseError("another board is using it");
    throw DatabaseError(m_connection ? sqlite3_errmsg(m_connection.get()) : sqlite3_errstr(result));
}

Transaction::Transaction(Database &database)
    : m_database(database)
{
    m_database.run("BEGIN EXCLUSIVE");
}

Transaction::~Transaction()
{
    if (!m_open)
        return;
    try {
        m_database.run("ROLLBACK");
    } catch (const DatabaseError &) {
        // a failed commit has rolled back by itself
        m_open = false;
    }
}

void Transaction::commit()
{
    m_database.run("COMMIT");
    m_open = false;
}

} // namespace vexal::local
