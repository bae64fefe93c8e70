#include "office.h"

#include "people.h"
#include "plan.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

/// A line of the log; without `by` the worker machine wrote it.
struct Line
{
    double at;
    QString by;
    QString kind;
    QString text = {};
    QString file = {};
    std::optional<qint64> page = {};
};

std::optional<QString> unlessEmpty(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

QList<Line> today()
{
    return {
        {now(), who::lin(), u"signin"_s},
        {moment(20, 15, 36), who::mira(), u"finding"_s, u"Marked a finding a real issue on The Lantern Fox"_s, u"fox"_s,
         8},
        {moment(20, 15, 33), who::mira(), u"finding"_s, u"Marked a finding fine on A Letter by Owl"_s, u"owl"_s, 0},
        {moment(20, 15, 24), who::teo(), u"comment"_s, u"Moon looks a touch more yellow here. Ask for a fresh proof?"_s,
         u"fox"_s, 8},
        {moment(20, 15, 16), who::mira(), u"comment"_s, u"Ask for a warmer black on the lid."_s, u"moth"_s, 0},
        {moment(20, 15, 12), {}, u"report_ready"_s, u"Report ready"_s, u"moth"_s},
        {moment(20, 15, 9), who::mira(), u"report"_s, u"Asked for one report on 2 files"_s},
        {moment(20, 15, 0), {}, u"synced"_s, u"2 new files from the mail"_s},
        {moment(20, 14, 59), {}, u"new_file"_s, u"Moth Carnival Box lid from Pellow Cartons"_s, u"moth"_s},
        {moment(20, 14, 58), {}, u"new_file"_s, u"A Letter by Owl Greeting card from Tarnwick Cards"_s, u"owl"_s},
        {moment(20, 14, 52), who::teo(), u"sync"_s, u"Started a sync"_s},
        {moment(20, 13, 40), who::teo(), u"status"_s, u"Marked Tidepool Memory cards reviewed"_s, u"tidepool"_s},
        {moment(20, 9, 4), who::teo(), u"signin"_s},
    };
}

QList<Line> yesterday()
{
    return {
        {moment(19, 16, 32), who::mira(), u"resolve"_s, u"Check the gutter once more."_s, u"fox"_s, 8},
        {moment(19, 16, 25), who::teo(), u"finding"_s, u"Marked a finding fine on The Lantern Fox"_s, u"fox"_s, 13},
        {moment(19, 16, 20), who::lin(), u"comment"_s, u"Check the gutter once more."_s, u"fox"_s, 8},
        {moment(19, 15, 59), {}, u"synced"_s, u"1 new file from Pellow Cartons"_s, u"harbor"_s},
        {moment(19, 15, 50), who::mira(), u"sync"_s, u"Started a sync"_s},
        {moment(19, 15, 4), {}, u"report_ready"_s, u"Report ready"_s, u"fox"_s},
        {moment(19, 15, 1), who::teo(), u"report"_s, u"Asked for a report on The Lantern Fox"_s, u"fox"_s},
        {moment(19, 13, 30), who::teo(), u"status"_s, u"Took A Sky of Kites Poster into review"_s, u"kites"_s},
        {moment(19, 12, 20), who::lin(), u"stop"_s, u"Stopped a report"_s, u"kites"_s},
        {moment(19, 11, 31), who::anselm(), u"photo"_s},
        {moment(19, 10, 30), who::anselm(), u"comment"_s, u"Could we ask them to move the fold 6 mm to the left?"_s,
         u"slowpost"_s, 0},
    };
}

QList<Line> before()
{
    return {
        {moment(18, 17, 30), {}, u"report_ready"_s, u"Report ready"_s, u"tidepool"_s},
        {moment(18, 17, 26), who::anselm(), u"report"_s, u"Asked for one report on 3 files"_s},
        {moment(18, 16, 55), who::anselm(), u"status"_s, u"Marked Lighthouse Songs Song sheet reviewed"_s, u"songs"_s},
        {moment(18, 16, 20), {}, u"new_file"_s, u"Lighthouse Songs Song sheet from Tarnwick Cards"_s, u"songs"_s},
        {moment(18, 13, 50), who::mira(), u"status"_s, u"Took The Lantern Fox Interior into review"_s, u"fox"_s},
        {moment(18, 10, 31), who::mira(), u"status"_s, u"Marked Bread for the Giant Cover reviewed"_s, u"bread"_s},
        {moment(18, 7, 0), {}, u"archive"_s, u"Put the spring list away: 11 files"_s},
    };
}

} // namespace

QList<Event> events()
{
    const QList<Line> lines = today() + yesterday() + before();
    QList<Event> log;
    qint64 id = 400 + lines.size();
    for (const Line &line : lines)
        log.append({--id, line.at, unlessEmpty(line.by), line.kind, unlessEmpty(line.file), line.page,
                    unlessEmpty(line.text)});
    return log;
}

} // namespace vexal::sample
