#include "address.h"

#include <QTest>

using namespace Qt::StringLiterals;

class AddressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPathIsAppended_data();
    void aPathIsAppended();
    void aComponentThatLeadsElsewhereIsRefused_data();
    void aComponentThatLeadsElsewhereIsRefused();
    void aUrlIsOneByTheLetter_data();
    void aUrlIsOneByTheLetter();
    void thisComputerIsKnown_data();
    void thisComputerIsKnown();
};

void AddressTest::aPathIsAppended_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("url");
    const QString plain = u"https://b.example"_s;
    QTest::newRow("plain base") << plain << u"api/state"_s << QByteArray("https://b.example/api/state");
    QTest::newRow("slash") << u"https://b.example/"_s << u"api/state"_s << QByteArray("https://b.example/api/state");
    QTest::newRow("own path") << u"https://b.example/team"_s << u"api/state"_s
                              << QByteArray("https://b.example/team/api/state");
    QTest::newRow("own path and slash") << u"https://b.example/team/"_s << u"api"_s
                                        << QByteArray("https://b.example/team/api");
    QTest::newRow("own path encoded") << u"https://b.example/a%2Fb%20c"_s << u"x"_s
                                      << QByteArray("https://b.example/a%2Fb%20c/x");
    QTest::newRow("port") << u"http://127.0.0.1:8123"_s << u"api"_s << QByteArray("http://127.0.0.1:8123/api");
    QTest::newRow("query and fragment of the base go")
        << u"https://b.example/t?a=b#c"_s << u"x"_s << QByteArray("https://b.example/t/x");
    QTest::newRow("an id that looks like a query")
        << plain << u"api/files/a?b#c%20"_s << QByteArray("https://b.example/api/files/a%3Fb%23c%2520");
    QTest::newRow("blank") << plain << u"a b"_s << QByteArray("https://b.example/a%20b");
    QTest::newRow("encoded slash") << plain << u"a%2Fb"_s << QByteArray("https://b.example/a%252Fb");
    QTest::newRow("other letters") << plain << u"ü/日本"_s << QByteArray("https://b.example/%C3%BC/%E6%97%A5%E6%9C%AC");
    QTest::newRow("brackets") << plain << u"[a]{b}|^`\\\"<>"_s
                              << QByteArray("https://b.example/%5Ba%5D%7Bb%7D%7C%5E%60%5C%22%3C%3E");
    QTest::newRow("what may stand") << plain << u"a!$&'()*+,;=:@-._~b"_s
                                    << QByteArray("https://b.example/a!$&'()*+,;=:@-._~b");
    QTest::newRow("control characters") << plain << u"a\r\nb"_s << QByteArray("https://b.example/a%0D%0Ab");
    QTest::newRow("dots within") << plain << u"..a/.b/c.."_s << QByteArray("https://b.example/..a/.b/c..");
    QTest::newRow("encoded dots") << plain << u"%2e%2E"_s << QByteArray("https://b.example/%252e%252E");
    QTest::newRow("slash at the end") << plain << u"a/"_s << QByteArray("https://b.example/a/");
}

void AddressTest::aPathIsAppended()
{
    QFETCH(QString, base);
    QFETCH(QString, path);
    const auto url = vexal::appended(QUrl(base, QUrl::StrictMode), path);
    QVERIFY(url);
    QTEST(url->toEncoded(), "url");
}

void AddressTest::aComponentThatLeadsElsewhereIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("here") << u"api/files/."_s;
    QTest::newRow("up") << u"api/files/.."_s;
    QTest::newRow("up in the middle") << u"api/files/../../secret"_s;
    QTest::newRow("up first") << u"../api"_s;
}

void AddressTest::aComponentThatLeadsElsewhereIsRefused()
{
    QFETCH(QString, path);
    QVERIFY(!vexal::appended(QUrl(u"https://b.example/team"_s), path));
}

void AddressTest::aUrlIsOneByTheLetter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("is");
    QTest::newRow("web") << u"https://b.example"_s << true;
    QTest::newRow("with a path") << u"http://127.0.0.1:8123/team/"_s << true;
    QTest::newRow("another scheme") << u"file:///etc"_s << true;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("a word") << u"hello"_s << false;
    QTest::newRow("words") << u"not a url"_s << false;
    QTest::newRow("a blank in the host") << u"https://b example"_s << false;
    QTest::newRow("a blank before") << u" https://b.example"_s << false;
    QTest::newRow("a host alone") << u"//b.example/x"_s << false;
    QTest::newRow("a broken port") << u"http://b.example:port"_s << false;
    QTest::newRow("a broken code") << u"http://b.example/%zz"_s << false;
}

void AddressTest::aUrlIsOneByTheLetter()
{
    QFETCH(QString, text);
    QTEST(vexal::parsedUrl(text).has_value(), "is");
}

void AddressTest::thisComputerIsKnown_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("is");
    QTest::newRow("v4") << u"http://127.0.0.1:8123"_s << true;
    QTest::newRow("any of it") << u"http://127.8.9.1"_s << true;
    QTest::newRow("v6") << u"http://[::1]:1"_s << true;
    QTest::newRow("by name") << u"http://localhost"_s << true;
    QTest::newRow("below its name") << u"http://board.localhost"_s << true;
    QTest::newRow("another") << u"http://192.168.1.2"_s << false;
    QTest::newRow("a name like it") << u"http://localhost.example"_s << false;
    QTest::newRow("a name that ends like it") << u"http://mylocalhost"_s << false;
}

void AddressTest::thisComputerIsKnown()
{
    QFETCH(QString, url);
    QTEST(vexal::isLoopback(QUrl(url)), "is");
}

QTEST_APPLESS_MAIN(AddressTest)
#include "tst_address.moc"
