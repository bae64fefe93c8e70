#include "images.h"

#include "pictures.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vexal;
using test::pictureBytes;

namespace {

/// A server of pictures in memory: counts what it is asked for, and answers at once or when it is told to.
struct Server
{
    QHash<QString, QByteArray> blobs;
    QStringList asked;
    bool holds = false;
    QList<std::function<void()>> held;

    Images::Fetch fetch()
    {
        return [this](const QString &key, QObject *, const Images::Fetched &fetched) {
            asked.append(key);
            const auto answer = [this, key, fetched] {
                const auto found = blobs.constFind(key);
                fetched(found == blobs.cend() ? std::nullopt : std::optional(*found));
            };
            if (holds)
                held.append(answer);
            else
                answer();
        };
    }

    void release()
    {
        holds = false;
        for (const auto &answer : std::exchange(held, {}))
            answer();
    }
};

/// What came back for a question, once it did.
struct Answer
{
    bool came = false;
    std::optional<Picture> picture;

    Images::Done done()
    {
        return [this](const std::optional<Picture> &given) {
            came = true;
            picture = given;
        };
    }
};

} // namespace

class ImagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void noKeyHasNoPicture();
    void twoWhoAskAtOnceCauseOneRequest();
    void anAskerThatGoesAwayEndsNoDownload();
    void aContextThatIsGoneIsToldNothing();
    void theFolderIsMadeWithItsParents();
    void aKeyWithASlashIsStoredUnderAnUnderscore();
    void aPictureIsReadFromDiskInALaterRun();
    void whatIsReadFromDiskIsInMemory();
    void samplesComeFirst();
    void samplesAreKeyedByTheirNames();
    void unreadableSamplesAreSkipped();
    void memoryStartsAgainFromEmptyAtThe402ndPicture();
    void aServerErrorLeavesNothing();
    void aBodyThatIsNoPictureIsNotStored();
    void aBodyWithAPicturesHeadAloneIsNotStored();
    void aFailureIsAskedAgainNextTime();
    void keysThatNameNoFileAreShownButNotStored_data();
    void keysThatNameNoFileAreShownButNotStored();
    void twoKeysOfOneFileNameNeverShowEachOther();
    void aFileOfAnEarlierRunIsNeithersOnceBothKeysAreKnown();
    void aFileCutShortIsFetchedAgain_data();
    void aFileCutShortIsFetchedAgain();
    void aFolderThatCannotBeWrittenStillShows();
    void aFullDiskStillShowsAndKeepsNothing();
    void nothingHalfWrittenStays();
    void aFileIsReplacedAndNeverWrittenOver();
    void aBodyThatBreaksOffIsNotKeptOnDisk();
    void aSpoiledSampleLeavesTheDiskAlone();
    void aHiddenSampleIsOneToo();
    void aSpoiledPictureIsAskedAgainOnce();
    void aPictureOfAbsurdSizeIsNone();
    void aBodyOfAbsurdLengthIsNone();
    void aFormatThatLoadsOtherFilesIsNone();

private:
    QString path(const QString &name) const { return m_folder->filePath(u"Vexal/img/"_s + name); }
    std::unique_ptr<Images> images()
    {
        return std::make_unique<Images>(m_folder->filePath(u"Vexal/img"_s), m_server.fetch());
    }
    std::optional<Picture> ask(Images &images, const QString &key);

    std::unique_ptr<QTemporaryDir> m_folder;
    Server m_server;
};

void ImagesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_server = {};
    m_server.blobs = {{u"a/b/c.png"_s, pictureBytes({20, 30})}, {u"d.jpg"_s, pictureBytes({40, 10}, Qt::blue, "JPG")}};
}

std::optional<Picture> ImagesTest::ask(Images &images, const QString &key)
{
    Answer answer;
    images.image(key, this, answer.done());
    if (!QTest::qWaitFor([&answer] { return answer.came; }))
        qFatal("nothing was answered");
    return answer.picture;
}

void ImagesTest::noKeyHasNoPicture()
{
    QVERIFY(!ask(*images(), {}));
    QVERIFY(m_server.asked.isEmpty());
}

void ImagesTest::twoWhoAskAtOnceCauseOneRequest()
{
    const auto cache = images();
    m_server.holds = true;
    Answer first;
    Answer second;
    cache->image(u"d.jpg"_s, this, first.done());
    cache->image(u"d.jpg"_s, this, second.done());
    m_server.release();
    QTRY_VERIFY(first.came && second.came);
    QCOMPARE(m_server.asked, QStringList{u"d.jpg"_s});
    QCOMPARE(first.picture->size(), QSize(40, 10));
    QCOMPARE(first.picture->id(), second.picture->id());
}

void ImagesTest::anAskerThatGoesAwayEndsNoDownload()
{
    const auto cache = images();
    m_server.holds = true;
    auto leaving = std::make_unique<QObject>();
    Answer left;
    Answer stayed;
    cache->image(u"d.jpg"_s, leaving.get(), left.done());
    cache->image(u"d.jpg"_s, this, stayed.done());
    leaving.reset();
    m_server.release();
    QTRY_VERIFY(stayed.came);
    QVERIFY(stayed.picture);
    QVERIFY(!left.came);
}

void ImagesTest::aContextThatIsGoneIsToldNothing()
{
    const auto cache = images();
    m_server.holds = true;
    auto leaving = std::make_unique<QObject>();
    Answer left;
    cache->image(u"d.jpg"_s, leaving.get(), left.done());
    leaving.reset();
    m_server.release();
    QTRY_VERIFY(cache->cached(u"d.jpg"_s));
    QVERIFY(!left.came);
}

void ImagesTest::theFolderIsMadeWithItsParents()
{
    const auto cache = images();
    QVERIFY(QDir(path({})).exists());
}

void ImagesTest::aKeyWithASlashIsStoredUnderAnUnderscore()
{
    const auto cache = images();
    QVERIFY(ask(*cache, u"a/b/c.png"_s));
    QCOMPARE(QDir(path({})).entryList(QDir::Files), QStringList{u"a_b_c.png"_s});
    QFile file(path(u"a_b_c.png"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), m_server.blobs.value(u"a/b/c.png"_s));
}

void ImagesTest::aPictureIsReadFromDiskInALaterRun()
{
    QVERIFY(ask(*images(), u"d.jpg"_s));
    const auto later = images();
    QCOMPARE(later->cached(u"d.jpg"_s)->size(), QSize(40, 10));
    QCOMPARE(m_server.asked.size(), 1);
}

void ImagesTest::whatIsReadFromDiskIsInMemory()
{
    QVERIFY(ask(*images(), u"d.jpg"_s));
    const auto later = images();
    QCOMPARE(later->inMemory(), 0);
    const auto read = later->cached(u"d.jpg"_s);
    QCOMPARE(later->inMemory(), 1);
    QVERIFY(QFile::remove(path(u"d.jpg"_s)));
    QCOMPARE(later->cached(u"d.jpg"_s)->id(), read->id());
}

void ImagesTest::samplesComeFirst()
{
    const QTemporaryDir samples;
    QFile file(samples.filePath(u"d.jpg"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(pictureBytes({7, 7}));
    file.close();
    const auto cache = images();
    QVERIFY(ask(*cache, u"d.jpg"_s));
    cache->addSamples(samples.path());
    QCOMPARE(cache->cached(u"d.jpg"_s)->size(), QSize(7, 7));
}

void ImagesTest::samplesAreKeyedByTheirNames()
{
    const QTemporaryDir samples;
    for (const char *name : {"a_b.jpg", "plain.png", "c_d_e.png", "UPPER.JPG", "other.gif", "sample.json"}) {
        QFile file(samples.filePath(QLatin1StringView(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(pictureBytes({7, 7}));
    }
    const auto cache = images();
    cache->addSamples(samples.path());
    QVERIFY(cache->cached(u"a/b.jpg"_s));
    QVERIFY(cache->cached(u"plain.png"_s));
    QVERIFY(cache->cached(u"c/d/e.png"_s));
    QVERIFY(!cache->cached(u"a/b"_s));
    QVERIFY(!cache->cached(u"a_b.jpg"_s));
    QVERIFY(!cache->cached(u"UPPER.JPG"_s));
    QVERIFY(!cache->cached(u"other.gif"_s));
    QVERIFY(m_server.asked.isEmpty());
}

void ImagesTest::unreadableSamplesAreSkipped()
{
    const QTemporaryDir samples;
    QFile file(samples.filePath(u"broken.png"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    const auto cache = images();
    cache->addSamples(samples.path());
    QVERIFY(!cache->cached(u"broken.png"_s));
}

void ImagesTest::memoryStartsAgainFromEmptyAtThe402ndPicture()
{
    const QByteArray bytes = pictureBytes({4, 4});
    const auto cache = images();
    for (int i = 0; i < 401; ++i) {
        m_server.blobs.insert(QString::number(i), bytes);
        QVERIFY(ask(*cache, QString::number(i)));
    }
    QCOMPARE(cache->inMemory(), 401);
    QVERIFY(ask(*cache, u"d.jpg"_s));
    QCOMPARE(cache->inMemory(), 1);
    const auto asked = m_server.asked.size();
    QVERIFY(cache->cached(u"7"_s));
    QCOMPARE(m_server.asked.size(), asked);
}

void ImagesTest::aServerErrorLeavesNothing()
{
    const auto cache = images();
    QVERIFY(!ask(*cache, u"unknown"_s));
    QCOMPARE(cache->inMemory(), 0);
    QVERIFY(QDir(path({})).isEmpty());
}

void ImagesTest::aBodyThatIsNoPictureIsNotStored()
{
    const auto cache = images();
    m_server.blobs.insert(u"page"_s, "<html>Sorry</html>");
    QVERIFY(!ask(*cache, u"page"_s));
    QVERIFY(QDir(path({})).isEmpty());
}

void ImagesTest::aBodyWithAPicturesHeadAloneIsNotStored()
{
    const auto cache = images();
    m_server.blobs.insert(u"page"_s, pictureBytes({200, 200}).left(80));
    QVERIFY(!ask(*cache, u"page"_s));
    QVERIFY(QDir(path({})).isEmpty());
}

void ImagesTest::aFailureIsAskedAgainNextTime()
{
    const auto cache = images();
    QVERIFY(!ask(*cache, u"late"_s));
    m_server.blobs.insert(u"late"_s, pictureBytes({4, 4}));
    QVERIFY(ask(*cache, u"late"_s));
    QCOMPARE(m_server.asked.size(), 2);
}

void ImagesTest::keysThatNameNoFileAreShownButNotStored_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("this folder") << u"."_s;
    QTest::newRow("the folder above") << u".."_s;
    QTest::newRow("with a NUL") << (u"a"_s + QChar(u'\0') + u"b"_s);
    QTest::newRow("of 300 characters") << QString(300, u'k');
    QTest::newRow("of 200 characters that take 400 bytes") << QString(200, u'ü');
}

void ImagesTest::keysThatNameNoFileAreShownButNotStored()
{
    QFETCH(QString, key);
    const auto cache = images();
    m_server.blobs.insert(key, pictureBytes({4, 4}));
    QVERIFY(!cache->cached(key));
    const auto picture = ask(*cache, key);
    QVERIFY(picture);
    QCOMPARE(picture->decoded(picture->size()).size(), QSize(4, 4));
    QVERIFY(QDir(path({})).isEmpty());
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"Vexal"_s});
}

void ImagesTest::twoKeysOfOneFileNameNeverShowEachOther()
{
    const auto cache = images();
    m_server.blobs.insert(u"a/b"_s, pictureBytes({4, 4}));
    m_server.blobs.insert(u"a_b"_s, pictureBytes({8, 8}));
    QCOMPARE(ask(*cache, u"a/b"_s)->size(), QSize(4, 4));
    QVERIFY(!cache->cached(u"a_b"_s));
    QCOMPARE(ask(*cache, u"a_b"_s)->size(), QSize(8, 8));
    QCOMPARE(cache->cached(u"a/b"_s)->size(), QSize(4, 4));
    QCOMPARE(images()->cached(u"a/b"_s)->size(), QSize(4, 4));
}

void ImagesTest::aFileOfAnEarlierRunIsNeithersOnceBothKeysAreKnown()
{
    m_server.blobs.insert(u"a/b"_s, pictureBytes({4, 4}));
    m_server.blobs.insert(u"a_b"_s, pictureBytes({8, 8}));
    QCOMPARE(ask(*images(), u"a_b"_s)->size(), QSize(8, 8));
    const auto later = images();
    QVERIFY(later->cached(u"a/b"_s)); // the other's, but nobody knows of the other yet
    QCOMPARE(ask(*later, u"a_b"_s)->size(), QSize(8, 8));
    QCOMPARE(ask(*later, u"a/b"_s)->size(), QSize(4, 4));
    QCOMPARE(later->cached(u"a_b"_s)->size(), QSize(8, 8));
    QCOMPARE(images()->cached(u"a_b"_s)->size(), QSize(8, 8));
}

void ImagesTest::aFileCutShortIsFetchedAgain_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("PNG") << u"a/b/c.png"_s;
    QTest::newRow("JPEG") << u"d.jpg"_s;
}

void ImagesTest::aFileCutShortIsFetchedAgain()
{
    QFETCH(QString, key);
    QVERIFY(ask(*images(), key));
    QFile file(path(*cacheFileName(key)));
    QVERIFY(file.resize(file.size() - 16));
    const auto later = images();
    QVERIFY(!later->cached(key));
    QVERIFY(ask(*later, key));
    QCOMPARE(m_server.asked.size(), 2);
    QCOMPARE(file.size(), m_server.blobs.value(key).size());
}

void ImagesTest::aFolderThatCannotBeWrittenStillShows()
{
    // A file where the folder would be: nothing can be made under it, whoever asks.
    QFile blocker(m_folder->filePath(u"Vexal"_s));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    const auto cache = images();
    const auto picture = ask(*cache, u"d.jpg"_s);
    QVERIFY(picture);
    QCOMPARE(picture->decoded(picture->size()).size(), QSize(40, 10));
}

void ImagesTest::aFullDiskStillShowsAndKeepsNothing()
{
    // As little room as a disk can have: no file may hold a byte.
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    QVERIFY(::getrlimit(RLIMIT_FSIZE, &usual) == 0);
    const rlimit none{.rlim_cur = 0, .rlim_max = usual.rlim_max};
    QVERIFY(::setrlimit(RLIMIT_FSIZE, &none) == 0);
    const auto cache = images();
    const auto picture = ask(*cache, u"d.jpg"_s);
    QVERIFY(::setrlimit(RLIMIT_FSIZE, &usual) == 0);
    QVERIFY(picture);
    QCOMPARE(picture->decoded(picture->size()).size(), QSize(40, 10));
    QCOMPARE(QDir(path({})).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void ImagesTest::nothingHalfWrittenStays()
{
    const auto cache = images();
    QVERIFY(ask(*cache, u"a/b/c.png"_s));
    QVERIFY(ask(*cache, u"d.jpg"_s));
    QCOMPARE(QDir(path({})).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void ImagesTest::aFileIsReplacedAndNeverWrittenOver()
{
    {
        const auto cache = images();
        QVERIFY(ask(*cache, u"d.jpg"_s));
    }
    // A second name of the same file keeps what it was.
    const QByteArray file = QFile::encodeName(path(u"d.jpg"_s));
    const QByteArray other = QFile::encodeName(m_folder->filePath(u"other"_s));
    QVERIFY(::truncate(file.constData(), 30) == 0 && ::link(file.constData(), other.constData()) == 0);
    const auto cache = images();
    QVERIFY(ask(*cache, u"d.jpg"_s));
    QVERIFY(QFileInfo(path(u"d.jpg"_s)).size() > 30);
    QCOMPARE(QFileInfo(m_folder->filePath(u"other"_s)).size(), 30);
}

void ImagesTest::aBodyThatBreaksOffIsNotKeptOnDisk()
{
    QByteArray &body = m_server.blobs[u"d.jpg"_s];
    body.chop(8);
    const auto cache = images();
    ask(*cache, u"d.jpg"_s);
    QVERIFY(!QFile::exists(path(u"d.jpg"_s)));
}

void ImagesTest::aSpoiledSampleLeavesTheDiskAlone()
{
    const QTemporaryDir folder;
    QFile sample(folder.filePath(u"d.jpg"_s));
    QVERIFY(sample.open(QIODevice::WriteOnly) && sample.write(pictureBytes({5, 5})) > 0);
    sample.close();
    const auto cache = images();
    QVERIFY(ask(*cache, u"d.jpg"_s));
    cache->addSamples(folder.path());
    QVERIFY(!cache->spoiled(u"d.jpg"_s));
    QVERIFY(QFile::exists(path(u"d.jpg"_s)));
}

void ImagesTest::aHiddenSampleIsOneToo()
{
    const QTemporaryDir folder;
    QFile sample(folder.filePath(u".a_b.png"_s));
    QVERIFY(sample.open(QIODevice::WriteOnly) && sample.write(pictureBytes({5, 5})) > 0);
    sample.close();
    const auto cache = images();
    cache->addSamples(folder.path());
    QVERIFY(cache->cached(u".a/b.png"_s));
}

void ImagesTest::aSpoiledPictureIsAskedAgainOnce()
{
    const auto cache = images();
    QVERIFY(ask(*cache, u"d.jpg"_s));
    QVERIFY(cache->spoiled(u"d.jpg"_s));
    QVERIFY(!cache->cached(u"d.jpg"_s));
    QVERIFY(ask(*cache, u"d.jpg"_s));
    QCOMPARE(m_server.asked.size(), 2);
    QVERIFY(!cache->spoiled(u"d.jpg"_s));
}

void ImagesTest::aPictureOfAbsurdSizeIsNone()
{
    // A PNG's size stands in its head: big-endian at 16 and 20, with a checksum at 29 that is wrong then. A BMP has
    // none.
    QByteArray bitmap = pictureBytes({4, 4}, Qt::red, "BMP");
    QVERIFY(Picture::fromBytes(bitmap));
    const QByteArray sixtyThousand("\x60\xea\0\0", 4);
    bitmap.replace(18, 4, sixtyThousand);
    bitmap.replace(22, 4, sixtyThousand);
    QVERIFY(!Picture::fromBytes(bitmap));
}

void ImagesTest::aBodyOfAbsurdLengthIsNone()
{
    QByteArray bytes = pictureBytes({4, 4}, Qt::red, "JPG");
    QVERIFY(Picture::fromBytes(bytes));
    bytes.resize(mostBytes + 1);
    QVERIFY(!Picture::fromBytes(bytes));
}

void ImagesTest::aFormatThatLoadsOtherFilesIsNone()
{
    QVERIFY(!Picture::fromBytes(
        "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'><image href='/etc/passwd'/></svg>"));
    QVERIFY(!Picture::fromBytes("/* XPM */\nstatic char *a[] = {\"1 1 1 1\", \"a c red\", \"a\"};"));
}

QTEST_GUILESS_MAIN(ImagesTest)
#include "tst_images.moc"
