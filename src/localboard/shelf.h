#pragma once

#include "board.h"
#include "database.h"
#include "decode.h"
#include "encode.h"

namespace vexal::local {

/// By what a record is found on its shelf.
template <Record R>
QString idOf(const R &record)
{
    return record.id;
}
inline QString idOf(const Person &person)
{
    return person.email;
}
inline QString idOf(const Event &event)
{
    return QString::number(event.id);
}
inline QString idOf(const FileDetail &detail)
{
    return detail.file.id;
}

/// The file that a record belongs to, if it belongs to one.
template <Record R>
std::optional<QString> fileOf(const R &)
{
    return std::nullopt;
}
inline std::optional<QString> fileOf(const Finding &finding)
{
    return finding.file_id;
}
inline std::optional<QString> fileOf(const Note &note)
{
    return note.file_id;
}

/// A table of records of one kind, each kept as its JSON, in the order in which they were first put there. Documents
/// are made of that JSON as it stands; only what is changed is decoded.
template <Record R>
class Shelf
{
public:
    Shelf(Database &database, const std::string &table)
        : m_database(database)
        , m_table(table)
    {
    }

    void create()
    {
        m_database.run("CREATE TABLE " + m_table +
                       " (place INTEGER PRIMARY KEY, id TEXT NOT NULL UNIQUE, file_id TEXT, json TEXT NOT NULL)");
        m_database.run("CREATE INDEX " + m_table + "_of_file ON " + m_table + " (file_id)");
    }

    /// The record of the id \a id, if it is here.
    std::optional<R> find(const QString &id) const { return first("WHERE id = ?", id); }

    /// Puts \a record here, in the place of the one with the same id where there is one.
    void put(const R &record)
    {
        m_database.run("INSERT INTO " + m_table +
                           " (id, file_id, json) VALUES (?, ?, ?) ON CONFLICT (id) DO UPDATE SET json = excluded.json",
                       idOf(record), fileOf(record), Utf8{encode(record)});
    }

    void remove(const QString &id) { m_database.run("DELETE FROM " + m_table + " WHERE id = ?", id); }

    bool isEmpty() const { return !m_database.has("SELECT 1 FROM " + m_table + " LIMIT 1"); }

    /// The first record that \a condition (SQL after the table's name) with \a values gives.
    template <typename... Value>
    std::optional<R> first(const std::string &condition, const Value &...values) const
    {
        const auto found = all(condition + " LIMIT 1", values...);
        return found.isEmpty() ? std::nullopt : std::optional(found.first());
    }

    /// All records that \a condition (SQL after the table's name) with \a values gives.
    template <typename... Value>
    QList<R> all(const std::string &condition, const Value &...values) const
    {
        QList<R> records;
        m_database.each(
            "SELECT json FROM " + m_table + ' ' + condition,
            [&](const Row &row) {
                auto record = decode<R>(row.bytes(0));
                if (!record)
                    throw DatabaseError(m_table + ": " + record.error.text().toStdString());
                records.append(*std::move(record));
            },
            values...);
        return records;
    }

    /// The records of the file \a fileId, oldest first.
    QList<R> ofFile(const QString &fileId) const { return all("WHERE file_id = ? ORDER BY place", fileId); }

    /// The records that \a condition with \a values gives, as a JSON list.
    template <typename... Value>
    QByteArray list(const std::string &condition, const Value &...values) const
    {
        return listOf("json", condition, values...);
    }

    /// The same, each record without its field \a key.
    template <typename... Value>
    QByteArray listWithout(const std::string &key, const std::string &condition, const Value &...values) const
    {
        return listOf("json_remove(json, '$." + key + "')", condition, values...);
    }

private:
    template <typename... Value>
    QByteArray listOf(const std::string &json, const std::string &condition, const Value &...values) const
    {
        QByteArray list = "[";
        m_database.each(
            "SELECT " + json + " FROM " + m_table + ' ' + condition,
            [&](const Row &row) { list += (list.size() > 1 ? "," : "") + row.bytes(0); }, values...);
        return list + ']';
    }

    Database &m_database;
    std::string m_table;
};

} // namespace vexal::local
