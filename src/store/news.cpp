#include "news.h"

#include "derived.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

bool isOfWorker(const Event &event)
{
    return !event.by || event.kind == "synced"_L1 || event.kind == "new_file"_L1 || event.kind == "report_ready"_L1;
}

QString fullName(const QString &email, const QList<Person> &users)
{
    const auto person =
        std::find_if(users.cbegin(), users.cend(), [&](const Person &user) { return user.email == email; });
    return person == users.cend() ? email : person->name;
}

QString told(const Event &event, const QList<Person> &users)
{
    if (isOfWorker(event))
        return shownText(event.text.value_or(u"Something new came in."_s));
    return shownText(fullName(*event.by, users)) + u": "_s + shownText(event.text.value_or(u"made a change"_s));
}

} // namespace

News newsOf(const BoardState &board, qint64 seenEvent, const QDateTime &started)
{
    News news{seenEvent, {}};
    for (const Event &event : board.events)
        news.seenEvent = std::max(news.seenEvent, event.id);
    if (seenEvent < 1)
        return news;

    const auto isNew = [&](const Event &event) {
        return event.id > seenEvent && event.by != board.me.email && event.at > double(started.toMSecsSinceEpoch());
    };
    const auto first = std::find_if(board.events.cbegin(), board.events.cend(), isNew);
    if (first != board.events.cend()) {
        news.toast = told(*first, board.users);
        news.fileId = first->file_id.value_or(QString());
    }
    return news;
}

} // namespace vexal
