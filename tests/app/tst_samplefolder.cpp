#include "samplefolder.h"

#include "encode.h"
#include "launchoptions.h"
#include "store.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

Finding findingOf(const QString &id, const QString &severity)
{
    Finding finding;
    finding.id = id;
    finding.severity = severity;
    return finding;
}

Sample sampleOf(int files)
{
    Sample sample;
    for (int i = 0; i < files; ++i) {
        FileDetail detail;
        detail.file.id = QString(QChar(u'a' + i));
        detail.file.status = u"new"_s;
        detail.findings = {findingOf(u"low"_s + detail.file.id, u"low"_s),
                           findingOf(u"high"_s + detail.file.id, u"high"_s),
                           findingOf(u"also"_s + detail.file.id, u"high"_s)};
        sample.board.files.append(detail.file);
        sample.details.insert(detail.file.id, detail);
    }
    return sample;
}

} // namespace

class SampleFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFolderWithoutASampleGivesNone();
    void aFileThatIsNoSampleIsUndecodable();
    void aSampleIsRead();
    void theLatestMomentIsFoundWhereverItStands();
    void aSampleWithoutMomentsIsOfTheEpoch();
    void theFirstFileIsSelected();
    void multiSelectsTheFirstTwo();
    void multiOnABoardOfOneSelectsThatOne();
    void multiOnTwoFilesOfOneIdSelectsThatOne();
    void aNameOfNoFolderReadsNothing();
    void aMomentBeyondAllTimeIsTheLast();
    void focusPicksTheFirstFindingOfHighSeverity();
    void focusWithoutAHighFindingPicksNone();
    void activityOpensTheList();
    void pinIsPlaced();
    void aBoardWithoutFilesIsStagedWithoutASelection();

private:
    static std::unique_ptr<Store> staged(Sample sample, const LaunchOptions &options)
    {
        auto store = std::make_unique<Store>(standingClock(QDateTime::fromMSecsSinceEpoch(0)));
        store->takeSample(std::move(sample));
        stage(*store, options);
        return store;
    }
};

void SampleFolderTest::aFolderWithoutASampleGivesNone()
{
    const QTemporaryDir folder;
    const SampleRead read = readSample(folder.path());
    QVERIFY(!read.sample);
    QVERIFY(!read.undecodable);
}

void SampleFolderTest::aFileThatIsNoSampleIsUndecodable()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"sample.json"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"board\": {}}");
    file.close();
    const SampleRead read = readSample(folder.path());
    QVERIFY(!read.sample);
    QVERIFY(read.undecodable);
}

void SampleFolderTest::aSampleIsRead()
{
    const QTemporaryDir folder;
    const Sample sample = sampleOf(2);
    QFile file(folder.filePath(u"sample.json"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(encode(sample));
    file.close();
    QCOMPARE(readSample(folder.path()).sample, sample);
}

void SampleFolderTest::theLatestMomentIsFoundWhereverItStands()
{
    Sample sample = sampleOf(2);
    sample.board.users = {Person{.email = u"mira@x.org"_s, .last_seen = 1000}};
    QCOMPARE(latestMoment(sample).toMSecsSinceEpoch(), 1000);
    sample.details[u"b"_s].findings[1].state_at = 2000;
    QCOMPARE(latestMoment(sample).toMSecsSinceEpoch(), 2000);
    sample.board.sync = Job{.finished = 3000};
    QCOMPARE(latestMoment(sample).toMSecsSinceEpoch(), 3000);
    sample.details[u"b"_s].file.pages = QList<Page>{Page{.w = 9e12}};
    QCOMPARE(latestMoment(sample).toMSecsSinceEpoch(), 3000);
}

void SampleFolderTest::aSampleWithoutMomentsIsOfTheEpoch()
{
    QCOMPARE(latestMoment(Sample()).toMSecsSinceEpoch(), 0);
}

void SampleFolderTest::theFirstFileIsSelected()
{
    const auto store = staged(sampleOf(3), {});
    QCOMPARE(store->selection(), QSet<QString>{u"a"_s});
    QVERIFY(store->detail(u"a"_s));
    QVERIFY(!store->focus());
    QVERIFY(!store->draftPin());
    QVERIFY(!store->showActivity());
}

void SampleFolderTest::multiSelectsTheFirstTwo()
{
    const auto store = staged(sampleOf(3), {.multi = true});
    QCOMPARE(store->selection(), QSet<QString>({u"a"_s, u"b"_s}));
}

void SampleFolderTest::multiOnTwoFilesOfOneIdSelectsThatOne()
{
    Sample sample = sampleOf(2);
    sample.board.files[1].id = sample.board.files[0].id;
    QCOMPARE(staged(sample, {.multi = true})->selection(), QSet<QString>{sample.board.files[0].id});
}

void SampleFolderTest::aNameOfNoFolderReadsNothing()
{
    const SampleRead read = readSample(QString());
    QVERIFY(!read.sample && !read.undecodable);
}

void SampleFolderTest::aMomentBeyondAllTimeIsTheLast()
{
    Sample sample;
    sample.board.sync = Job{.finished = 1e300};
    QCOMPARE(latestMoment(sample).date().year(), 9999);
}

void SampleFolderTest::multiOnABoardOfOneSelectsThatOne()
{
    const auto store = staged(sampleOf(1), {.multi = true});
    QCOMPARE(store->selection(), QSet<QString>{u"a"_s});
}

void SampleFolderTest::focusPicksTheFirstFindingOfHighSeverity()
{
    QCOMPARE(staged(sampleOf(2), {.focus = true})->focus(), u"higha"_s);
}

void SampleFolderTest::focusWithoutAHighFindingPicksNone()
{
    Sample sample = sampleOf(1);
    sample.details[u"a"_s].findings.resize(1);
    QVERIFY(!staged(sample, {.focus = true})->focus());
}

void SampleFolderTest::activityOpensTheList()
{
    QVERIFY(staged(sampleOf(1), {.activity = true})->showActivity());
}

void SampleFolderTest::pinIsPlaced()
{
    QCOMPARE(staged(sampleOf(1), {.pin = true})->draftPin(), QPointF(0.62, 0.30));
}

void SampleFolderTest::aBoardWithoutFilesIsStagedWithoutASelection()
{
    const auto store = staged(Sample(), {.multi = true, .focus = true, .activity = true, .pin = true});
    QVERIFY(store->selection().isEmpty());
    QVERIFY(store->showActivity());
}

QTEST_GUILESS_MAIN(SampleFolderTest)
#include "tst_samplefolder.moc"
