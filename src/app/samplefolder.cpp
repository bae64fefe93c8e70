#include "samplefolder.h"

#include "clock.h"
#include "decode.h"
#include "derived.h"
#include "launchoptions.h"
#include "moments.h"
#include "store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr QPointF stagedPin(0.62, 0.30);

} // namespace

SampleRead readSample(const QString &folder)
{
    if (folder.isEmpty())
        return {};
    const QString path = QDir(folder).filePath(u"sample.json"_s);
    QFile file(path);
    // A pipe or a device may never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    auto decoded = decode<Sample>(file.readAll());
    if (!decoded)
        return {std::nullopt, true};
    return {std::move(*decoded), false};
}

QDateTime latestMoment(const Sample &sample)
{
    double latest = 0;
    forEachMoment(sample, [&latest](double moment) { latest = std::max(latest, moment); });
    return momentOf(latest);
}

void stage(Store &store, const LaunchOptions &options)
{
    const QList<FileItem> &files = store.board()->files;
    if (!files.isEmpty())
        store.selectFile(files[0].id);
    if (options.multi && files.size() > 1 && files[1].id != files[0].id)
        store.selectFile(files[1].id, true);
    const FileItem *current = store.current();
    if (const FileDetail *detail = current ? store.detail(current->id) : nullptr; detail && options.focus) {
        if (const Finding *high = firstHigh(*detail))
            store.focusFinding(high->id);
    }
    if (options.activity)
        store.setShowActivity(true);
    if (options.pin)
        store.placePin(stagedPin);
}

} // namespace vexal
