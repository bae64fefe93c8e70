#include <QDir>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// The demo as a newcomer starts it: client and board in one process, photographed.
class DemoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLiveBoardIsOnTheScreen();
    void aSecondStartFindsTheFirstOnesBoard();
    void aFolderWithoutABoardIsSaid();
    void aBoardThatIsInUseIsSaid();

private:
    struct Run
    {
        int status = -1;
        QByteArray errors;
    };

    Run run(const QStringList &arguments) const
    {
        QProcess demo;
        demo.start(QStringLiteral(VEXAL_DEMO), arguments);
        if (!demo.waitForFinished(60000))
            return {};
        return {demo.exitStatus() == QProcess::NormalExit ? demo.exitCode() : -1, demo.readAllStandardError()};
    }
    QStringList photograph(const QString &name) const
    {
        return {u"--seed"_s, m_sample, u"--data"_s, path(u"data"_s), u"--shot"_s, path(name)};
    }
    QString path(const QString &name) const { return m_folder.filePath(name); }

    const QString m_sample = QStringLiteral(VEXAL_SAMPLE_FOLDER);
    QTemporaryDir m_folder;
};

void DemoTest::theLiveBoardIsOnTheScreen()
{
    const Run shown = run(photograph(u"first.png"_s));
    QVERIFY2(shown.status == 0, shown.errors.constData());
    const QImage window(path(u"first.png"_s));
    QCOMPARE(window.size(), QSize(1500, 940));
    // The middle of the supplier's page, which came as a blob over HTTP.
    QSet<QRgb> colours;
    for (int y = 250; y < 550; ++y) {
        for (int x = 450; x < 750; ++x)
            colours.insert(window.pixel(x, y));
    }
    QVERIFY2(colours.size() > 200, qPrintable(QString::number(colours.size())));
}

void DemoTest::aSecondStartFindsTheFirstOnesBoard()
{
    const QStringList before = QDir(path(u"data"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    QCOMPARE(before, (QStringList{u"board"_s, u"pictures"_s}));
    QCOMPARE(run(photograph(u"second.png"_s)).status, 0);
    QVERIFY(!QImage(path(u"second.png"_s)).isNull());
}

void DemoTest::aFolderWithoutABoardIsSaid()
{
    const Run none = run({u"--seed"_s, path(u"nowhere"_s)});
    QCOMPARE(none.status, 2);
    QVERIFY(none.errors.contains("nowhere holds no sample board"));
}

void DemoTest::aBoardThatIsInUseIsSaid()
{
    QProcess first;
    first.start(QStringLiteral(VEXAL_DEMO), {u"--seed"_s, m_sample, u"--data"_s, path(u"shared"_s)});
    QVERIFY(first.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(!QDir(path(u"shared/pictures"_s)).isEmpty(), 30000);
    const Run second = run({u"--seed"_s, m_sample, u"--data"_s, path(u"shared"_s)});
    QCOMPARE(second.status, 2);
    QVERIFY(!second.errors.isEmpty());
    first.terminate();
    QVERIFY(first.waitForFinished());
}

QTEST_GUILESS_MAIN(DemoTest)
#include "tst_demo.moc"
