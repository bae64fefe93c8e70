#include "livestore.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

const QString notOpened = u"Couldn't open the report."_s;

BoardState theBoard()
{
    BoardState board = aBoard({aFile(u"f"_s)});
    Report fox;
    fox.id = u"r"_s;
    fox.title = u"Fox"_s;
    Report untitled;
    untitled.id = u"s"_s;
    board.reports = {fox, untitled};
    return board;
}

} // namespace

/// Reports, from the server to the person's screen.
class TestReports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_live = std::make_unique<LiveStore>(theBoard());
        m_live->client.server.on("GET", "/api/reports/r/pdf").answer(200, "%PDF fox");
        m_live->client.server.on("GET", "/api/reports/s/pdf").answer(200, "%PDF untitled");
        m_live->begin();
    }
    void cleanup() { m_live.reset(); }

    void aReportIsSavedAndOpened()
    {
        open(u"r"_s);
        QCOMPARE(m_live->opener.files, QStringList{inDownloads(u"Fox.pdf"_s)});
        QCOMPARE(contentOf(u"Fox.pdf"_s), "%PDF fox");
        QCOMPARE(m_live->toast(), u""_s);
        QCOMPARE(m_live->asked(), QStringList{u"GET /api/reports/r/pdf"_s});
    }

    void aReportOpenedTwiceIsThereTwice()
    {
        open(u"r"_s);
        m_live->client.server.on("GET", "/api/reports/r/pdf").answer(200, "%PDF fox again");
        open(u"r"_s);
        QCOMPARE(m_live->opener.files, (QStringList{inDownloads(u"Fox.pdf"_s), inDownloads(u"Fox 2.pdf"_s)}));
        QCOMPARE(contentOf(u"Fox.pdf"_s), "%PDF fox");
        QCOMPARE(contentOf(u"Fox 2.pdf"_s), "%PDF fox again");
    }

    void aReportWithoutATitleHasANameAllTheSame()
    {
        open(u"s"_s);
        QCOMPARE(m_live->opener.files, QStringList{inDownloads(u"Vexal report.pdf"_s)});
    }

    void twoReportsThatEndAtOnceAreBothThere()
    {
        m_live->board.reports[1].title = u"Fox"_s;
        m_live->round();
        m_live->store.openReport(u"r"_s);
        m_live->store.openReport(u"s"_s);
        QCOMPARE(m_live->store.busy(), (QSet{u"open-r"_s, u"open-s"_s}));
        waitForEnd();
        QCOMPARE(m_live->opener.files.size(), 2);
        QCOMPARE((QSet{contentOf(u"Fox.pdf"_s), contentOf(u"Fox 2.pdf"_s)}),
                 (QSet<QByteArray>{"%PDF fox", "%PDF untitled"}));
    }

    void aLargeReportIsTaken()
    {
        const QByteArray large(70 * 1024 * 1024, 'p');
        m_live->client.server.on("GET", "/api/reports/r/pdf").answer(200, large);
        open(u"r"_s);
        QCOMPARE(contentOf(u"Fox.pdf"_s).size(), large.size());
    }

    void nothingIsNoReport()
    {
        m_live->client.server.on("GET", "/api/reports/r/pdf").answer(200, "");
        open(u"r"_s);
        QCOMPARE(m_live->toast(), notOpened);
        QCOMPARE(saved(), QStringList());
    }

    void aReportThatIsCutIsNotSaved()
    {
        m_live->client.server.on("GET", "/api/reports/r/pdf").answer(Answer(200, "%PDF fox").cutAfter(5));
        open(u"r"_s);
        QCOMPARE(m_live->toast(), notOpened);
        QCOMPARE(saved(), QStringList());
    }

    void aFolderThatTakesNothingIsSaidSo()
    {
        m_live->downloads.remove();
        QVERIFY(QFile(m_live->downloads.path()).open(QIODevice::WriteOnly));
        open(u"r"_s);
        QCOMPARE(m_live->toast(), notOpened);
        QVERIFY(m_live->opener.files.isEmpty());
        QFile::remove(m_live->downloads.path());
    }

    void aReportThatNoProgramOpensIsSaidSo()
    {
        m_live->opener.hasProgram = false;
        open(u"r"_s);
        QCOMPARE(m_live->toast(), notOpened);
        QCOMPARE(saved(), QStringList{u"Fox.pdf"_s});
    }

    void aStoreMayGoWhileAReportIsSaved()
    {
        m_live->store.openReport(u"r"_s);
        QTRY_COMPARE(m_live->client.server.requests().size(), 1);
        m_live.reset();
    }

private:
    void waitForEnd() { QTRY_VERIFY(m_live->store.busy().isEmpty()); }
    void open(const QString &id)
    {
        m_live->store.openReport(id);
        QVERIFY(m_live->store.isBusy(u"open-"_s + id));
        waitForEnd();
    }
    QString inDownloads(const QString &name) const { return m_live->downloads.filePath(name); }
    QByteArray contentOf(const QString &name) const
    {
        QFile file(inDownloads(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    QStringList saved() const
    {
        return QDir(m_live->downloads.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<LiveStore> m_live;
};

QTEST_GUILESS_MAIN(TestReports)
#include "tst_reports.moc"
