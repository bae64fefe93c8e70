#include "fileheader.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

class FileHeaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFactStandsInItsPlace();
    void onePageIsSingular();
    void fewerPagesThanNoneAreNotTold();
    void aFileWithNothingKnownHasNoFacts();
    void aReviewedFileWithoutAReviewerNamesNone();
    void aFileThatIsNotReviewedNamesNoReviewer();
    void severalFilesAreCounted();

private:
    const QDateTime m_now = QDateTime::fromString(u"2026-11-20T12:00:00Z"_s, Qt::ISODate);
    const Clock m_clock{[this] { return m_now; }, QTimeZone::utc(), QLocale(u"en_GB"_s)};
};

void FileHeaderTest::everyFactStandsInItsPlace()
{
    FileItem file;
    file.po = u"PO 2231"_s;
    file.supplier = u"Ostrel Print"_s;
    file.page_count = 16;
    file.sender = u"Anneke"_s;
    file.received = m_now.addDays(-2).toMSecsSinceEpoch();
    file.status = u"reviewed"_s;
    file.status_by = u"mira@x.org"_s;
    file.status_at = m_now.addSecs(-600).toMSecsSinceEpoch();
    QCOMPARE(fileFacts(file, u"Mira"_s, m_clock),
             u"PO 2231 · Ostrel Print · 16 pages · from Anneke · 18 Nov · Reviewed by Mira 10 min ago"_s);
}

void FileHeaderTest::onePageIsSingular()
{
    FileItem file;
    file.page_count = 1;
    QCOMPARE(fileFacts(file, {}, m_clock), u"1 page"_s);
    file.page_count = 2;
    QCOMPARE(fileFacts(file, {}, m_clock), u"2 pages"_s);
}

void FileHeaderTest::fewerPagesThanNoneAreNotTold()
{
    FileItem file;
    file.page_count = -3;
    QCOMPARE(fileFacts(file, {}, m_clock), QString());
}

void FileHeaderTest::aFileWithNothingKnownHasNoFacts()
{
    QCOMPARE(fileFacts(FileItem(), {}, m_clock), QString());
}

void FileHeaderTest::aReviewedFileWithoutAReviewerNamesNone()
{
    FileItem file;
    file.status = u"reviewed"_s;
    file.status_at = m_now.toMSecsSinceEpoch();
    QCOMPARE(fileFacts(file, u"Claude"_s, m_clock), QString());
}

void FileHeaderTest::aFileThatIsNotReviewedNamesNoReviewer()
{
    FileItem file;
    file.status = u"in_review"_s;
    file.status_by = u"mira@x.org"_s;
    QCOMPARE(fileFacts(file, u"Mira"_s, m_clock), QString());
}

void FileHeaderTest::severalFilesAreCounted()
{
    QCOMPARE(filesHeading(3), u"3 files"_s);
}

QTEST_GUILESS_MAIN(FileHeaderTest)
#include "tst_fileheader.moc"
