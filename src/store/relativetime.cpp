#include "relativetime.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vexal {

namespace {

/// A pattern without what it quotes: there, letters are words and not fields.
QString fieldsOf(QString pattern)
{
    static const QRegularExpression quoted(u"'[^']*'"_s);
    return pattern.remove(quoted);
}

} // namespace

QString relativeTime(const QDateTime &moment, const Clock &clock)
{
    const QDateTime now = clock.now().toTimeZone(clock.zone);
    const QDateTime then = moment.toTimeZone(clock.zone);
    const std::chrono::milliseconds ago(then.msecsTo(now));
    if (ago < 50s)
        return u"just now"_s;
    if (ago < 1h)
        return QString::number(ago / 1min) + u" min ago"_s;
    if (then.date() == now.date())
        return QString::number(ago / 1h) + u" hr ago"_s;

    const QString time = u' ' + shortTime(then.time(), clock.locale);
    if (then.date() == now.date().addDays(-1))
        return u"Yesterday"_s + time;
    if (ago < 24h * 6)
        return then.date().toString(u"dddd"_s) + time;
    return dayMonth(then.date(), clock.locale) + time;
}

QString shortTime(QTime time, const QLocale &locale)
{
    const QString fields = fieldsOf(locale.timeFormat(QLocale::ShortFormat));
    const bool twelve = fields.contains(u'h');
    const bool twoDigits = fields.contains(u"hh"_s, Qt::CaseInsensitive);
    const QString hours = twelve ? (twoDigits ? u"hh"_s : u"h"_s) : (twoDigits ? u"HH"_s : u"H"_s);
    const QString point = fields.contains(u"h.m"_s, Qt::CaseInsensitive) ? u"."_s : u":"_s;
    return time.toString(hours + point + (twelve ? u"mm AP"_s : u"mm"_s));
}

QString dayMonth(QDate date, const QLocale &locale)
{
    const QString fields = fieldsOf(locale.dateFormat(QLocale::ShortFormat));
    return date.toString(fields.indexOf(u'd') < fields.indexOf(u'M') ? u"d MMM"_s : u"MMM d"_s);
}

} // namespace vexal
