#include "people.h"

#include "derived.h"
#include "displayname.h"
#include "facts.h"
#include "relativetime.h"

namespace vexal {

namespace {

constexpr double liveMilliseconds = 720000;

} // namespace

bool isLive(const Person &person, const Clock &clock)
{
    return person.last_seen && clock.milliseconds() - *person.last_seen < liveMilliseconds;
}

QDateTime liveUntil(const Person &person)
{
    return momentOf(*person.last_seen + liveMilliseconds);
}

QList<PersonRow> peopleRows(const BoardState &board, const Clock &clock)
{
    QList<PersonRow> rows;
    for (const Person &person : board.users) {
        const QString seen = person.last_seen ? relativeTime(momentOf(*person.last_seen), clock) : QString();
        rows.append({person.email, shownText(person.name), person.photo.value_or(QString()),
                     person.color.value_or(QString()), isLive(person, clock),
                     joinedFacts({displayName(person.email, &board), seen})});
    }
    return rows;
}

} // namespace vexal
