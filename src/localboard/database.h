#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace vexal::local {

/// What the database could not do: a full disk, a file that is none, a folder that another board uses.
class DatabaseError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The row that a statement stands at. Columns count from 0.
class Row
{
public:
    explicit Row(sqlite3_stmt *statement)
        : m_statement(statement)
    {
    }

    QString text(int column) const;
    QByteArray bytes(int column) const;
    qint64 integer(int column) const;

private:
    sqlite3_stmt *m_statement;
};

/// Bytes that are bound as text: JSON, say.
struct Utf8
{
    const QByteArray &text;
};

/// One SQLite database that is ours alone, on disk or in memory. What has been committed survives the end of the
/// process, and of the machine, at any moment. Every operation throws DatabaseError. For one thread at a time.
class Database
{
public:
    /// Opens the file \a path, made if there is none; without a path a database in memory.
    explicit Database(const QString &path);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Runs one statement with \a values for its question marks.
    template <typename... Value>
    void run(const std::string &sql, const Value &...values)
    {
        each(
            sql, [](const Row &) {}, values...);
    }

    /// Runs one statement and calls \a visit with each row. \a visit must not run the same statement.
    template <typename Visit, typename... Value>
    void each(const std::string &sql, Visit visit, const Value &...values)
    {
        const Use use(*this, sql);
        int place = 0;
        (bind(use.statement, ++place, values), ...);
        while (step(use.statement))
            visit(Row(use.statement));
    }

    /// Whether the statement gives a row.
    template <typename... Value>
    bool has(const std::string &sql, const Value &...values)
    {
        bool found = false;
        each(
            sql, [&](const Row &) { found = true; }, values...);
        return found;
    }

    /// How many rows the last change touched.
    int changed() const;

private:
    /// A prepared statement while it is used.
    struct Use
    {
        Use(Database &database, const std::string &sql);
        ~Use();
        Use(const Use &) = delete;
        Use &operator=(const Use &) = delete;
        sqlite3_stmt *const statement;
    };

    sqlite3_stmt *prepared(const std::string &sql);
    void bind(sqlite3_stmt *statement, int place, const QString &text);
    void bind(sqlite3_stmt *statement, int place, const std::optional<QString> &text);
    void bind(sqlite3_stmt *statement, int place, Utf8 utf8);
    void bind(sqlite3_stmt *statement, int place, const QByteArray &bytes);
    void bind(sqlite3_stmt *statement, int place, qint64 number);
    bool step(sqlite3_stmt *statement);
    void check(int result) const;

    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_connection;
    std::map<std::string, std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)>> m_statements;
};

/// Changes that are kept together, by commit(), or not at all.
class Transaction
{
public:
    explicit Transaction(Database &database);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    Database &m_database;
    bool m_open = true;
};

} // namespace vexal::local
