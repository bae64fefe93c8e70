#include "tinyseed.h"

#include "encode.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

const QString mira = u"mira@lanternhouse.example"_s;
const QString teo = u"teo@lanternhouse.example"_s;

Page page(const QString &file, qint64 i)
{
    return {.i = i, .img = u"%1/%2.png"_s.arg(file, QString::number(i)), .px = QList<double>{300, 400}};
}

FileItem file(const QString &id, const QString &title, const QString &status, qint64 pages)
{
    FileItem file{.id = id,
                  .po = u"PO 2240"_s,
                  .title = title,
                  .component = u"Box lid"_s,
                  .supplier = u"Pellow Cartons"_s,
                  .filename = id + u".pdf"_s,
                  .page_count = pages,
                  .refs = QList{Ref{.role = u"submitted"_s, .matched = pages}},
                  .status = status,
                  .created = tinyNewest - 5000,
                  .rev = 4,
                  .pages = QList<Page>()};
    for (qint64 i = 0; i < pages; ++i)
        file.pages->append(page(id, i));
    return file;
}

Finding finding(const QString &id, const QString &fileId, qint64 page, const QString &kind, const QString &severity)
{
    return {.id = id,
            .file_id = fileId,
            .page = page,
            .against = u"submitted"_s,
            .kind = kind,
            .severity = severity,
            .title = u"“it is” reads “it’s”"_s,
            .before = u"OPEN WHEN IT IS DARK"_s,
            .after = u"OPEN WHEN IT’S DARK"_s,
            .box = Box{0.2, 0.3, 0.25, 0.1},
            .state = u"open"_s};
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

void paint(const QString &path, const QColor &color)
{
    QImage image(300, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).fillRect(60, 120, 75, 40, color);
    if (!image.save(path))
        qFatal("cannot write %s", qUtf8Printable(path));
}

QList<FileDetail> tinyInbox()
{
    return {{file(u"f3"_s, u"Moth Carnival"_s, u"new"_s, 1),
             {finding(u"c"_s, u"f3"_s, 0, u"words"_s, u"high"_s)},
             {Note{.id = u"n9"_s, .file_id = u"f3"_s, .text = u"Came with the proof"_s, .by = mira, .at = tinyNewest}}},
            {file(u"f4"_s, u"Little Harbor"_s, u"new"_s, 1), {}, {}}};
}

} // namespace

FileItem withoutPages(FileItem file)
{
    file.pages.reset();
    return file;
}

Sample tinySample()
{
    const auto f1 = file(u"f1"_s, u"A Letter by Owl"_s, u"new"_s, 2);
    const auto f2 = file(u"f2"_s, u"Tidepool"_s, u"reviewed"_s, 1);
    const FileDetail owl{f1,
                         {finding(u"a"_s, u"f1"_s, 0, u"words"_s, u"high"_s),
                          finding(u"b"_s, u"f1"_s, 1, u"breaks"_s, u"low"_s),
                          finding(u"x"_s, u"f1"_s, 1, u"expected"_s, u"low"_s)},
                         {Note{.id = u"n1"_s,
                               .file_id = u"f1"_s,
                               .page = 0,
                               .x = 0.5,
                               .y = 0.5,
                               .text = u"Warmer"_s,
                               .by = teo,
                               .at = tinyNewest}}};
    const BoardState board{
        .rev = 41,
        .me = {mira, u"Mira Lund"_s},
        .users = {{.email = mira, .name = u"Mira Lund"_s, .color = u"#7A4E9C"_s, .last_seen = tinyNewest},
                  {.email = teo, .name = u"Teo <Ott>"_s, .last_seen = tinyNewest - 9000}},
        .files = {withoutPages(f1), withoutPages(f2)},
        .reports = {{.id = u"r1"_s, .file_ids = {u"f1"_s}, .title = u"Owl"_s, .by = teo, .at = tinyNewest - 2000}},
        .events = {
            {.id = 3, .at = tinyNewest - 1000, .by = mira, .kind = u"status"_s, .text = u"Marked Tidepool reviewed"_s},
            {.id = 2, .at = tinyNewest - 2000, .kind = u"report_ready"_s},
            {.id = 1, .at = tinyNewest - 3000, .by = teo, .kind = u"signin"_s}}};
    return {board, {{u"f1"_s, owl}, {u"f2"_s, {f2, {}, {}}}}};
}

void writeTinySeed(const QString &folder)
{
    const QDir dir(folder);
    dir.mkpath(u"inbox"_s);
    write(dir.filePath(u"sample.json"_s), encode(tinySample()));
    for (const auto *name : {"f1_0.png", "f1_1.png", "f2_0.png"})
        paint(dir.filePath(QString::fromLatin1(name)), Qt::red);
    QByteArray details;
    for (const FileDetail &detail : tinyInbox())
        details += (details.isEmpty() ? "" : ",") + encode(detail);
    write(dir.filePath(u"inbox/inbox.json"_s), "{\"details\":[" + details + "]}");
    for (const auto *name : {"f3_0.png", "f4_0.png"})
        paint(dir.filePath(u"inbox/"_s + QString::fromLatin1(name)), Qt::blue);
}

} // namespace vexal
