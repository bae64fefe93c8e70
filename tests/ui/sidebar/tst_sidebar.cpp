#include "filerow.h"
#include "livestatus.h"
#include "people.h"

#include <QTest>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

const QDateTime now = QDateTime::fromString(u"2026-11-20T12:00:00Z"_s, Qt::ISODate);

FileItem fileOf(const QString &id, const QString &status)
{
    FileItem file;
    file.id = id;
    file.status = status;
    return file;
}

FileItem tallied(std::optional<qint64> open, std::optional<qint64> issues)
{
    FileItem file = fileOf(u"f"_s, u"new"_s);
    file.tally = Tally{.open = open, .issues = issues};
    return file;
}

FileItem matched(std::optional<qint64> count)
{
    FileItem file = fileOf(u"f"_s, u"new"_s);
    file.refs = QList<Ref>{Ref{.role = u"submitted"_s}, Ref{.role = u"latest"_s, .matched = count}};
    return file;
}

QList<FileRow> listed(const QList<FileItem> &files)
{
    QList<FileRow> rows;
    std::transform(files.begin(), files.end(), std::back_inserter(rows), fileRow);
    QList<FileRow> list;
    for (const qsizetype row : listOrder(rows))
        list.append(rows[row]);
    return list;
}

} // namespace

class SidebarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesStandInTheirSectionsInBoardOrder();
    void aFileOfAnotherStatusIsInNoSection();
    void realIssuesComeFirstAndAreCounted();
    void whatIsLeftToLookAtTakesNoPlural();
    void aReviewedFileShowsTheCheckMarkEvenWithOpenItems();
    void aMatchedFileWithNothingLeftHasNoDifferences();
    void aFileWithoutAnyMatchIsAQuestion();
    void theSecondLineLeavesOutWhatIsNotKnown();
    void theStatusLineFollowsItsOrder();
    void aBoardIsUpToDateForNinetySeconds();
    void aPersonSeenTwelveMinutesAgoIsNotLive();
    void anAvatarNamesThePersonAndWhenTheyWereSeen();
};

void SidebarTest::filesStandInTheirSectionsInBoardOrder()
{
    const QList<FileRow> rows = listed({fileOf(u"a"_s, u"reviewed"_s), fileOf(u"b"_s, u"new"_s),
                                        fileOf(u"c"_s, u"in_review"_s), fileOf(u"d"_s, u"new"_s)});
    QStringList told;
    for (const FileRow &row : rows)
        told.append(row.section + u':' + row.key);
    QCOMPARE(told, QStringList({u"To review:b"_s, u"To review:d"_s, u"In review:c"_s, u"Reviewed:a"_s}));
}

void SidebarTest::aFileOfAnotherStatusIsInNoSection()
{
    QVERIFY(listed({fileOf(u"a"_s, u"archived"_s)}).isEmpty());
}

void SidebarTest::realIssuesComeFirstAndAreCounted()
{
    QCOMPARE(fileRowCount(tallied(5, 1)).help, u"1 real issue"_s);
    const FileRowCount two = fileRowCount(tallied(5, 2));
    QCOMPARE(two.help, u"2 real issues"_s);
    QCOMPARE(two.number, u"2"_s);
    QCOMPARE(two.tone, Tone::Issue);
}

void SidebarTest::whatIsLeftToLookAtTakesNoPlural()
{
    QCOMPARE(fileRowCount(tallied(1, std::nullopt)).help, u"1 to look at"_s);
    const FileRowCount three = fileRowCount(tallied(3, 0));
    QCOMPARE(three.help, u"3 to look at"_s);
    QCOMPARE(three.tone, Tone::LookAt);
}

void SidebarTest::aReviewedFileShowsTheCheckMarkEvenWithOpenItems()
{
    FileItem file = tallied(4, 2);
    file.status = u"reviewed"_s;
    const FileRowCount count = fileRowCount(file);
    QCOMPARE(count.symbol, u"checkmark.circle.fill"_s);
    QCOMPARE(count.tone, Tone::Reviewed);
    QVERIFY(count.number.isEmpty());
}

void SidebarTest::aMatchedFileWithNothingLeftHasNoDifferences()
{
    const FileRowCount count = fileRowCount(matched(1));
    QCOMPARE(count.symbol, u"equal.circle"_s);
    QCOMPARE(count.help, u"No differences"_s);
}

void SidebarTest::aFileWithoutAnyMatchIsAQuestion()
{
    QCOMPARE(fileRowCount(fileOf(u"f"_s, u"new"_s)).symbol, u"questionmark.circle"_s);
    QCOMPARE(fileRowCount(matched(0)).symbol, u"questionmark.circle"_s);
    const FileRowCount count = fileRowCount(matched(std::nullopt));
    QCOMPARE(count.symbol, u"questionmark.circle"_s);
    QCOMPARE(count.help, u"Nothing of ours was found to compare it with"_s);
}

void SidebarTest::theSecondLineLeavesOutWhatIsNotKnown()
{
    FileItem file = fileOf(u"f"_s, u"new"_s);
    QCOMPARE(fileRowDetails(file), QString());
    file.page_count = 16;
    QCOMPARE(fileRowDetails(file), u"16 p"_s);
    file.supplier = u"Ostrel Print"_s;
    file.po = u"PO 2231"_s;
    QCOMPARE(fileRowDetails(file), u"Ostrel Print · PO 2231 · 16 p"_s);
    file.po = QString();
    QCOMPARE(fileRowDetails(file), u"Ostrel Print · 16 p"_s);
}

void SidebarTest::theStatusLineFollowsItsOrder()
{
    const Clock clock{[] { return now; }, QTimeZone::utc(), QLocale(u"en_GB"_s)};
    QCOMPARE(liveText(u"Can't reach it."_s, now, clock), u"Offline"_s);
    QCOMPARE(freshness(u"Can't reach it."_s, now), Freshness::Offline);
    QCOMPARE(liveText(std::nullopt, std::nullopt, clock), u"Connecting"_s);
    QCOMPARE(freshness(std::nullopt, std::nullopt), Freshness::Connecting);
    QCOMPARE(liveText(std::nullopt, now, clock), u"Up to date"_s);
    QCOMPARE(freshness(std::nullopt, now), Freshness::Live);
}

void SidebarTest::aBoardIsUpToDateForNinetySeconds()
{
    const Clock clock{[] { return now; }, QTimeZone::utc(), QLocale(u"en_GB"_s)};
    QCOMPARE(liveText(std::nullopt, now.addSecs(-89), clock), u"Up to date"_s);
    QCOMPARE(liveText(std::nullopt, now.addSecs(-90), clock), u"Updated 1 min ago"_s);
}

void SidebarTest::aPersonSeenTwelveMinutesAgoIsNotLive()
{
    const Clock clock{[] { return now; }, QTimeZone::utc(), QLocale(u"en_GB"_s)};
    Person person;
    QVERIFY(!isLive(person, clock));
    person.last_seen = clock.milliseconds() - 720000;
    QVERIFY(!isLive(person, clock));
    person.last_seen = clock.milliseconds() - 719999;
    QVERIFY(isLive(person, clock));
}

void SidebarTest::anAvatarNamesThePersonAndWhenTheyWereSeen()
{
    const Clock clock{[] { return now; }, QTimeZone::utc(), QLocale(u"en_GB"_s)};
    BoardState board;
    board.me = {u"mira@x.org"_s, u"Mira Holt"_s};
    board.users = {Person{.email = u"mira@x.org"_s, .name = u"Mira Holt"_s, .last_seen = clock.milliseconds() - 300000},
                   Person{.email = u"teo@x.org"_s, .name = u"Teo Lind"_s}};
    const QList<PersonRow> rows = peopleRows(board, clock);
    QCOMPARE(rows[0].help, u"You · 5 min ago"_s);
    QVERIFY(rows[0].live);
    QCOMPARE(rows[1].help, u"Teo"_s);
    QVERIFY(!rows[1].live);
}

QTEST_GUILESS_MAIN(SidebarTest)
#include "tst_sidebar.moc"
