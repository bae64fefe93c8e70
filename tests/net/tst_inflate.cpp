#include "gzip.h"
#include "inflate.h"

#include <QRandomGenerator>
#include <QTest>

using vexal::inflated;

namespace {

constexpr qint64 plenty = 64LL * 1024 * 1024;

QByteArray noise(qsizetype size)
{
    QRandomGenerator random(7);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(random.generate());
    return bytes;
}

} // namespace

class InflateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasPackedComesOut_data();
    void whatWasPackedComesOut();
    void aStreamCutAnywhereIsNothing();
    void aDamagedStreamIsNothing();
    void whatFollowsAStreamIsAnotherStream();
    void bytesAfterTheStreamAreDamage();
    void theLimitHolds();
    void aBombIsNotUnpacked();
    void nothingIsNoStream();
};

void InflateTest::whatWasPackedComesOut_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a word") << QByteArray("hello");
    QTest::newRow("noise") << noise(3'000'000);
    QTest::newRow("much of the same") << QByteArray(10'000'000, 'x');
    QTest::newRow("exactly one step") << QByteArray(262'144, 'y');
}

void InflateTest::whatWasPackedComesOut()
{
    QFETCH(QByteArray, bytes);
    const auto plain = inflated(gzip(bytes), plenty);
    QVERIFY(plain);
    QVERIFY(*plain == bytes);
}

void InflateTest::aStreamCutAnywhereIsNothing()
{
    const QByteArray packed = gzip("a board with a few words on it");
    for (qsizetype size = 0; size < packed.size(); ++size)
        QVERIFY2(!inflated(packed.first(size), plenty), qPrintable(QString::number(size)));
}

void InflateTest::aDamagedStreamIsNothing()
{
    QByteArray packed = gzip(noise(100'000));
    packed[50'000] = char(packed[50'000] ^ 1);
    QVERIFY(!inflated(packed, plenty));
}

void InflateTest::whatFollowsAStreamIsAnotherStream()
{
    QCOMPARE(inflated(gzip("one ") + gzip("two"), plenty), QByteArray("one two"));
}

void InflateTest::bytesAfterTheStreamAreDamage()
{
    QVERIFY(!inflated(gzip("one") + "x", plenty));
}

void InflateTest::theLimitHolds()
{
    QVERIFY(inflated(gzip(QByteArray(1000, 'x')), 1000));
    QVERIFY(!inflated(gzip(QByteArray(1001, 'x')), 1000));
}

void InflateTest::aBombIsNotUnpacked()
{
    const QByteArray bomb = gzip(QByteArray(plenty + 1, '\0'));
    QVERIFY(bomb.size() < 100'000);
    QVERIFY(!inflated(bomb, plenty));
}

void InflateTest::nothingIsNoStream()
{
    QVERIFY(!inflated({}, plenty));
    QVERIFY(!inflated("this is plain", plenty));
}

QTEST_APPLESS_MAIN(InflateTest)
#include "tst_inflate.moc"
