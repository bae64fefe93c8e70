#include "activity.h"

#include "derived.h"
#include "displayname.h"
#include "facts.h"
#include "relativetime.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

// A character may be two units long, and some get longer in lower case.
QString withFirstSmall(const QString &text)
{
    const bool pair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    const qsizetype first = std::min<qsizetype>(pair ? 2 : 1, text.size());
    return text.first(first).toLower() + text.sliced(first);
}

QString phrase(const Event &event)
{
    const QString shown = shownText(event.text);
    QString text = isolated(shown);
    if (event.kind == "comment"_L1)
        return u"left a note: “"_s + text + u'”';
    if (event.kind == "finding"_L1 || event.kind == "status"_L1 || event.kind == "report"_L1 || event.kind == "stop"_L1)
        return isolated(withFirstSmall(shown));
    if (event.kind == "sync"_L1)
        return u"started a sync"_s;
    if (event.kind == "synced"_L1 || event.kind == "new_file"_L1)
        return u"· "_s + text;
    if (event.kind == "report_ready"_L1)
        return u"· Report ready"_s;
    if (event.kind == "signin"_L1)
        return u"signed in"_s;
    if (event.kind == "photo"_L1)
        return u"changed their photo"_s;
    if (event.kind == "resolve"_L1)
        return u"resolved a note"_s;
    return text;
}

QString sentence(const QString &actorName, const QString &phrase)
{
    return actorName.isEmpty() ? phrase : actorName + u' ' + phrase;
}

// What comes from outside is never markup, here neither.
QString styledSentence(const QString &actorName, const QString &phrase)
{
    const QString name = actorName.isEmpty() ? QString() : u"<b>"_s + actorName.toHtmlEscaped() + u"</b>"_s;
    return sentence(name, phrase.toHtmlEscaped());
}

/// What the rows look up on the board, found once for all of them.
struct Known
{
    explicit Known(const BoardState &board)
    {
        // Backwards, so that of two with one address the first counts.
        for (auto person = board.users.crbegin(); person != board.users.crend(); ++person)
            people.insert(person->email, &*person);
        for (const FileItem &file : board.files)
            files.insert(file.id);
    }

    QHash<QString, const Person *> people;
    QSet<QString> files;
};

ActivityRow activityRow(const Event &event, const BoardState &board, const Known &known, const Clock &clock)
{
    ActivityRow row;
    row.key = QString::number(event.id);
    row.actor = event.by.value_or(QString());
    if (const Person *person = known.people.value(row.actor)) {
        row.name = shownText(person->name);
        row.photo = person->photo.value_or(QString());
        row.color = person->color.value_or(QString());
    }
    const QString actorName = event.by ? isolated(displayName(event.by, &board)) : QString();
    row.sentence = activitySentence(event, actorName);
    row.styled = styledSentence(actorName, phrase(event));
    row.when = relativeTime(momentOf(event.at), clock);
    if (event.file_id && known.files.contains(*event.file_id)) {
        row.file = *event.file_id;
        row.page = event.page.value_or(-1);
    }
    return row;
}

} // namespace

QString activitySentence(const Event &event, const QString &actorName)
{
    return sentence(actorName, phrase(event));
}

QList<ActivityRow> activityRows(const BoardState &board, const Clock &clock)
{
    const Known known(board);
    QList<ActivityRow> rows;
    rows.reserve(board.events.size());
    for (const Event &event : board.events)
        rows.append(activityRow(event, board, known, clock));
    return rows;
}

} // namespace vexal
