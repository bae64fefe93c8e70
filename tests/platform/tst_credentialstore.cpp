#include "keyringcredentialstore.h"
#include "keyringdaemon.h"
#include "memorycredentialstore.h"
#include "memorypreferences.h"
#include "privatebus.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;
using vexal::KeyringCredentialStore;

namespace {

const QString service = u"org.vexal.Test"_s;
const QString account = u"session"_s;

/// What one run of the program sees.
struct Run
{
    explicit Run(vexal::Preferences &preferences, const QDBusConnection &bus = QDBusConnection::sessionBus())
        : store(bus, service, preferences)
    {
    }

    bool becomesKnown()
    {
        return QTest::qWaitFor([this] { return store.known(); }, 10000);
    }

    /// Whether the store said in time that it was through with the token.
    bool stores(const QString &token)
    {
        bool stored = false;
        store.store(token, &store, [&stored] { stored = true; });
        return store.token() == token && QTest::qWaitFor([&stored] { return stored; }, 10000);
    }

    KeyringCredentialStore store;
    QSignalSpy tokenChanged{&store, &vexal::CredentialStore::tokenChanged};
    QSignalSpy forThisRunOnly{&store, &vexal::CredentialStore::keptForThisRunOnly};
};

/// The longest time for which the event loop did not turn.
class Heartbeat
{
public:
    Heartbeat()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer,
                         [this] { m_longest = std::max(m_longest, m_since.restart()); });
        m_since.start();
        m_timer.start(5);
    }
    qint64 longestPause() const { return m_longest; }

private:
    QTimer m_timer;
    QElapsedTimer m_since;
    qint64 m_longest = 0;
};

} // namespace

class CredentialStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anEmptyKeyringHasNoToken();
    void theTokenOfAnEarlierRunIsRead();
    void aStoredTokenIsInTheKeyringWhenItSaysSo();
    void storingTwiceKeepsOnlyTheLatest();
    void aForgottenTokenIsGoneFromTheKeyring();
    void forgettingRightAfterStoringLeavesNothing();
    void nobodyIsToldWhoHasGone();
    void theStoreMayGoWhileTheKeyringWorks();

    void aLockedKeyringReadsAsNoToken();
    void theTokenAppearsWhenTheKeyringOpens();
    void aTokenThatWasReadOutlivesALock();
    void aTokenStoredWhileLockedIsKeptWhenTheKeyringOpens();
    void aTokenForgottenWhileLockedIsDeletedWhenTheKeyringOpens();
    void aTokenForgottenWhileLockedIsNotUsedByTheNextRun();
    void anOlderTokenBehindALockIsNeverUsedAgain();

    void aTokenThatAnotherProgramDeletesIsGone();
    void aTokenThatAnotherProgramReplacesCounts();

    void withoutAServiceTheTokenLastsForThisRun();
    void withoutABusTheTokenLastsForThisRun();
    void aServiceThatComesLaterIsRead();

    void aFrozenKeyringIsAnsweredInTimeAndReadWhenItThaws();
    void aTokenStoredWhileFrozenIsAnsweredInTimeAndKeptWhenItThaws();
    void aTokenForgottenWhileFrozenIsDeletedWhenItThaws();

    void aRestartedKeyringIsReadFromAgain();
    void aRestartedKeyringIsWrittenToAgain();
    void aRestartedKeyringIsDeletedFromAgain();
    void aTokenForgottenWhileTheServiceIsAwayIsDeletedWhenItIsBack();

    void theTokenIsInNoPreference();
    void theStoreInMemoryForgetsAndReplaces();

private:
    std::optional<KeyringDaemon> m_keyring;
    MemoryPreferences m_preferences;
};

void CredentialStoreTest::init()
{
    m_keyring.emplace();
    m_preferences = {};
}

void CredentialStoreTest::cleanup()
{
    m_keyring.reset();
}

void CredentialStoreTest::anEmptyKeyringHasNoToken()
{
    Run run(m_preferences);
    QVERIFY(!run.store.known());
    QVERIFY(run.becomesKnown());
    QCOMPARE(run.store.token(), QString());
    QCOMPARE(run.tokenChanged.size(), 0);
}

void CredentialStoreTest::theTokenOfAnEarlierRunIsRead()
{
    QVERIFY(Run(m_preferences).stores(u"first"_s));
    Run run(m_preferences);
    QVERIFY(run.becomesKnown());
    QCOMPARE(run.store.token(), u"first"_s);
}

void CredentialStoreTest::aStoredTokenIsInTheKeyringWhenItSaysSo()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"tökén"_s));
    QCOMPARE(m_keyring->secrets(service, account), QStringList{u"tökén"_s});
    QCOMPARE(run.tokenChanged.size(), 1);
    QCOMPARE(run.forThisRunOnly.size(), 0);
}

void CredentialStoreTest::storingTwiceKeepsOnlyTheLatest()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"old"_s));
    QVERIFY(run.stores(u"new"_s));
    QCOMPARE(m_keyring->secrets(service, account), QStringList{u"new"_s});
}

void CredentialStoreTest::aForgottenTokenIsGoneFromTheKeyring()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    run.store.forget();
    QCOMPARE(run.store.token(), QString());
    QTRY_COMPARE(m_keyring->secrets(service, account), QStringList());
    QTRY_VERIFY(m_preferences.values().isEmpty());
}

void CredentialStoreTest::forgettingRightAfterStoringLeavesNothing()
{
    Run run(m_preferences);
    run.store.store(u"token"_s, &run.store, [] {});
    run.store.forget();
    QTRY_VERIFY(m_preferences.values().isEmpty());
    QCOMPARE(m_keyring->secrets(service, account), QStringList());
    QCOMPARE(run.store.token(), QString());
}

void CredentialStoreTest::nobodyIsToldWhoHasGone()
{
    Run run(m_preferences);
    int told = 0;
    auto context = std::make_unique<QObject>();
    run.store.store(u"token"_s, context.get(), [&told] { ++told; });
    context.reset();
    QVERIFY(run.stores(u"token"_s));
    QCOMPARE(told, 0);
}

void CredentialStoreTest::theStoreMayGoWhileTheKeyringWorks()
{
    {
        Run run(m_preferences);
        run.store.store(u"token"_s, &run.store, [] {});
        QVERIFY(QTest::qWaitFor([this] { return !m_keyring->secrets(service, account).isEmpty(); }));
    }
    QTRY_COMPARE(m_keyring->secrets(service, account), QStringList{u"token"_s});
}

void CredentialStoreTest::aLockedKeyringReadsAsNoToken()
{
    m_keyring->put(service, account, u"token"_s);
    m_keyring->lock();
    Run run(m_preferences);
    QVERIFY(run.becomesKnown());
    QCOMPARE(run.store.token(), QString());
}

void CredentialStoreTest::theTokenAppearsWhenTheKeyringOpens()
{
    m_keyring->put(service, account, u"token"_s);
    m_keyring->lock();
    Run run(m_preferences);
    QVERIFY(run.becomesKnown());
    m_keyring->unlock();
    QTRY_COMPARE(run.store.token(), u"token"_s);
    QCOMPARE(run.tokenChanged.size(), 1);
}

void CredentialStoreTest::aTokenThatWasReadOutlivesALock()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    m_keyring->lock();
    m_keyring->unlock();
    m_keyring->put(service, account, u"seen"_s);
    QTRY_COMPARE(run.store.token(), u"seen"_s);
    QCOMPARE(run.tokenChanged.size(), 2);
}

void CredentialStoreTest::aTokenStoredWhileLockedIsKeptWhenTheKeyringOpens()
{
    m_keyring->lock();
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    QCOMPARE(run.forThisRunOnly.size(), 0);
    m_keyring->unlock();
    QTRY_COMPARE(m_keyring->secrets(service, account), QStringList{u"token"_s});
    QTRY_VERIFY(m_preferences.values().isEmpty());
}

void CredentialStoreTest::aTokenForgottenWhileLockedIsDeletedWhenTheKeyringOpens()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    m_keyring->lock();
    run.store.forget();
    QCOMPARE(run.store.token(), QString());
    m_keyring->unlock();
    QTRY_COMPARE(m_keyring->secrets(service, account), QStringList());
    QCOMPARE(run.store.token(), QString());
    QCOMPARE(run.tokenChanged.size(), 2);
}

void CredentialStoreTest::aTokenForgottenWhileLockedIsNotUsedByTheNextRun()
{
    m_keyring->put(service, account, u"token"_s);
    {
        Run run(m_preferences);
        QVERIFY(run.becomesKnown());
        m_keyring->lock();
        run.store.forget();
    }
    Run next(m_preferences);
    QVERIFY(next.becomesKnown());
    m_keyring->unlock();
    QTRY_COMPARE(m_keyring->secrets(service, account), QStringList());
    QCOMPARE(next.tokenChanged.size(), 0);
}

void CredentialStoreTest::anOlderTokenBehindALockIsNeverUsedAgain()
{
    m_keyring->put(service, account, u"old"_s);
    m_keyring->lock();
    QVERIFY(Run(m_preferences).stores(u"new"_s));
    Run next(m_preferences);
    QVERIFY(next.becomesKnown());
    m_keyring->unlock();
    QTRY_COMPARE(m_keyring->secrets(service, account), QStringList());
    QCOMPARE(next.tokenChanged.size(), 0);
}

void CredentialStoreTest::aTokenThatAnotherProgramDeletesIsGone()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    m_keyring->remove(service, account);
    QTRY_COMPARE(run.store.token(), QString());
}

void CredentialStoreTest::aTokenThatAnotherProgramReplacesCounts()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    m_keyring->put(service, account, u"other"_s);
    QTRY_COMPARE(run.store.token(), u"other"_s);
}

void CredentialStoreTest::withoutAServiceTheTokenLastsForThisRun()
{
    m_keyring->stop();
    Run run(m_preferences);
    QVERIFY(run.becomesKnown());
    QVERIFY(run.stores(u"token"_s));
    QCOMPARE(run.forThisRunOnly.size(), 1);
    QCOMPARE(run.store.token(), u"token"_s);
    run.store.forget();
    QCOMPARE(run.store.token(), QString());
}

void CredentialStoreTest::withoutABusTheTokenLastsForThisRun()
{
    Run run(m_preferences, QDBusConnection(u"none"_s));
    QVERIFY(run.becomesKnown());
    QVERIFY(run.stores(u"token"_s));
    QCOMPARE(run.forThisRunOnly.size(), 1);
    run.store.forget();
    QCOMPARE(run.store.token(), QString());
    QVERIFY(m_keyring->secrets(service, account).isEmpty());
}

void CredentialStoreTest::aServiceThatComesLaterIsRead()
{
    m_keyring->put(service, account, u"token"_s);
    m_keyring->stop();
    Run run(m_preferences);
    QVERIFY(run.becomesKnown());
    QCOMPARE(run.store.token(), QString());
    m_keyring->start();
    QTRY_COMPARE(run.store.token(), u"token"_s);
}

void CredentialStoreTest::aFrozenKeyringIsAnsweredInTimeAndReadWhenItThaws()
{
    m_keyring->put(service, account, u"token"_s);
    m_keyring->freeze();
    QElapsedTimer waited;
    waited.start();
    Heartbeat heart;
    Run run(m_preferences);
    QVERIFY(run.becomesKnown());
    QVERIFY2(waited.elapsed() < 5000, qPrintable(QString::number(waited.elapsed())));
    QVERIFY2(heart.longestPause() < 2000, qPrintable(QString::number(heart.longestPause())));
    QCOMPARE(run.store.token(), QString());
    m_keyring->thaw();
    QTRY_COMPARE(run.store.token(), u"token"_s);
}

void CredentialStoreTest::aTokenStoredWhileFrozenIsAnsweredInTimeAndKeptWhenItThaws()
{
    Run run(m_preferences);
    QVERIFY(run.becomesKnown());
    m_keyring->freeze();
    QElapsedTimer waited;
    waited.start();
    Heartbeat heart;
    QVERIFY(run.stores(u"token"_s));
    QVERIFY2(waited.elapsed() < 5000, qPrintable(QString::number(waited.elapsed())));
    QVERIFY2(heart.longestPause() < 2000, qPrintable(QString::number(heart.longestPause())));
    QCOMPARE(run.forThisRunOnly.size(), 0);
    m_keyring->thaw();
    QTRY_COMPARE(m_keyring->secrets(service, account), QStringList{u"token"_s});
}

void CredentialStoreTest::aTokenForgottenWhileFrozenIsDeletedWhenItThaws()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    m_keyring->freeze();
    run.store.forget();
    QCOMPARE(run.store.token(), QString());
    m_keyring->thaw();
    QTRY_COMPARE(m_keyring->secrets(service, account), QStringList());
    QCOMPARE(run.store.token(), QString());
}

void CredentialStoreTest::aRestartedKeyringIsReadFromAgain()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    m_keyring->stop();
    m_keyring->start();
    QCOMPARE(run.store.token(), u"token"_s);
    Run next(m_preferences);
    QVERIFY(next.becomesKnown());
    QCOMPARE(next.store.token(), u"token"_s);
}

void CredentialStoreTest::aRestartedKeyringIsWrittenToAgain()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    m_keyring->stop();
    m_keyring->start();
    QVERIFY(run.stores(u"later"_s));
    QCOMPARE(run.forThisRunOnly.size(), 0);
    QCOMPARE(m_keyring->secrets(service, account), QStringList{u"later"_s});
}

void CredentialStoreTest::aRestartedKeyringIsDeletedFromAgain()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    m_keyring->stop();
    m_keyring->start();
    run.store.forget();
    QTRY_COMPARE(m_keyring->secrets(service, account), QStringList());
}

void CredentialStoreTest::aTokenForgottenWhileTheServiceIsAwayIsDeletedWhenItIsBack()
{
    Run run(m_preferences);
    QVERIFY(run.stores(u"token"_s));
    m_keyring->stop();
    run.store.forget();
    m_keyring->start();
    QTRY_COMPARE(m_keyring->secrets(service, account), QStringList());
    QCOMPARE(run.store.token(), QString());
}

void CredentialStoreTest::theTokenIsInNoPreference()
{
    m_keyring->lock();
    Run run(m_preferences);
    QVERIFY(run.stores(u"very secret"_s));
    QVERIFY(!m_preferences.values().isEmpty());
    for (const QString &value : m_preferences.values())
        QVERIFY(!value.contains("secret"_L1));
}

void CredentialStoreTest::theStoreInMemoryForgetsAndReplaces()
{
    vexal::MemoryCredentialStore store(u"first"_s);
    QVERIFY(store.known());
    QSignalSpy changed(&store, &vexal::CredentialStore::tokenChanged);
    bool done = false;
    store.store(u"second"_s, &store, [&done] { done = true; });
    QCOMPARE(store.token(), u"second"_s);
    QVERIFY(!done);
    QTRY_VERIFY(done);
    store.forget();
    QCOMPARE(store.token(), QString());
    QCOMPARE(changed.size(), 2);
}

int main(int count, char **arguments)
{
    QCoreApplication application(count, arguments);
    PrivateBus bus;
    CredentialStoreTest test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_credentialstore.moc"
