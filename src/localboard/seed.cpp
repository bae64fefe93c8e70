#include "seed.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

std::optional<QByteArray> contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

QList<Seed::Picture> picturesIn(const QDir &folder)
{
    QList<Seed::Picture> pictures;
    for (const QString &name : folder.entryList({u"*.jpg"_s, u"*.png"_s}, QDir::Files | QDir::CaseSensitive))
        pictures.append({QString(name).replace(u'_', u'/'), folder.filePath(name)});
    return pictures;
}

Outcome<QList<FileDetail>> readInbox(const QString &path)
{
    const auto bytes = contents(path);
    if (!bytes)
        return QList<FileDetail>();
    const auto document = QJsonDocument::fromJson(*bytes);
    const auto details = document.object().value("details"_L1);
    if (!details.isArray())
        return refused(path + u": no list of details"_s);
    QList<FileDetail> inbox;
    for (const auto &each : details.toArray()) {
        auto detail = decode<FileDetail>(QJsonDocument(each.toObject()).toJson(QJsonDocument::Compact));
        if (!detail)
            return refused(u"%1: details[%2].%3"_s.arg(path, QString::number(inbox.size()), detail.error.text()));
        inbox.append(*std::move(detail));
    }
    return inbox;
}

template <typename R>
QList<R> oldestFirst(QList<R> records, std::optional<double> R::*time)
{
    std::stable_sort(records.begin(), records.end(),
                     [time](const R &a, const R &b) { return (a.*time).value_or(0) < (b.*time).value_or(0); });
    return records;
}

QList<Event> oldestFirst(QList<Event> events)
{
    std::stable_sort(events.begin(), events.end(), [](const Event &a, const Event &b) { return a.id < b.id; });
    return events;
}

void plantFiles(const Sample &sample, Ledger &ledger)
{
    // The newest stands first on the board, so the last goes in first.
    for (auto file = sample.board.files.crbegin(); file != sample.board.files.crend(); ++file) {
        const auto detail = sample.details.value(file->id);
        for (const Finding &finding : detail.findings)
            ledger.findings.put(finding);
        for (const Note &note : detail.comments)
            ledger.notes.put(note);
        auto whole = *file;
        if (!whole.pages)
            whole.pages = detail.file.pages;
        ledger.files.put(whole);
    }
}

void plantPictures(const QList<Seed::Picture> &pictures, Ledger &ledger)
{
    for (const auto &[key, path] : pictures) {
        if (const auto bytes = contents(path))
            ledger.putBlob(key, *bytes);
    }
}

} // namespace

Outcome<Seed> readSeed(const QString &folder)
{
    const QDir dir(folder);
    const auto bytes = contents(dir.filePath(u"sample.json"_s));
    if (!bytes)
        return refused(dir.filePath(u"sample.json"_s) + u": cannot be read"_s);
    auto sample = decode<Sample>(*bytes);
    if (!sample)
        return refused(dir.filePath(u"sample.json"_s) + u": "_s + sample.error.text());
    const QDir inboxDir(dir.filePath(u"inbox"_s));
    const auto inbox = readInbox(inboxDir.filePath(u"inbox.json"_s));
    if (!inbox)
        return inbox.refusal();
    return Seed{*std::move(sample), *inbox, picturesIn(dir) + picturesIn(inboxDir)};
}

void plant(const Seed &seed, Ledger &ledger)
{
    Change change(ledger);
    const auto &board = seed.sample.board;
    for (const Person &person : board.users)
        ledger.people.put(person);
    plantFiles(seed.sample, ledger);
    for (const Job &job : oldestFirst(board.jobs, &Job::created))
        ledger.jobs.put(job);
    if (board.sync)
        ledger.jobs.put(*board.sync);
    for (const Report &report : oldestFirst(board.reports, &Report::at))
        ledger.reports.put(report);
    for (const Event &event : oldestFirst(board.events))
        ledger.events.put(event);
    for (const FileDetail &detail : seed.inbox)
        ledger.inbox.put(detail);
    plantPictures(seed.pictures, ledger);
    ledger.rev = board.rev;
    change.commit();
}

} // namespace vexal::local
