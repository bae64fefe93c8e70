#include "reportfile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QtConcurrentRun>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// Everything in the folder, what is hidden, too.
QStringList everythingIn(const QTemporaryDir &folder)
{
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

/// While it lives no file of this process grows beyond so many bytes: the disk is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit full{bytes, m_limit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    void (*m_handler)(int);
    rlimit m_limit{};
};

} // namespace

/// Reports among the person's downloads.
class TestReportFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReportIsCalledByItsTitle_data()
    {
        QTest::addColumn<std::optional<QString>>("title");
        QTest::addColumn<QString>("name");
        using Title = std::optional<QString>;
        QTest::newRow("none") << Title() << u"Vexal report"_s;
        QTest::newRow("empty") << Title(u""_s) << u"Vexal report"_s;
        QTest::newRow("blank") << Title(u"  "_s) << u"Vexal report"_s;
        QTest::newRow("plain") << Title(u"PO 4711 · Fox cover"_s) << u"PO 4711 · Fox cover"_s;
        QTest::newRow("slashes") << Title(u"../fox/moth"_s) << u"-.-fox-moth"_s;
        QTest::newRow("hidden") << Title(u".profile"_s) << u"-profile"_s;
        QTest::newRow("control characters") << Title(u"a\nb\tc\u007fd\u0085e"_s + QChar(0)) << u"a-b-c-d-e-"_s;
        QTest::newRow("two hundred bytes") << Title(QString(200, u'a')) << QString(200, u'a');
        QTest::newRow("more") << Title(QString(201, u'a')) << QString(200, u'a');
        QTest::newRow("cut before a letter of two bytes") << Title(QString(199, u'a') + u"é"_s) << QString(199, u'a');
        QTest::newRow("cut before a letter of four") << Title(QString(197, u'a') + u"🦊"_s) << QString(197, u'a');
        QTest::newRow("cut before a letter with its accent")
            << Title(QString(199, u'a') + u"e\u0301"_s) << QString(199, u'a');
    }

    void aReportIsCalledByItsTitle()
    {
        QFETCH(std::optional<QString>, title);
        QFETCH(QString, name);
        QCOMPARE(reportName(title), name);
    }

    void aReportIsSavedWhole()
    {
        const QByteArray pdf(3'000'000, 'p');
        const auto path = saveReport(m_folder->path(), u"Fox"_s, pdf);
        QCOMPARE(path, m_folder->filePath(u"Fox.pdf"_s));
        QCOMPARE(contentOf(*path), pdf);
        QCOMPARE(everythingIn(*m_folder), QStringList{u"Fox.pdf"_s});
    }

    void aTakenNameGetsANumber()
    {
        QCOMPARE(saveReport(m_folder->path(), u"Fox"_s, "1"), m_folder->filePath(u"Fox.pdf"_s));
        QCOMPARE(saveReport(m_folder->path(), u"Fox"_s, "2"), m_folder->filePath(u"Fox 2.pdf"_s));
        QCOMPARE(saveReport(m_folder->path(), u"Fox"_s, "3"), m_folder->filePath(u"Fox 3.pdf"_s));
        QCOMPARE(contentOf(m_folder->filePath(u"Fox.pdf"_s)), "1");
        QCOMPARE(contentOf(m_folder->filePath(u"Fox 2.pdf"_s)), "2");
        QCOMPARE(contentOf(m_folder->filePath(u"Fox 3.pdf"_s)), "3");
    }

    void aLinkThatLeadsNowhereIsATakenNameToo()
    {
        QVERIFY(QFile::link(u"nowhere"_s, m_folder->filePath(u"Fox.pdf"_s)));
        QCOMPARE(saveReport(m_folder->path(), u"Fox"_s, "1"), m_folder->filePath(u"Fox 2.pdf"_s));
        QCOMPARE(everythingIn(*m_folder), (QStringList{u"Fox 2.pdf"_s, u"Fox.pdf"_s}));
    }

    void theLongestNameStillTakesANumber()
    {
        const QString title(300, u'a');
        QVERIFY(saveReport(m_folder->path(), title, "1"));
        QCOMPARE(saveReport(m_folder->path(), title, "2"), m_folder->filePath(QString(200, u'a') + u" 2.pdf"_s));
    }

    void reportsSavedAtOnceAllFindAPlace()
    {
        constexpr int many = 40;
        QList<QFuture<std::optional<QString>>> saving;
        for (int i = 0; i < many; ++i)
            saving.append(QtConcurrent::run([folder = m_folder->path(), i] {
                return saveReport(folder, u"Fox"_s, QByteArray(100'000, char('A' + i)));
            }));
        QSet<QString> paths;
        for (int i = 0; i < many; ++i) {
            const auto path = saving[i].result();
            QVERIFY(path);
            paths.insert(*path);
            QCOMPARE(contentOf(*path), QByteArray(100'000, char('A' + i)));
        }
        QCOMPARE(paths.size(), many);
        QCOMPARE(everythingIn(*m_folder).size(), many);
    }

    void aFullDiskLeavesNothing()
    {
        const FullDisk full(1'000'000);
        QCOMPARE(saveReport(m_folder->path(), u"Fox"_s, QByteArray(3'000'000, 'p')), std::nullopt);
        QCOMPARE(everythingIn(*m_folder), QStringList());
    }

    void aMissingFolderIsMade()
    {
        const QString folder = m_folder->filePath(u"Downloads"_s);
        QCOMPARE(saveReport(folder, u"Fox"_s, "1"), folder + u"/Fox.pdf"_s);
    }

    void withoutAFolderNothingIsSaved()
    {
        QVERIFY(QFile(m_folder->filePath(u"Downloads"_s)).open(QIODevice::WriteOnly));
        QCOMPARE(saveReport(m_folder->filePath(u"Downloads"_s), u"Fox"_s, "1"), std::nullopt);
    }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestReportFile)
#include "tst_reportfile.moc"
