#pragma once

#include "shelf.h"

#include <functional>
#include <mutex>

namespace vexal::local {

/// Everything that the board keeps. Whoever reads or writes it holds `mutex`; whoever changes it does so by a Change.
/// Throws DatabaseError.
struct Ledger
{
    /// Milliseconds since 1970-01-01 00:00 UTC.
    using Now = std::function<double()>;

    /// Opens the ledger in the file \a path, made if there is none; without a path in memory.
    Ledger(const QString &path, Now now);

    std::mutex mutex;
    Now now;
    Database database;
    Shelf<Person> people;
    Shelf<FileItem> files;
    Shelf<Finding> findings;
    Shelf<Note> notes;
    Shelf<Job> jobs;
    Shelf<Report> reports;
    Shelf<Event> events;
    Shelf<FileDetail> inbox; ///< Proofs that have not come in yet.
    qint64 rev = 0;          ///< Revision of the board.
    QByteArray edition;      ///< Tells this ledger from every other one that counts its revisions alike.

    /// Keeps \a bytes (a picture, a PDF) under \a key, of which any text makes a good one.
    void putBlob(const QString &key, const QByteArray &bytes);
    void removeBlob(const QString &key);
    std::optional<QByteArray> blob(const QString &key);

private:
    void create();
};

/// One change of the board: kept whole by commit() or not at all, counted by the board's revision, told by events.
class Change
{
public:
    /// Takes the ledger's lock and holds it for its life.
    explicit Change(Ledger &ledger);

    /// When it happens.
    double at() const { return m_at; }

    /// Adds \a event to the activity log, under the next id and at this time. Its `by` was seen now.
    void tell(Event event);

    /// Keeps \a file in its next revision, with the tally that its findings give.
    void keep(FileItem &file);

    /// Keeps all of it. From then on it survives whatever happens.
    void commit();

private:
    std::unique_lock<std::mutex> m_lock;
    Ledger &m_ledger;
    Transaction m_transaction;
    const double m_at;
};

/// How far the review of \a findings has come. Open are those that are work.
Tally tallyOf(const QList<Finding> &findings);

/// An id that no other record has.
QString newId(const char *prefix);

} // namespace vexal::local
