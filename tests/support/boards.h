#pragma once

#include "board.h"

/// Records with only what a test says, everything else absent.
namespace vexal {

inline FileItem aFile(const QString &id, const QString &status = QStringLiteral("new"))
{
    FileItem file;
    file.id = id;
    file.status = status;
    return file;
}

inline Finding aFinding(const QString &id, qint64 page, const QString &severity)
{
    Finding finding;
    finding.id = id;
    finding.page = page;
    finding.severity = severity;
    finding.state = QStringLiteral("open");
    return finding;
}

/// The detail of a file of `pages` pages.
inline FileDetail aDetail(const QString &id, qint64 pages, const QList<Finding> &findings = {})
{
    FileDetail detail;
    detail.file = aFile(id);
    detail.file.pages.emplace();
    for (qint64 i = 0; i < pages; ++i) {
        Page page;
        page.i = i;
        detail.file.pages->append(page);
    }
    detail.findings = findings;
    return detail;
}

inline Job aJob(const QString &kind, const QString &status)
{
    Job job;
    job.id = kind + status;
    job.kind = kind;
    job.status = status;
    return job;
}

inline Person aPerson(const QString &email, const QString &name)
{
    Person person;
    person.email = email;
    person.name = name;
    return person;
}

/// A board of these files, seen by Ada.
inline BoardState aBoard(const QList<FileItem> &files = {}, qint64 rev = 1)
{
    BoardState board;
    board.rev = rev;
    board.me = {QStringLiteral("ada@lanternhouse.example"), QStringLiteral("Ada Byron")};
    board.files = files;
    return board;
}

} // namespace vexal
