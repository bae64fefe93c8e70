#include "encode.h"
#include "office.h"
#include "press.h"
#include "titles.h"

#include <QDir>
#include <QGuiApplication>
#include <QSaveFile>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

QList<sample::FilePlan> onTheBoard()
{
    return {sample::lanternFox(), sample::mothCarnival(),     sample::owlLetter(),      sample::littleHarbor(),
            sample::bookmarks(),  sample::skyOfKites(),       sample::slowPost(),       sample::moonGarden(),
            sample::tidepool(),   sample::breadForTheGiant(), sample::lighthouseSongs()};
}

QList<sample::FilePlan> onTheirWay()
{
    return {sample::winterTram(), sample::mothCarnivalBase()};
}

/// The board tells of each file all but its pages: those come with its detail.
FileItem withoutPages(FileItem file)
{
    file.pages.reset();
    return file;
}

Sample sampleOf(const QList<FileDetail> &details)
{
    Sample out;
    out.board.rev = 118;
    out.board.me = sample::me();
    out.board.users = sample::people();
    out.board.sync = sample::lastSync();
    out.board.jobs = sample::jobs();
    out.board.reports = sample::reports();
    out.board.events = sample::events();
    for (const FileDetail &detail : details) {
        out.board.files.append(withoutPages(detail.file));
        out.details.insert(detail.file.id, detail);
    }
    return out;
}

bool write(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

bool writeSample(const QString &folder)
{
    const auto details = sample::press(onTheBoard(), folder);
    return details && sample::writePhotos(folder) && write(folder + u"/sample.json"_s, encode(sampleOf(*details)));
}

/// The folder of what a sync will bring: "inbox.json" with a list of details under "details", and their pictures.
bool writeInbox(const QString &folder)
{
    const auto details = sample::press(onTheirWay(), folder);
    if (!details)
        return false;
    QByteArrayList records;
    for (const FileDetail &detail : *details)
        records.append(encode(detail));
    return write(folder + u"/inbox.json"_s, "{\"details\":[" + records.join(',') + "]}");
}

} // namespace

/// make-sample FOLDER: writes the sample board into the folder, the same bytes on every run.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // it paints into memory only
    const QGuiApplication app(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 2) {
        errors << "usage: make-sample FOLDER" << Qt::endl;
        return 2;
    }
    const QString &folder = arguments.at(1);
    if (QDir().mkpath(folder + u"/inbox"_s) && writeSample(folder) && writeInbox(folder + u"/inbox"_s))
        return 0;
    errors << "The sample board is not complete in " << folder << Qt::endl;
    return 1;
}
