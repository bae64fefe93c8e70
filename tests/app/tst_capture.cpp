#include "capture.h"

#include <QFile>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace vexal;

class CaptureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAWindowThereIsNone();
    void aWindowWithoutContentIsNone();
    void theVisibleWindowIsDrawn();
    void aHiddenWindowIsDrawnAllTheSame();
    void aPathOfAnotherKindStillReceivesPng();
    void anOlderFileIsReplaced();
    void aPathThatCannotBeWrittenIsNoFailure();
    void aWindowTooLargeToDrawHasNoBitmap();

private:
    static std::unique_ptr<QQuickWindow> window(const QColor &colour)
    {
        auto made = std::make_unique<QQuickWindow>();
        made->setColor(colour);
        made->resize(120, 80);
        return made;
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void CaptureTest::withoutAWindowThereIsNone()
{
    QCOMPARE(capture(path(u"none.png"_s)), CaptureStatus::NoWindow);
    QVERIFY(!QFile::exists(path(u"none.png"_s)));
}

void CaptureTest::aWindowWithoutContentIsNone()
{
    QWindow bare;
    bare.create();
    QCOMPARE(capture(path(u"bare.png"_s)), CaptureStatus::NoWindow);
}

void CaptureTest::theVisibleWindowIsDrawn()
{
    const auto hidden = window(Qt::red);
    const auto shown = window(Qt::blue);
    shown->show();
    QVERIFY(QTest::qWaitForWindowExposed(shown.get()));
    QCOMPARE(capture(path(u"shown.png"_s)), CaptureStatus::Written);
    const QImage image(path(u"shown.png"_s));
    QCOMPARE(image.size(), QSize(120, 80));
    QCOMPARE(image.pixelColor(60, 40), QColor(Qt::blue));
}

void CaptureTest::aHiddenWindowIsDrawnAllTheSame()
{
    const auto hidden = window(Qt::red);
    QCOMPARE(capture(path(u"hidden.png"_s)), CaptureStatus::Written);
    QCOMPARE(QImage(path(u"hidden.png"_s)).pixelColor(60, 40), QColor(Qt::red));
}

void CaptureTest::aPathOfAnotherKindStillReceivesPng()
{
    const auto shown = window(Qt::blue);
    QCOMPARE(capture(path(u"window.jpg"_s)), CaptureStatus::Written);
    QFile file(path(u"window.jpg"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.read(4), QByteArray("\x89PNG"));
}

void CaptureTest::anOlderFileIsReplaced()
{
    QFile older(path(u"older.png"_s));
    QVERIFY(older.open(QIODevice::WriteOnly));
    older.write(QByteArray(1 << 20, 'x'));
    older.close();
    const auto shown = window(Qt::blue);
    QCOMPARE(capture(older.fileName()), CaptureStatus::Written);
    QVERIFY(older.size() < 1 << 20);
    QVERIFY(!QImage(older.fileName()).isNull());
}

void CaptureTest::aPathThatCannotBeWrittenIsNoFailure()
{
    const auto shown = window(Qt::blue);
    QCOMPARE(capture(path(u"no/such/folder/window.png"_s)), CaptureStatus::Written);
}

void CaptureTest::aWindowTooLargeToDrawHasNoBitmap()
{
    const auto vast = window(Qt::blue);
    vast->resize(2'000'000, 2'000'000);
    QCOMPARE(capture(path(u"vast.png"_s)), CaptureStatus::NoBitmap);
    QVERIFY(!QFile::exists(path(u"vast.png"_s)));
}

QTEST_MAIN(CaptureTest)
#include "tst_capture.moc"
