#pragma once

#include "fields.h"
#include "hash.h"

#include <QList>
#include <QMap>
#include <QString>

#include <optional>

/// The records of the board, exactly as the server sends them. A field's name is its key on the wire; a field that is
/// not optional must be there. Every time is a number of milliseconds since 1970-01-01 00:00 UTC.
namespace vexal {

/// Four fractions of a page: x, y, width, height, from the top left corner. A list of another length is no box.
using Box = QList<double>;

/// The signed-in user as the server knows them.
struct Me
{
    QString email;
    QString name;
    bool operator==(const Me &) const = default;
};
VEXAL_FIELDS(Me, email, name)

/// A user of the board, known by the e-mail address.
struct Person
{
    QString email;
    QString name;
    std::optional<QString> photo; ///< Blob key of the profile photo.
    std::optional<QString> color;
    std::optional<double> last_seen;
    bool operator==(const Person &) const = default;
};
VEXAL_FIELDS(Person, email, name, photo, color, last_seen)

/// Outside links of a file.
struct Links
{
    std::optional<QString> gmail;
    std::optional<QString> drive;
    std::optional<QString> drive_folder;
    std::optional<QString> indd;
    std::optional<QString> indd_name;
    bool operator==(const Links &) const = default;
};
VEXAL_FIELDS(Links, gmail, drive, drive_folder, indd, indd_name)

/// One of our files matched to a supplier file.
struct Ref
{
    QString role; ///< "submitted" (what we sent) or "latest" (the last print).
    std::optional<QString> name;
    std::optional<QString> link;
    std::optional<qint64> page_count;
    std::optional<qint64> matched; ///< How many of the supplier's pages were matched to it.
    std::optional<QString> note;
    bool operator==(const Ref &) const = default;
};
VEXAL_FIELDS(Ref, role, name, link, page_count, matched, note)

/// Numbers of findings of a file, by severity.
struct Counts
{
    std::optional<qint64> pages;
    std::optional<qint64> high;
    std::optional<qint64> medium;
    std::optional<qint64> low;
    std::optional<qint64> expected;
    std::optional<qint64> shown;
    bool operator==(const Counts &) const = default;
};
VEXAL_FIELDS(Counts, pages, high, medium, low, expected, shown)

/// How far the review of a file has come.
struct Tally
{
    std::optional<qint64> open;
    std::optional<qint64> issues;
    std::optional<qint64> total;
    bool operator==(const Tally &) const = default;
};
VEXAL_FIELDS(Tally, open, issues, total)

/// The page of one of our files that matches a supplier page.
struct RefPage
{
    std::optional<qint64> i;
    std::optional<QString> label;
    std::optional<QString> img;
    std::optional<QList<double>> px; ///< Pixel size of the image: width, height.
    std::optional<double> score;
    std::optional<QString> how;
    bool operator==(const RefPage &) const = default;
};
VEXAL_FIELDS(RefPage, i, label, img, px, score, how)

/// One page of a supplier file, known within it by `i`.
struct Page
{
    qint64 i = 0; ///< Index within the file, from 0.
    std::optional<QString> label;
    std::optional<double> w;
    std::optional<double> h;
    std::optional<QString> img;
    std::optional<QString> thumb;
    std::optional<QList<double>> px;            ///< Pixel size of the image: width, height.
    std::optional<QMap<QString, RefPage>> refs; ///< Matching page of each of our files, by `Ref::role`.
    std::optional<bool> ocr;                    ///< The page's text was read from its picture.
    bool operator==(const Page &) const = default;
};
VEXAL_FIELDS(Page, i, label, w, h, img, thumb, px, refs, ocr)

/// One supplier proof file.
struct FileItem
{
    QString id;
    std::optional<QString> key;
    std::optional<QString> po;
    std::optional<QString> title;
    std::optional<QString> component;
    std::optional<QString> supplier;
    std::optional<QString> filename;
    std::optional<QString> kind;
    std::optional<QString> sender;
    std::optional<double> received;
    std::optional<qint64> page_count;
    std::optional<Links> links;
    std::optional<QList<Ref>> refs;
    std::optional<QString> summary;
    std::optional<Counts> counts;
    QString status; ///< "new", "in_review" or "reviewed".
    std::optional<QString> status_by;
    std::optional<double> status_at;
    std::optional<double> created;
    std::optional<qint64> rev;
    std::optional<QString> thumb;
    std::optional<Tally> tally;
    std::optional<QList<Page>> pages;
    bool operator==(const FileItem &) const = default;
};
VEXAL_FIELDS(FileItem, id, key, po, title, component, supplier, filename, kind, sender, received, page_count, links,
             refs, summary, counts, status, status_by, status_at, created, rev, thumb, tally, pages)

/// One automated check result on a page.
struct Finding
{
    QString id;
    QString file_id;
    qint64 page = 0;
    QString against;  ///< Role of our file that it compares with.
    QString kind;     ///< "words", "breaks", "fonts", ...; "expected" and "pass" are no problems.
    QString severity; ///< "high", "medium" or "low".
    QString title;
    std::optional<QString> detail;
    std::optional<QString> before;
    std::optional<QString> after;
    std::optional<Box> box;          ///< Place on the supplier page.
    std::optional<Box> ref_box;      ///< Place on our page.
    std::optional<QList<Box>> boxes; ///< Further places of the same finding.
    QString state;                   ///< "open", "issue" or "fine".
    std::optional<QString> state_by;
    std::optional<double> state_at;
    std::optional<qint64> ord;
    bool operator==(const Finding &) const = default;
};
VEXAL_FIELDS(Finding, id, file_id, page, against, kind, severity, title, detail, before, after, box, ref_box, boxes,
             state, state_by, state_at, ord)

/// One person's note: on a page, pinned at a point, on a finding, or (without a page) on the whole file.
struct Note
{
    QString id;
    QString file_id;
    std::optional<qint64> page;
    std::optional<double> x; ///< Place of the pin, as fractions of the page.
    std::optional<double> y;
    std::optional<QString> finding_id;
    QString text;
    QString by;
    double at = 0;
    std::optional<double> edited;
    std::optional<qint64> resolved; ///< Present and not 0 when resolved.
    std::optional<QString> resolved_by;
    bool operator==(const Note &) const = default;
};
VEXAL_FIELDS(Note, id, file_id, page, x, y, finding_id, text, by, at, edited, resolved, resolved_by)

/// Everything about one file.
struct FileDetail
{
    FileItem file;
    QList<Finding> findings;
    QList<Note> comments;
    bool operator==(const FileDetail &) const = default;
};
VEXAL_FIELDS(FileDetail, file, findings, comments)

/// What a sync did, as lines for people.
struct Summary
{
    std::optional<QList<QString>> done;
    std::optional<QList<QString>> changed;
    std::optional<QList<QString>> check;
    bool operator==(const Summary &) const = default;
};
VEXAL_FIELDS(Summary, done, changed, check)

/// The outcome of a job.
struct JobResult
{
    std::optional<qint64> new_files;
    std::optional<QString> report_id;
    std::optional<QString> drive_link;
    std::optional<double> cost;
    bool operator==(const JobResult &) const = default;
};
VEXAL_FIELDS(JobResult, new_files, report_id, drive_link, cost)

/// The arguments of a job.
struct JobArgs
{
    std::optional<QList<QString>> file_ids; ///< The files that a report covers.
    bool operator==(const JobArgs &) const = default;
};
VEXAL_FIELDS(JobArgs, file_ids)

/// A job of the worker machine.
struct Job
{
    QString id;
    QString kind;   ///< "sync" or "report".
    QString status; ///< "queued", "running", "stuck", "done", "failed" or "stopped".
    std::optional<QString> requested_by;
    std::optional<double> created;
    std::optional<double> started;
    std::optional<double> finished;
    std::optional<double> beat; ///< The worker's last sign of life.
    std::optional<QString> step;
    std::optional<QList<QString>> steps;
    std::optional<Summary> summary;
    std::optional<JobResult> result;
    std::optional<JobArgs> args;
    bool operator==(const Job &) const = default;
};
VEXAL_FIELDS(Job, id, kind, status, requested_by, created, started, finished, beat, step, steps, summary, result, args)

/// A generated PDF report.
struct Report
{
    QString id;
    std::optional<QString> job_id;
    QList<QString> file_ids;
    std::optional<QString> title;
    std::optional<qint64> size; ///< Bytes of the PDF.
    std::optional<QString> drive_link;
    std::optional<QString> by;
    std::optional<double> at;
    bool operator==(const Report &) const = default;
};
VEXAL_FIELDS(Report, id, job_id, file_ids, title, size, drive_link, by, at)

/// One line of the activity log.
struct Event
{
    qint64 id = 0;
    double at = 0;
    std::optional<QString> by;
    QString kind;
    std::optional<QString> file_id;
    std::optional<qint64> page;
    std::optional<QString> text;
    bool operator==(const Event &) const = default;
};
VEXAL_FIELDS(Event, id, at, by, kind, file_id, page, text)

/// The server's whole picture of the review work.
struct BoardState
{
    qint64 rev = 0;
    Me me;
    QList<Person> users;
    QList<FileItem> files;
    std::optional<Job> sync; ///< The latest sync, if any.
    QList<Job> jobs;
    QList<Report> reports;
    QList<Event> events;
    bool operator==(const BoardState &) const = default;
};
VEXAL_FIELDS(BoardState, rev, me, users, files, sync, jobs, reports, events)

/// The newest released client.
struct VersionInfo
{
    QString version;
    qint64 build = 0;
    QString url;
    std::optional<QString> notes;
    bool operator==(const VersionInfo &) const = default;
};
VEXAL_FIELDS(VersionInfo, version, build, url, notes)

/// What the server gives for the one-time code of a sign-in.
struct SignInAnswer
{
    QString token;
    Me me;
    bool operator==(const SignInAnswer &) const = default;
};
VEXAL_FIELDS(SignInAnswer, token, me)

/// The file "sample.json" of a sample folder: a board and the detail of each of its files.
struct Sample
{
    BoardState board;
    QMap<QString, FileDetail> details;
    bool operator==(const Sample &) const = default;
};
VEXAL_FIELDS(Sample, board, details)

/// Says \a then(Record) for each record above.
#define VEXAL_EACH_RECORD(then)                                                                                        \
    then(Me) then(Person) then(Links) then(Ref) then(Counts) then(Tally) then(RefPage) then(Page) then(FileItem)       \
        then(Finding) then(Note) then(FileDetail) then(Summary) then(JobResult) then(JobArgs) then(Job) then(Report)   \
            then(Event) then(BoardState) then(VersionInfo) then(SignInAnswer) then(Sample)

} // namespace vexal
