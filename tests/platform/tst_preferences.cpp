#include "filepreferences.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using vexal::FilePreferences;
namespace preference = vexal::preference;

class PreferencesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void whatIsNotSetIsNothing();
    void aValueIsThereForTheNextRun();
    void aRemovedValueIsNothing();
    void theFileIsPlainToReadAndEdit();
    void aChangeFromOutsideCountsAtOnce();
    void aRemovalFromOutsideCountsAtOnce();
    void aValueWithACommaIsOneValue();
    void aValueOfTheCommandLineOutranksTheFile();
    void aValueOfTheCommandLineIsNotWritten();
    void theFirstOfTwoOnTheCommandLineCounts();
    void aNameWithoutAValueOnTheCommandLineIsNothing();
    void otherWordsOfTheCommandLineAreNoPreferences();
    void settingWhatTheCommandLineGivesIsForTheNextRun();
    void theFileIsInTheConfigurationFolder();

private:
    void write(const QByteArray &text);
    QByteArray read() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void PreferencesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(u"Vexal/Vexal.conf"_s);
    QDir(m_folder->path()).mkpath(u"Vexal"_s);
}

void PreferencesTest::write(const QByteArray &text)
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), text.size());
}

QByteArray PreferencesTest::read() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void PreferencesTest::whatIsNotSetIsNothing()
{
    QVERIFY(!FilePreferences(m_path).value(preference::serverURL));
    QVERIFY(!QFile::exists(m_path));
}

void PreferencesTest::aValueIsThereForTheNextRun()
{
    FilePreferences(m_path).setValue(preference::lastEmail, u"mira@lanternhouse.example"_s);
    QCOMPARE(FilePreferences(m_path).value(preference::lastEmail), u"mira@lanternhouse.example"_s);
}

void PreferencesTest::aRemovedValueIsNothing()
{
    FilePreferences preferences(m_path);
    preferences.setValue(preference::lastEmail, u"mira@lanternhouse.example"_s);
    preferences.remove(preference::lastEmail);
    QVERIFY(!preferences.value(preference::lastEmail));
    QVERIFY(!read().contains("mira"));
}

void PreferencesTest::theFileIsPlainToReadAndEdit()
{
    FilePreferences(m_path).setValue(preference::serverURL, u"http://127.0.0.1:8123"_s);
    QCOMPARE(read(), "[General]\nServerURL=http://127.0.0.1:8123\n");
}

void PreferencesTest::aChangeFromOutsideCountsAtOnce()
{
    FilePreferences preferences(m_path);
    QVERIFY(!preferences.value(preference::serverURL));
    write("[General]\nServerURL=http://one.example\n");
    QCOMPARE(preferences.value(preference::serverURL), u"http://one.example"_s);
    write("[General]\nServerURL=http://second.example\n");
    QCOMPARE(preferences.value(preference::serverURL), u"http://second.example"_s);
}

void PreferencesTest::aRemovalFromOutsideCountsAtOnce()
{
    write("[General]\nServerURL=http://one.example\n");
    FilePreferences preferences(m_path);
    QVERIFY(preferences.value(preference::serverURL));
    QVERIFY(QFile::remove(m_path));
    QVERIFY(!preferences.value(preference::serverURL));
}

void PreferencesTest::aValueWithACommaIsOneValue()
{
    write("[General]\nServerURL=http://one.example/a,b\n");
    QCOMPARE(FilePreferences(m_path).value(preference::serverURL), u"http://one.example/a,b"_s);
}

void PreferencesTest::aValueOfTheCommandLineOutranksTheFile()
{
    write("[General]\nServerURL=http://one.example\nLastEmail=mira@one.example\n");
    FilePreferences preferences(m_path, {u"vexal"_s, u"-ServerURL"_s, u"http://two.example"_s});
    QCOMPARE(preferences.value(preference::serverURL), u"http://two.example"_s);
    QCOMPARE(preferences.value(preference::lastEmail), u"mira@one.example"_s);
}

void PreferencesTest::aValueOfTheCommandLineIsNotWritten()
{
    {
        FilePreferences preferences(m_path, {u"vexal"_s, u"-ServerURL"_s, u"http://two.example"_s});
        preferences.setValue(preference::lastEmail, u"teo@one.example"_s);
    }
    QCOMPARE(read(), "[General]\nLastEmail=teo@one.example\n");
}

void PreferencesTest::theFirstOfTwoOnTheCommandLineCounts()
{
    FilePreferences preferences(m_path, {u"-LastEmail"_s, u"one"_s, u"-LastEmail"_s, u"two"_s});
    QCOMPARE(preferences.value(preference::lastEmail), u"one"_s);
}

void PreferencesTest::aNameWithoutAValueOnTheCommandLineIsNothing()
{
    QVERIFY(!FilePreferences(m_path, {u"vexal"_s, u"-ServerURL"_s}).value(preference::serverURL));
}

void PreferencesTest::otherWordsOfTheCommandLineAreNoPreferences()
{
    FilePreferences preferences(m_path,
                                {u"--ServerURL"_s, u"a"_s, u"-serverurl"_s, u"b"_s, u"-CredentialPending"_s, u"c"_s});
    QVERIFY(!preferences.value(preference::serverURL));
    QVERIFY(!preferences.value(preference::credentialPending));
}

void PreferencesTest::settingWhatTheCommandLineGivesIsForTheNextRun()
{
    FilePreferences preferences(m_path, {u"-LastEmail"_s, u"mira@one.example"_s});
    preferences.setValue(preference::lastEmail, u"teo@one.example"_s);
    QCOMPARE(preferences.value(preference::lastEmail), u"mira@one.example"_s);
    QCOMPARE(FilePreferences(m_path).value(preference::lastEmail), u"teo@one.example"_s);
}

void PreferencesTest::theFileIsInTheConfigurationFolder()
{
    qputenv("XDG_CONFIG_HOME", m_folder->path().toUtf8());
    QCOMPARE(FilePreferences::defaultPath(), m_path);
    qunsetenv("XDG_CONFIG_HOME");
}

QTEST_GUILESS_MAIN(PreferencesTest)
#include "tst_preferences.moc"
