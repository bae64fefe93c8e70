#include "office.h"

#include "leaf.h"
#include "people.h"
#include "plan.h"
#include "portrait.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

const QString miraPhoto = u"people/mira.jpg"_s;
const QString anselmPhoto = u"people/anselm.jpg"_s;

bool writePhoto(const QString &folder, const QString &key, const Sitter &sitter)
{
    QImage photo(512, 512, QImage::Format_RGB32);
    {
        Canvas canvas(&photo);
        portrait(canvas, 512, sitter);
    }
    return photo.save(folder + u'/' + fileOfKey(key), "JPG", 88);
}

} // namespace

double now()
{
    return moment(20, 15, 42);
}

Me me()
{
    return {who::lin(), u"Lin Sato"_s};
}

QList<Person> people()
{
    return {{who::mira(), u"Mira Halden"_s, miraPhoto, u"#7A4E9C"_s, moment(20, 15, 40)},
            {who::teo(), u"Teo Brandt"_s, {}, u"#2C6E75"_s, moment(20, 15, 33)},
            {who::anselm(), u"Anselm Okoro"_s, anselmPhoto, u"#8A6A2C"_s, moment(20, 15, 22)},
            {who::lin(), u"Lin Sato"_s, {}, u"#A5445C"_s, now()},
            {u"petra@lanternhouse.example"_s, u"Petra"_s, {}, {}, {}}};
}

bool writePhotos(const QString &folder)
{
    const Sitter mira{ink(0x9A76B8), ink(0xE8B48C), ink(0x4A2A22), ink(0x2F5F6E), true, false, false};
    const Sitter anselm{ink(0xC79A3E), ink(0x9A6242), ink(0x2A1D1A), ink(0x3E5C4A), false, true, true};
    return writePhoto(folder, miraPhoto, mira) && writePhoto(folder, anselmPhoto, anselm);
}

Job lastSync()
{
    Job sync;
    sync.id = u"job-118"_s;
    sync.kind = u"sync"_s;
    sync.status = u"done"_s;
    sync.requested_by = who::teo();
    sync.created = moment(20, 14, 52);
    sync.started = moment(20, 14, 53);
    sync.finished = moment(20, 15, 0);
    sync.beat = moment(20, 15, 0);
    sync.steps = {u"Read 14 mails from suppliers"_s,
                  u"Found 3 new proofs in the mail"_s,
                  u"Filed them to Drive"_s,
                  u"Matched A Letter by Owl to our card"_s,
                  u"Matched Moth Carnival to our lid"_s,
                  u"Checked A Letter by Owl, 2 pages"_s,
                  u"Checked Moth Carnival, 1 page"_s};
    sync.summary = Summary{
        QStringList{u"Filed 3 proofs from Tarnwick Cards and Pellow Cartons"_s, u"Checked 4 pages against ours"_s},
        QStringList{u"The bookmarks replaced proof 2"_s}, QStringList{}};
    sync.result = JobResult{
        .new_files = 2, .report_id = {}, .drive_link = u"https://drive.example/folder/proofs"_s, .cost = 0.61};
    return sync;
}

} // namespace vexal::sample
