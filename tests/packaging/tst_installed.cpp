#include "deployment.h"

#include <QDirIterator>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

/// What an installation leaves, and what it tells the desktop.
class InstalledTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void exactlyTheseFilesAreInstalled();
    void theEntryIsFoundUnderTheApplicationsId();
    void linksOfOurSchemeComeToUs();
    void theBusStartsTheInstalledProgram();

private:
    QString text(const QString &file) const;
    QString path(const QString &file) const { return m_prefix.filePath(file); }

    const QString m_id = deployment::applicationId.toString();
    QTemporaryDir m_prefix;
};

void InstalledTest::initTestCase()
{
    QProcess install;
    install.start(QStringLiteral(VEXAL_CMAKE),
                  {u"--install"_s, QStringLiteral(VEXAL_BUILD_FOLDER), u"--prefix"_s, m_prefix.path()});
    QVERIFY(install.waitForFinished(60000));
    QVERIFY2(install.exitCode() == 0, install.readAllStandardError().constData());
}

QString InstalledTest::text(const QString &file) const
{
    QFile opened(path(file));
    return opened.open(QIODevice::ReadOnly) ? QString::fromUtf8(opened.readAll()) : QString();
}

void InstalledTest::exactlyTheseFilesAreInstalled()
{
    QStringList expected{u"bin/vexal"_s,
                         u"bin/vexal-board"_s,
                         u"share/applications/%1.desktop"_s.arg(m_id),
                         u"share/dbus-1/services/%1.service"_s.arg(m_id),
                         u"share/metainfo/%1.metainfo.xml"_s.arg(m_id),
                         u"share/man/man1/vexal.1"_s,
                         u"share/man/man1/vexal-board.1"_s,
                         u"share/icons/hicolor/scalable/apps/%1.svg"_s.arg(m_id)};
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256, 512})
        expected += u"share/icons/hicolor/%1x%1/apps/%2.png"_s.arg(side).arg(m_id);
    QStringList found;
    for (QDirIterator it(m_prefix.path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        found += QDir(m_prefix.path()).relativeFilePath(it.next());
    expected.sort();
    found.sort();
    QCOMPARE(found, expected);
}

void InstalledTest::theEntryIsFoundUnderTheApplicationsId()
{
    const QString entry = text(u"share/applications/%1.desktop"_s.arg(m_id));
    QVERIFY(entry.contains(u"\nIcon=%1\n"_s.arg(m_id)));
    QVERIFY(entry.contains(u"\nStartupWMClass=%1\n"_s.arg(m_id)));
    QVERIFY(text(u"share/metainfo/%1.metainfo.xml"_s.arg(m_id)).contains(u"<id>%1</id>"_s.arg(m_id)));
}

void InstalledTest::linksOfOurSchemeComeToUs()
{
    const QString entry = text(u"share/applications/%1.desktop"_s.arg(m_id));
    QVERIFY(entry.contains(u"\nMimeType=x-scheme-handler/vexal;\n"_s));
    QVERIFY(entry.contains(u"\nExec=vexal %u\n"_s));
    QVERIFY(entry.contains(u"\nDBusActivatable=true\n"_s));
}

void InstalledTest::theBusStartsTheInstalledProgram()
{
    const QSettings service(path(u"share/dbus-1/services/%1.service"_s.arg(m_id)), QSettings::IniFormat);
    QCOMPARE(service.value(u"D-BUS Service/Name"_s).toString(), m_id);
    const QString program = service.value(u"D-BUS Service/Exec"_s).toString();
    QVERIFY(program.startsWith(u'/'));
    QVERIFY(program.endsWith(u"/bin/vexal"_s));
}

QTEST_GUILESS_MAIN(InstalledTest)
#include "tst_installed.moc"
