#include "appearance.h"
#include "desktoplook.h"
#include "livestore.h"
#include "slowcredentials.h"
#include "vexalapp.h"

#include <QElapsedTimer>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

/// A desktop whose look is as the test says.
class SaidLook : public DesktopLook
{
public:
    bool known() const override { return isKnown; }
    Look look() const override { return m_look; }
    void answer()
    {
        isKnown = true;
        Q_EMIT becameKnown();
    }
    void say(const Look &look)
    {
        m_look = look;
        Q_EMIT changed();
    }
    bool isKnown = false;

private:
    Look m_look;
};

} // namespace

/// The one window, as the program opens it.
class ShellTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_live = std::make_unique<LiveStore>(aBoard({aFile(u"a"_s), aFile(u"b"_s)}));
        m_app =
            std::make_unique<VexalApp>(Parts{m_live->clock.clock(), QString(), nothing, m_live->surroundings(m_sleep)});
    }
    void cleanup()
    {
        m_app.reset();
        m_live.reset();
    }

    void itIsTitledVexalAndNothingMore();
    void itHasNoFrameButItsOwn();
    void itIsNoSmallerThanTheBoardNeeds();
    void itLooksAsTheDesktopWantsItLive();
    void whatCannotBeSeenDoesNotMove();
    void aPhotographIsAsLargeAsWasAsked();
    void aPhotographTakesNoNoticeOfMouseAndKeyboard();
    void aClickOnANotificationOpensItsFile();
    void aNotificationOfAFileThatIsGoneOpensTheWindowAlone();
    void lookingAtTheWindowTakesTheNotificationBack();
    void aUrlFromOutsideIsTakenAndBringsTheWindowForward();
    void theFirstFrameWaitsForTheDesktopsAnswer();
    void theFirstFrameWaitsForTheKeyringsAnswer();
    void theFirstFrameWaitsForNeitherForLong();
    void nothingIsShownToWhoHasGone();

private:
    static void nothing(const QString &, QObject *, const Images::Fetched &fetched) { fetched(std::nullopt); }
    Appearance &appearance() { return Appearance::of(*m_app->window().engine()); }
    void open()
    {
        m_app->show();
        m_app->comeForward();
        QVERIFY(QTest::qWaitForWindowActive(&m_app->window()));
    }

    std::unique_ptr<LiveStore> m_live;
    SaidSleep m_sleep;
    std::unique_ptr<VexalApp> m_app;
};

void ShellTest::itIsTitledVexalAndNothingMore()
{
    open();
    QCOMPARE(m_app->window().title(), u"Vexal"_s);
    QCOMPARE(QGuiApplication::topLevelWindows().size(), 1);
}

void ShellTest::itHasNoFrameButItsOwn()
{
    QVERIFY(m_app->window().flags().testFlag(Qt::FramelessWindowHint));
}

void ShellTest::itIsNoSmallerThanTheBoardNeeds()
{
    QCOMPARE(m_app->window().minimumSize(), leastSize(m_app->window().screen()->availableSize()));
}

void ShellTest::itLooksAsTheDesktopWantsItLive()
{
    SaidLook look;
    look.say({.dark = true, .contrast = true});
    m_app->follow(look);
    QVERIFY(appearance().dark());
    QVERIFY(appearance().contrast());
    QVERIFY(!appearance().reducedMotion());
    look.say({.reducedMotion = true});
    QVERIFY(!appearance().dark());
    QVERIFY(!appearance().contrast());
    QVERIFY(appearance().reducedMotion());
}

void ShellTest::whatCannotBeSeenDoesNotMove()
{
    open();
    QTRY_VERIFY(appearance().seen());
    m_app->window().hide();
    QTRY_VERIFY(!appearance().seen());
    m_app->window().show();
    QTRY_VERIFY(appearance().seen());
}

void ShellTest::aPhotographIsAsLargeAsWasAsked()
{
    m_app->pose({.shot = u"unused"_s, .size = QSizeF(900, 600)});
    m_app->show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_app->window()));
    QCOMPARE(m_app->window().size(), QSize(900, 600));
}

void ShellTest::aPhotographTakesNoNoticeOfMouseAndKeyboard()
{
    const auto isDark = [this] { return m_app->window().grabWindow().pixelColor(2, 2).lightness() < 128; };
    m_app->store().takeBoard(m_live->board);
    m_app->pose({.shot = u"unused"_s, .dark = true});
    m_app->show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_app->window()));
    QTRY_VERIFY(isDark());
    QTRY_VERIFY(!m_app->images().pixels().isBusy());
    const QImage alone = m_app->window().grabWindow();
    QTest::keyClick(&m_app->window(), Qt::Key_F10);
    QTest::keyClick(&m_app->window(), Qt::Key_Tab);
    for (int y = 0; y < 400; y += 20)
        QTest::mouseClick(&m_app->window(), Qt::LeftButton, {}, QPoint(140, y));
    QCOMPARE(m_app->window().grabWindow(), alone);
}

void ShellTest::aClickOnANotificationOpensItsFile()
{
    m_app->hear(m_live->notifications);
    m_app->store().takeBoard(m_live->board);
    Q_EMIT m_live->notifications.opened(u"b"_s);
    QCOMPARE(m_app->store().selection(), QSet{u"b"_s});
}

void ShellTest::aNotificationOfAFileThatIsGoneOpensTheWindowAlone()
{
    m_app->hear(m_live->notifications);
    m_app->store().takeBoard(m_live->board);
    open();
    m_app->window().showMinimized();
    Q_EMIT m_live->notifications.opened(u"gone"_s);
    QCOMPARE(m_app->store().selection(), QSet{u"a"_s});
    QVERIFY(!m_app->window().windowStates().testFlag(Qt::WindowMinimized));
}

void ShellTest::lookingAtTheWindowTakesTheNotificationBack()
{
    m_app->hear(m_live->notifications);
    m_live->notifications.show(u"Look"_s, u"a"_s);
    open();
    QTRY_COMPARE(m_live->notifications.told, QStringList());
}

void ShellTest::aUrlFromOutsideIsTakenAndBringsTheWindowForward()
{
    m_live->client.credentials.forget();
    open();
    m_app->window().showMinimized();
    m_app->open({QUrl(u"vexal://elsewhere"_s), QUrl(u"vexal://signed-in"_s)});
    QVERIFY(!m_app->window().windowStates().testFlag(Qt::WindowMinimized));
    QCOMPARE(m_app->store().toast()->text, u"Sign-in didn't finish."_s);
}

void ShellTest::theFirstFrameWaitsForTheDesktopsAnswer()
{
    SaidLook look;
    QObject context;
    bool open = false;
    whenKnown(m_live->client.credentials, look, &context, [&open] { open = true; });
    QVERIFY(!open);
    look.answer();
    QTRY_VERIFY_WITH_TIMEOUT(open, 250); // sooner than it would without an answer
    bool again = false;
    whenKnown(m_live->client.credentials, look, &context, [&again] { again = true; });
    QVERIFY(again);
}

void ShellTest::theFirstFrameWaitsForTheKeyringsAnswer()
{
    SaidLook look;
    look.answer();
    SlowCredentials keyring;
    QObject context;
    bool open = false;
    whenKnown(keyring, look, &context, [&open] { open = true; });
    QVERIFY(!open);
    keyring.answer();
    QTRY_VERIFY_WITH_TIMEOUT(open, 250); // sooner than it would without an answer
}

void ShellTest::theFirstFrameWaitsForNeitherForLong()
{
    SaidLook look;
    SlowCredentials keyring;
    QObject context;
    QElapsedTimer since;
    since.start();
    qint64 waited = 0;
    whenKnown(keyring, look, &context, [&] { waited = since.elapsed(); });
    look.answer(); // one of two is not enough to go on
    QCoreApplication::processEvents();
    QCOMPARE(waited, 0);
    QTRY_VERIFY(waited > 0);
    QVERIFY2(waited >= 280 && waited < 600, qPrintable(QString::number(waited)));
    waited = 0;
    keyring.answer();
    QCoreApplication::processEvents();
    QCOMPARE(waited, 0); // once is enough
}

void ShellTest::nothingIsShownToWhoHasGone()
{
    SaidLook look;
    SlowCredentials keyring;
    bool open = false;
    {
        QObject context;
        whenKnown(keyring, look, &context, [&open] { open = true; });
    }
    look.answer();
    keyring.answer();
    QCoreApplication::processEvents();
    QVERIFY(!open);
}

QTEST_MAIN(ShellTest)
#include "tst_shell.moc"
