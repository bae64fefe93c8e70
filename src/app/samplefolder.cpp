#include "samplefolder.h"

#include "clock.h"
#include "decode.h"
#include "launchoptions.h"
#include "store.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr QPointF stagedPin(0.62, 0.30);

// Which fields of the records are moments: those of these names that hold a floating-point number.
constexpr std::array momentKeys{"at"_L1,      "beat"_L1,     "created"_L1,   "edited"_L1,   "finished"_L1,
                                "started"_L1, "received"_L1, "last_seen"_L1, "state_at"_L1, "status_at"_L1};

struct LatestMoment
{
    double found = 0;

    template <typename Value>
    void look(const char *, const Value &)
    {
    }
    void look(const char *key, double value)
    {
        if (std::find(momentKeys.begin(), momentKeys.end(), QLatin1StringView(key)) != momentKeys.end())
            found = std::max(found, value);
    }
    template <typename Value>
    void look(const char *key, const std::optional<Value> &value)
    {
        if (value)
            look(key, *value);
    }
    template <typename Value>
    void look(const char *key, const QList<Value> &values)
    {
        for (const Value &value : values)
            look(key, value);
    }
    template <typename Value>
    void look(const char *key, const QMap<QString, Value> &values)
    {
        for (const Value &value : values)
            look(key, value);
    }
    template <typename Record>
    requires requires(const Record *record) { fieldsOf(record); }
    void look(const char *, const Record &record)
    {
        std::apply([&](const auto &...field) { (look(field.key, record.*field.member), ...); }, fieldsOf(&record));
    }
};

void focusFirstHigh(Store &store, const FileDetail &detail)
{
    const auto high = std::find_if(detail.findings.cbegin(), detail.findings.cend(),
                                   [](const Finding &finding) { return finding.severity == "high"_L1; });
    if (high != detail.findings.cend())
        store.focusFinding(high->id);
}

} // namespace

SampleRead readSample(const QString &folder)
{
    if (folder.isEmpty())
        return {};
    QFile file(QDir(folder).filePath(u"sample.json"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    auto decoded = decode<Sample>(file.readAll());
    if (!decoded)
        return {std::nullopt, true};
    return {std::move(*decoded), false};
}

QDateTime latestMoment(const Sample &sample)
{
    LatestMoment latest;
    latest.look("", sample);
    return momentOf(latest.found);
}

void stage(Store &store, const LaunchOptions &options)
{
    const QList<FileItem> &files = store.board()->files;
    if (!files.isEmpty())
        store.selectFile(files[0].id);
    if (options.multi && files.size() > 1 && files[1].id != files[0].id)
        store.selectFile(files[1].id, true);
    const FileItem *current = store.current();
    if (const FileDetail *detail = current ? store.detail(current->id) : nullptr; detail && options.focus)
        focusFirstHigh(store, *detail);
    if (options.activity)
        store.setShowActivity(true);
    if (options.pin)
        store.placePin(stagedPin);
}

} // namespace vexal
