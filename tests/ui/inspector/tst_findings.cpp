#include "boards.h"
#include "pagereview.h"
#include "testclock.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

Finding found(const QString &id, const QString &kind, qint64 page = 0, const QString &against = u"submitted"_s)
{
    Finding finding = aFinding(id, page, u"medium"_s);
    finding.kind = kind;
    finding.against = against;
    finding.title = u"Title of "_s + id;
    return finding;
}

/// A file of `pages` pages, each with a page of what we sent and of the last print.
FileDetail detailOf(const QList<Finding> &findings, qint64 pages = 1)
{
    FileDetail detail = aDetail(u"f"_s, pages, findings);
    for (Page &page : *detail.file.pages)
        page.refs = QMap<QString, RefPage>{{u"submitted"_s, {}}, {u"latest"_s, {}}};
    return detail;
}

QStringList keys(const QList<FindingRow> &rows)
{
    QStringList keys;
    for (const FindingRow &row : rows)
        keys.append(row.key);
    return keys;
}

QStringList groups(const QList<FindingRow> &rows)
{
    QStringList groups;
    for (const FindingRow &row : rows) {
        if (!row.group.isEmpty())
            groups.append(row.group + u" · "_s + row.reference);
    }
    return groups;
}

} // namespace

class FindingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyThePageAndTheRoleCount();
    void thePageIsCalledByItsLabel();
    void theGroupsStandInTheOrderInWhichTheirKindsAppear();
    void everyKindHasItsTitle_data();
    void everyKindHasItsTitle();
    void bothKindsOfMissingPagesAreOneGroup();
    void kindsThatAreNotKnownAreOneGroup();
    void otherRolesReadLastPrint();
    void theSummaryCounts_data();
    void theSummaryCounts();
    void expectedChangesAloneMakeNoGroup();
    void aPageWithoutFindingsSaysWhatItMatches();
    void aPageWithNothingOfOursSaysThat();
    void aPageWithoutLiveTextIsToldApart();
    void hiddenTextOfAnotherRoleIsShownWhileItHasTheFocusAndNeverCounted();
    void hiddenTextOfTheSameRoleIsNoExtra();
    void aSeverityIsATagAndATone_data();
    void aSeverityIsATagAndATone();
    void aSecondPressReopens();
    void aCardSaysWhoJudgedAndWhen();
    void aCardWithoutAJudgeSaysNothingOfOne();
    void bothSidesAreShownOnlyTogether();
    void aSupplierWithoutANameIsTheSupplier();
    void aCardTellsItsStateFocusAndPlace();
    void aCardIsBusyWhileItsJudgementIsOnItsWay();
    void otherPagesCountWhatIsStillOpen();
    void otherPagesAreToldForTheRoleThatTheyResolveTo();
    void aFileWithoutPagesHasNothingToTell();

private:
    Telling telling(const QString &focus = {}) const { return {&m_board, m_clock.clock(), {}, focus}; }
    FoundOnPage tell(const QList<Finding> &findings, const QString &role = u"submitted"_s,
                     const QString &focus = {}) const
    {
        return foundOnPage(detailOf(findings), 0, role, telling(focus));
    }
    FindingRow row(const Finding &finding) const { return findingRow(finding, aFile(u"f"_s), telling()); }

    TestClock m_clock;
    BoardState m_board = aBoard();
};

void FindingsTest::onlyThePageAndTheRoleCount()
{
    const auto page = tell({found(u"a"_s, u"words"_s), found(u"b"_s, u"words"_s, 1),
                            found(u"c"_s, u"words"_s, 0, u"latest"_s), found(u"d"_s, u"hidden"_s, 0, u"latest"_s)});
    QCOMPARE(keys(page.cards), QStringList{u"a"_s});
    QCOMPARE(page.review.found, u"1 found"_s);
    QVERIFY(!page.review.empty);
}

void FindingsTest::thePageIsCalledByItsLabel()
{
    FileDetail detail = detailOf({}, 3);
    QCOMPARE(foundOnPage(detail, 2, u"submitted"_s, telling()).review.title, u"Page 3"_s);
    detail.file.pages->operator[](2).label = u"ii"_s;
    QCOMPARE(foundOnPage(detail, 2, u"submitted"_s, telling()).review.title, u"Page ii"_s);
}

void FindingsTest::theGroupsStandInTheOrderInWhichTheirKindsAppear()
{
    const auto page = tell({found(u"a"_s, u"picture"_s), found(u"p"_s, u"pass"_s), found(u"b"_s, u"words"_s),
                            found(u"c"_s, u"picture"_s), found(u"d"_s, u"words"_s)});
    QCOMPARE(keys(page.cards), QStringList({u"a"_s, u"c"_s, u"b"_s, u"d"_s}));
    QCOMPARE(groups(page.cards), QStringList({u"Art · vs what we sent"_s, u"Words · vs what we sent"_s}));
    QCOMPARE(page.review.found, u"4 found"_s);
    QCOMPARE(page.review.summary, u"1 check passed"_s);
}

void FindingsTest::everyKindHasItsTitle_data()
{
    QTest::addColumn<QString>("title");
    for (const auto &[kind, title] :
         std::initializer_list<std::pair<const char *, QString>>{{"words", u"Words"_s},
                                                                 {"expected", u"Our edit"_s},
                                                                 {"breaks", u"Line breaks"_s},
                                                                 {"hidden", u"Under the art"_s},
                                                                 {"fonts", u"Fonts"_s},
                                                                 {"size", u"Size"_s},
                                                                 {"picture", u"Art"_s},
                                                                 {"barcode", u"Barcode"_s},
                                                                 {"spots", u"Spot colors"_s},
                                                                 {"pass", u"Passed"_s},
                                                                 {"missing_page", u"Pages"_s},
                                                                 {"extra_page", u"Pages"_s},
                                                                 {"bleed", u"Other"_s},
                                                                 {"", u"Other"_s},
                                                                 {"Words", u"Other"_s}})
        QTest::newRow(kind) << title;
}

void FindingsTest::everyKindHasItsTitle()
{
    QTEST(groupTitle(QString::fromLatin1(QTest::currentDataTag())), "title");
}

void FindingsTest::bothKindsOfMissingPagesAreOneGroup()
{
    const auto page = tell({found(u"a"_s, u"missing_page"_s), found(u"b"_s, u"extra_page"_s)});
    QCOMPARE(groups(page.cards), QStringList{u"Pages · vs what we sent"_s});
}

void FindingsTest::kindsThatAreNotKnownAreOneGroup()
{
    const auto page = tell({found(u"a"_s, u"bleed"_s), found(u"b"_s, u"words"_s), found(u"c"_s, u"varnish"_s)});
    QCOMPARE(groups(page.cards), QStringList({u"Other · vs what we sent"_s, u"Words · vs what we sent"_s}));
    QCOMPARE(keys(page.cards), QStringList({u"a"_s, u"c"_s, u"b"_s}));
}

void FindingsTest::otherRolesReadLastPrint()
{
    QCOMPARE(referencePhrase(u"submitted"_s), u"vs what we sent"_s);
    QCOMPARE(referencePhrase(u"latest"_s), u"vs last print"_s);
    QCOMPARE(referencePhrase(u"first"_s), u"vs last print"_s);
}

void FindingsTest::theSummaryCounts_data()
{
    QTest::addColumn<int>("settled");
    QTest::addColumn<int>("expected");
    QTest::addColumn<QString>("line");
    QTest::newRow("one edit") << 1 << 1 << u"1 of our edit came through"_s;
    QTest::newRow("two edits") << 2 << 2 << u"2 of our edits came through"_s;
    QTest::newRow("both") << 3 << 1 << u"3 checked and fine"_s;
    QTest::newRow("one check") << 1 << 0 << u"1 check passed"_s;
    QTest::newRow("three checks") << 3 << 0 << u"3 checks passed"_s;
}

void FindingsTest::theSummaryCounts()
{
    QFETCH(int, settled);
    QFETCH(int, expected);
    QTEST(summaryLine(settled, expected), "line");
}

void FindingsTest::expectedChangesAloneMakeNoGroup()
{
    const auto page = tell({found(u"a"_s, u"expected"_s), found(u"b"_s, u"expected"_s)});
    QVERIFY(page.cards.isEmpty());
    QCOMPARE(keys(page.settled), QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(page.review.summary, u"2 of our edits came through"_s);
    QCOMPARE(page.review.found, u"Matches"_s);
    QVERIFY(!page.review.empty);
}

void FindingsTest::aPageWithoutFindingsSaysWhatItMatches()
{
    const auto page = tell({found(u"a"_s, u"words"_s, 1)});
    QVERIFY(page.review.empty);
    QCOMPARE(page.review.found, u"Matches"_s);
    QCOMPARE(page.review.emptyLine, u"The words, breaks, fonts and art match vs what we sent."_s);
    QVERIFY(page.review.summary.isEmpty());
    QCOMPARE(tell({}, u"latest"_s).review.emptyLine, u"The words, breaks, fonts and art match vs last print."_s);
}

void FindingsTest::aPageWithNothingOfOursSaysThat()
{
    const auto page = foundOnPage(aDetail(u"f"_s, 1), 0, u"submitted"_s, telling());
    QVERIFY(page.review.empty);
    QCOMPARE(page.review.emptyLine, u"No file of ours was found to compare with this page."_s);
}

void FindingsTest::aPageWithoutLiveTextIsToldApart()
{
    FileDetail detail = detailOf({}, 3);
    detail.file.pages->operator[](1).ocr = true;
    detail.file.pages->operator[](2).ocr = false;
    QVERIFY(!foundOnPage(detail, 0, u"submitted"_s, telling()).review.readFromPicture);
    QVERIFY(foundOnPage(detail, 1, u"submitted"_s, telling()).review.readFromPicture);
    QVERIFY(!foundOnPage(detail, 2, u"submitted"_s, telling()).review.readFromPicture);
}

void FindingsTest::hiddenTextOfAnotherRoleIsShownWhileItHasTheFocusAndNeverCounted()
{
    const QList<Finding> findings{found(u"h"_s, u"hidden"_s, 0, u"latest"_s), found(u"w"_s, u"words"_s, 0, u"latest"_s),
                                  found(u"a"_s, u"hidden"_s), found(u"elsewhere"_s, u"hidden"_s, 1, u"latest"_s)};
    const auto page = tell(findings, u"submitted"_s, u"h"_s);
    QCOMPARE(keys(page.cards), QStringList({u"a"_s, u"h"_s}));
    QCOMPARE(groups(page.cards),
             QStringList({u"Under the art · vs what we sent"_s, u"Under the art · vs last print"_s}));
    QCOMPARE(page.review.found, u"1 found"_s);
    QVERIFY(page.cards.last().focused);
    QCOMPARE(keys(tell(findings, u"submitted"_s, u"w"_s).cards), QStringList{u"a"_s});
    QCOMPARE(keys(tell(findings, u"submitted"_s, u"elsewhere"_s).cards), QStringList{u"a"_s});
}

void FindingsTest::hiddenTextOfTheSameRoleIsNoExtra()
{
    QCOMPARE(keys(tell({found(u"a"_s, u"hidden"_s)}, u"submitted"_s, u"a"_s).cards), QStringList{u"a"_s});
}

void FindingsTest::aSeverityIsATagAndATone_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<int>("tone");
    QTest::newRow("high") << u"Fix"_s << int(Tone::Issue);
    QTest::newRow("medium") << u"Check"_s << int(Tone::LookAt);
    QTest::newRow("low") << u"Minor"_s << int(Tone::Neutral);
    QTest::newRow("pass") << u"Minor"_s << int(Tone::Neutral);
    QTest::newRow("grave") << u"Minor"_s << int(Tone::Neutral);
    QTest::newRow("") << u"Minor"_s << int(Tone::Neutral);
}

void FindingsTest::aSeverityIsATagAndATone()
{
    const QString severity = QString::fromLatin1(QTest::currentDataTag());
    QTEST(severityTag(severity), "tag");
    QTEST(int(severityTone(severity)), "tone");
}

void FindingsTest::aSecondPressReopens()
{
    QCOMPARE(stateAfter(u"open"_s, u"issue"_s), u"issue"_s);
    QCOMPARE(stateAfter(u"issue"_s, u"issue"_s), u"open"_s);
    QCOMPARE(stateAfter(u"issue"_s, u"fine"_s), u"fine"_s);
    QCOMPARE(stateAfter(u"fine"_s, u"fine"_s), u"open"_s);
    QCOMPARE(stateAfter(u"unheard of"_s, u"issue"_s), u"issue"_s);
}

void FindingsTest::aCardSaysWhoJudgedAndWhen()
{
    Finding finding = found(u"a"_s, u"words"_s);
    finding.state_by = u"mira@lanternhouse.example"_s;
    QCOMPARE(row(finding).judged, u"Mira"_s);
    finding.state_at = double(m_clock.now().addSecs(-6 * 60).toMSecsSinceEpoch());
    QCOMPARE(row(finding).judged, u"Mira · 6 min ago"_s);
    finding.state_by = m_board.me.email;
    QCOMPARE(row(finding).judged, u"You · 6 min ago"_s);
}

void FindingsTest::aCardWithoutAJudgeSaysNothingOfOne()
{
    Finding finding = found(u"a"_s, u"words"_s);
    finding.state_at = 1;
    QCOMPARE(row(finding).judged, QString());
}

void FindingsTest::bothSidesAreShownOnlyTogether()
{
    Finding finding = found(u"a"_s, u"words"_s);
    finding.before = u"lit every lantern"_s;
    QVERIFY(!row(finding).compared);
    finding.after = u"lit every lantem"_s;
    QVERIFY(row(finding).compared);
    QCOMPARE(row(finding).ours.changed(), u"lantern"_s);
    QCOMPARE(row(finding).theirs.changed(), u"lantem"_s);
    finding.before.reset();
    QVERIFY(!row(finding).compared);
}

void FindingsTest::aSupplierWithoutANameIsTheSupplier()
{
    FileItem file = aFile(u"f"_s);
    QCOMPARE(findingRow(found(u"a"_s, u"words"_s), file, telling()).supplier, u"Supplier"_s);
    file.supplier = u"Ostrel Print"_s;
    QCOMPARE(findingRow(found(u"a"_s, u"words"_s), file, telling()).supplier, u"Ostrel Print"_s);
}

void FindingsTest::aCardTellsItsStateFocusAndPlace()
{
    Finding finding = found(u"a"_s, u"words"_s);
    FindingRow card = row(finding);
    QVERIFY(!card.issue && !card.fine && !card.placed && !card.focused);
    finding.state = u"issue"_s;
    finding.box = Box{0, 0, 1};
    card = row(finding);
    QVERIFY(card.issue && !card.fine && !card.placed);
    finding.state = u"fine"_s;
    finding.box = Box{0, 0, 1, 1};
    card = findingRow(finding, aFile(u"f"_s), telling(u"a"_s));
    QVERIFY(!card.issue && card.fine && card.placed && card.focused);
}

void FindingsTest::aCardIsBusyWhileItsJudgementIsOnItsWay()
{
    Telling told = telling();
    told.busy = {u"b"_s, u"n-a"_s};
    QVERIFY(!findingRow(found(u"a"_s, u"words"_s), aFile(u"f"_s), told).busy);
    told.busy.insert(u"a"_s);
    QVERIFY(findingRow(found(u"a"_s, u"words"_s), aFile(u"f"_s), told).busy);
}

void FindingsTest::otherPagesCountWhatIsStillOpen()
{
    QList<Finding> findings{found(u"here"_s, u"words"_s),        found(u"a"_s, u"words"_s, 3),
                            found(u"b"_s, u"fonts"_s, 1),        found(u"c"_s, u"words"_s, 3),
                            found(u"edit"_s, u"expected"_s, 2),  found(u"check"_s, u"pass"_s, 2),
                            found(u"outside"_s, u"words"_s, 40), found(u"last"_s, u"words"_s, 2, u"latest"_s)};
    findings[0].state = u"open"_s;
    Finding judged = found(u"judged"_s, u"words"_s, 3);
    judged.state = u"issue"_s;
    findings.append(judged);
    const QList<OtherPage> others = otherPages(detailOf(findings, 5), 0, u"submitted"_s);
    QCOMPARE(others.size(), 2);
    QCOMPARE(others[0].title, u"Page 2"_s);
    QCOMPARE(others[0].open, u"1 to look at"_s);
    QCOMPARE(others[0].index, 1);
    QCOMPARE(others[1].title, u"Page 4"_s);
    QCOMPARE(others[1].open, u"2 to look at"_s);
}

void FindingsTest::otherPagesAreToldForTheRoleThatTheyResolveTo()
{
    FileDetail detail =
        detailOf({found(u"a"_s, u"words"_s, 1, u"latest"_s), found(u"b"_s, u"words"_s, 2, u"latest"_s)}, 3);
    QVERIFY(otherPages(detail, 0, u"submitted"_s).isEmpty());
    QCOMPARE(otherPages(detail, 0, u"latest"_s).size(), 2);
    // The last print stands in on a page that has nothing else.
    detail.file.pages->operator[](1).refs = QMap<QString, RefPage>{{u"latest"_s, {}}};
    QCOMPARE(otherPages(detail, 0, u"submitted"_s).size(), 1);
}

void FindingsTest::aFileWithoutPagesHasNothingToTell()
{
    const FileDetail detail = detailOf({found(u"a"_s, u"words"_s, 4)}, 0);
    QVERIFY(foundOnPage(detail, 0, u"submitted"_s, telling()).cards.isEmpty());
    QVERIFY(otherPages(detail, 0, u"submitted"_s).isEmpty());
}

QTEST_MAIN(FindingsTest)
#include "tst_findings.moc"
