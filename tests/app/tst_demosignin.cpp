#include "demosignin.h"
#include "tinyboard.h"

#include <QTest>
#include <QUrlQuery>

using namespace Qt::StringLiterals;
using namespace vexal;

/// The demo's person at the sign-in page.
class DemoSignInTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePersonIsSignedInWithoutAQuestion();
    void aStateArrivesAsItWasSent();
    void aPageThatLeadsNowhereEndsTheAttempt();

private:
    /// Where the sign-in page of the board ends for the person.
    QUrl endOf(const QString &email, const QString &query);

    TinyBoard m_board;
};

QUrl DemoSignInTest::endOf(const QString &email, const QString &query)
{
    QUrl end;
    DemoSignIn browser(email, [&end](const QUrl &url) { end = url; });
    QUrl page = m_board->url();
    page.setPath(u"/signin"_s);
    page.setQuery(query);
    browser.openPrivately(page);
    if (!QTest::qWaitFor([&end] { return !end.isEmpty(); }, 10000))
        qWarning("The page never ended.");
    return end;
}

void DemoSignInTest::thePersonIsSignedInWithoutAQuestion()
{
    const QUrl end = endOf(TinyBoard::teoEmail, u"state=0123ABCD&hint=somebody@else.example"_s);
    QCOMPARE(end.adjusted(QUrl::RemoveQuery), QUrl(u"vexal://signed-in"_s));
    const QUrlQuery items(end);
    QCOMPARE(items.queryItemValue(u"state"_s), u"0123ABCD"_s);
    const auto answer =
        m_board.stranger().post(u"/api/login/exchange"_s, {{u"code"_s, items.queryItemValue(u"code"_s)}});
    QCOMPARE(answer.status, 200);
    QCOMPARE(answer.json().value("me"_L1).toObject().value("email"_L1).toString(), TinyBoard::teoEmail);
}

void DemoSignInTest::aStateArrivesAsItWasSent()
{
    const QUrl end = endOf(TinyBoard::teoEmail, u"state=a%2Bb%26c%3D%C3%BC"_s);
    QCOMPARE(QUrlQuery(end).queryItemValue(u"state"_s, QUrl::FullyDecoded), u"a+b&c=ü"_s);
}

void DemoSignInTest::aPageThatLeadsNowhereEndsTheAttempt()
{
    QCOMPARE(endOf(u"nobody@else.example"_s, u"state=1"_s), QUrl(u"vexal://signed-in"_s));
    m_board->stop();
    QCOMPARE(endOf(TinyBoard::teoEmail, u"state=1"_s), QUrl(u"vexal://signed-in"_s));
}

QTEST_GUILESS_MAIN(DemoSignInTest)
#include "tst_demosignin.moc"
