#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Run
{
    int status = -1;
    QByteArray errors;
};

} // namespace

/// The real client, started from the command line as a script would.
class PhotographTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSizeIsExactInPixels();
    void theScaleMultipliesThePixels();
    void aSizeThatIsNoneLeavesTheStandardOne();
    void twoPhotographsAreTheSameBytes();
    void theBoardsPagesAreOnIt();
    void darkIsDarker();
    void eachStateLooksDifferent();
    void signinShowsNoBoardEvenWithASample();
    void aFolderWithoutASampleShowsTheSignInScreen();
    void aSampleThatDoesNotDecodeSaysSo();
    void aPathThatCannotBeWrittenIsSaidAndForgiven();
    void anUnreadablePictureIsSimplyMissing();
    void nothingOfThePersonsOwnGetsIntoThePicture();
    void itIsTakenBesideAnotherOneThatRuns();
    void anEmptyFolderNameIsNoFolder();

private:
    Run photograph(const QString &name, const QStringList &flags, const QStringList &environment = {}) const;
    QImage picture(const QString &name, const QStringList &flags, const QStringList &environment = {}) const;
    QString path(const QString &name) const { return m_folder.filePath(name); }

    const QString m_sample = QStringLiteral(VEXAL_SAMPLE_FOLDER);
    QTemporaryDir m_folder;
};

Run PhotographTest::photograph(const QString &name, const QStringList &flags, const QStringList &environment) const
{
    QProcess vexal;
    auto surroundings = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : environment)
        surroundings.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    vexal.setProcessEnvironment(surroundings);
    vexal.start(QStringLiteral(VEXAL_BINARY), QStringList{u"--shot"_s, path(name)} + flags);
    if (!vexal.waitForFinished(60000)) {
        vexal.kill();
        vexal.waitForFinished();
        return {};
    }
    return {vexal.exitStatus() == QProcess::NormalExit ? vexal.exitCode() : -1, vexal.readAllStandardError()};
}

QImage PhotographTest::picture(const QString &name, const QStringList &flags, const QStringList &environment) const
{
    const Run run = photograph(name, flags, environment);
    if (run.status != 0)
        qWarning("status %d: %s", run.status, run.errors.constData());
    return QImage(path(name));
}

void PhotographTest::aSizeIsExactInPixels()
{
    QCOMPARE(picture(u"size.png"_s, {u"--sample"_s, m_sample, u"--size"_s, u"1440x900"_s}).size(), QSize(1440, 900));
}

void PhotographTest::theScaleMultipliesThePixels()
{
    const QImage image =
        picture(u"scale.png"_s, {u"--sample"_s, m_sample, u"--size"_s, u"1200x800"_s}, {u"QT_SCALE_FACTOR=2"_s});
    QCOMPARE(image.size(), QSize(2400, 1600));
}

void PhotographTest::aSizeThatIsNoneLeavesTheStandardOne()
{
    QCOMPARE(picture(u"standard.png"_s, {u"--sample"_s, m_sample, u"--size"_s, u"1440x"_s}).size(), QSize(1500, 940));
}

void PhotographTest::twoPhotographsAreTheSameBytes()
{
    const QStringList flags{u"--sample"_s, m_sample, u"--focus"_s, u"--pin"_s};
    picture(u"first.png"_s, flags);
    picture(u"second.png"_s, flags);
    QFile first(path(u"first.png"_s));
    QFile second(path(u"second.png"_s));
    QVERIFY(first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly));
    QCOMPARE(first.readAll(), second.readAll());
}

void PhotographTest::theBoardsPagesAreOnIt()
{
    const QImage board = picture(u"board.png"_s, {u"--sample"_s, m_sample});
    // The middle of the supplier's page and of ours: painted, so of many colours.
    for (const QRect &place : {QRect(450, 250, 300, 300), QRect(1050, 250, 300, 300)}) {
        QSet<QRgb> colours;
        const QImage part = board.copy(place).convertToFormat(QImage::Format_RGB32);
        for (int y = 0; y < part.height(); ++y) {
            for (int x = 0; x < part.width(); ++x)
                colours.insert(part.pixel(x, y));
        }
        QVERIFY2(colours.size() > 200, qPrintable(QString::number(colours.size())));
    }
}

void PhotographTest::darkIsDarker()
{
    const QImage light = picture(u"light.png"_s, {u"--sample"_s, m_sample});
    const QImage dark = picture(u"dark.png"_s, {u"--sample"_s, m_sample, u"--dark"_s});
    QVERIFY(light.pixelColor(150, 20).lightness() > 200);
    QVERIFY(dark.pixelColor(150, 20).lightness() < 50);
}

void PhotographTest::eachStateLooksDifferent()
{
    const QImage plain = picture(u"plain.png"_s, {u"--sample"_s, m_sample});
    QVERIFY(!plain.isNull());
    for (const char *flag : {"--multi", "--focus", "--activity", "--pin"}) {
        const QString name = QLatin1StringView(flag);
        const QImage posed = picture(name + u".png"_s, {u"--sample"_s, m_sample, name});
        QCOMPARE(posed.size(), plain.size());
        QVERIFY2(posed != plain, flag);
    }
}

void PhotographTest::signinShowsNoBoardEvenWithASample()
{
    const QImage signin = picture(u"signin.png"_s, {u"--signin"_s});
    const QImage both = picture(u"both.png"_s, {u"--signin"_s, u"--sample"_s, m_sample});
    QVERIFY(!signin.isNull());
    QCOMPARE(both, signin);
}

void PhotographTest::aFolderWithoutASampleShowsTheSignInScreen()
{
    QCOMPARE(picture(u"nowhere.png"_s, {u"--sample"_s, path(u"nowhere"_s)}), picture(u"signin.png"_s, {u"--signin"_s}));
}

void PhotographTest::aSampleThatDoesNotDecodeSaysSo()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"sample.json"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{}");
    file.close();
    const Run run = photograph(u"undecodable.png"_s, {u"--sample"_s, folder.path()});
    QCOMPARE(run.status, 1);
    QCOMPARE(run.errors, QByteArray("sample.json did not decode\n"));
    QVERIFY(!QFile::exists(path(u"undecodable.png"_s)));
}

void PhotographTest::aPathThatCannotBeWrittenIsSaidAndForgiven()
{
    const Run run = photograph(u"no/such/folder.png"_s, {u"--signin"_s});
    QCOMPARE(run.status, 0);
    QVERIFY(run.errors.contains("no/such/folder.png"));
}

void PhotographTest::anUnreadablePictureIsSimplyMissing()
{
    const QTemporaryDir folder;
    for (const QString &name : QDir(m_sample).entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        if (!name.startsWith(u"fox_"))
            QVERIFY(QFile::link(m_sample + u'/' + name, file.fileName()));
        else
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
    }
    const QImage without = picture(u"pictureless.png"_s, {u"--sample"_s, folder.path()});
    const QImage with = picture(u"board.png"_s, {u"--sample"_s, m_sample});
    const QRect page(450, 250, 300, 300); // The fox's.
    QVERIFY(without.copy(page) != with.copy(page));
    const QRect firstRows(0, 240, 288, 150); // Not the fox's.
    QCOMPARE(without.copy(firstRows), with.copy(firstRows));
}

void PhotographTest::nothingOfThePersonsOwnGetsIntoThePicture()
{
    const QTemporaryDir sample;
    const QTemporaryDir caches;
    QVERIFY(QFile::link(m_sample + u"/sample.json"_s, sample.filePath(u"sample.json"_s)));
    QVERIFY(QDir(caches.path()).mkpath(u"Vexal/img"_s));
    for (const QString &name : QDir(m_sample).entryList({u"fox_*"_s}, QDir::Files))
        QVERIFY(QFile::link(m_sample + u'/' + name, caches.filePath(u"Vexal/img/"_s + name)));
    const QStringList flags{u"--sample"_s, sample.path()};
    QCOMPARE(picture(u"cached.png"_s, flags, {u"XDG_CACHE_HOME="_s + caches.path()}),
             picture(u"uncached.png"_s, flags, {u"XDG_CACHE_HOME="_s + sample.path()}));
}

void PhotographTest::itIsTakenBesideAnotherOneThatRuns()
{
    QProcess running;
    running.start(QStringLiteral(VEXAL_BINARY), {u"-ServerURL"_s, u"http://127.0.0.1:9"_s});
    QVERIFY(running.waitForStarted());
    const QImage beside = picture(u"beside.png"_s, {u"--signin"_s});
    QCOMPARE(running.state(), QProcess::Running);
    running.terminate();
    QVERIFY(running.waitForFinished());
    QCOMPARE(beside, picture(u"alone.png"_s, {u"--signin"_s}));
}

void PhotographTest::anEmptyFolderNameIsNoFolder()
{
    QCOMPARE(picture(u"nameless.png"_s, {u"--sample"_s, QString()}), picture(u"signin.png"_s, {u"--signin"_s}));
}

QTEST_GUILESS_MAIN(PhotographTest)
#include "tst_photograph.moc"
