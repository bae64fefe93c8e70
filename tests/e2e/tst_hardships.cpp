#include "seclusion.h"
#include "stage.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QtEndian>

#include <sys/mount.h>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

/// Why this process shares the machine's network and mounts; empty when it has its own.
QString whyNotSecluded;

/// Whether the command does what it is to do.
bool run(const QString &command)
{
    QStringList words = QProcess::splitCommand(command);
    const QString program = words.takeFirst();
    return QProcess::execute(program, words) == 0;
}

/// A file system of 8 MB on which there is no room for another byte.
class FullDisk
{
public:
    explicit FullDisk(const QString &folder)
        : m_folder(folder.toUtf8())
    {
        QDir().mkpath(folder);
        if (::mount("none", m_folder.constData(), "tmpfs", 0, "size=8m") != 0)
            qFatal("There is no disk at %s.", m_folder.constData());
        QFile filling(folder + u"/filling"_s);
        if (!filling.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            qFatal("The disk at %s takes nothing.", m_folder.constData());
        while (filling.write(QByteArray(4096, 'x')) > 0) {
        }
    }
    ~FullDisk() { ::umount2(m_folder.constData(), MNT_DETACH); }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

    void makeRoom() const { QFile::remove(QString::fromUtf8(m_folder) + u"/filling"_s); }

private:
    QByteArray m_folder;
};

/// A network that the board has one end of, and the desk's programs that are started with `launcher` the other.
class Link
{
public:
    Link()
    {
        m_farEnd.start(u"unshare"_s, {u"--net"_s, u"cat"_s});
        m_farEnd.waitForStarted();
        const auto isApart = [this] {
            const QString namespaceOf = u"/proc/%1/ns/net"_s;
            return QFile::symLinkTarget(namespaceOf.arg(m_farEnd.processId())) !=
                   QFile::symLinkTarget(namespaceOf.arg(u"self"_s));
        };
        m_stands = QTest::qWaitFor(isApart, Stage::patience) && run(u"ip link set lo up"_s) &&
                   run(u"ip link add board type veth peer name desk netns %1"_s.arg(m_farEnd.processId())) &&
                   run(u"ip address add 10.77.0.1/24 dev board"_s) && run(u"ip link set board up"_s) &&
                   farRun(u"ip link set lo up"_s) && farRun(u"ip address add 10.77.0.2/24 dev desk"_s) &&
                   farRun(u"ip link set desk up"_s);
    }
    ~Link()
    {
        run(u"ip link delete board"_s);
        m_farEnd.closeWriteChannel();
        m_farEnd.waitForFinished();
    }
    Link(const Link &) = delete;
    Link &operator=(const Link &) = delete;

    bool stands() const { return m_stands; }
    QStringList launcher() const { return {u"nsenter"_s, u"--net=/proc/%1/ns/net"_s.arg(m_farEnd.processId())}; }
    bool cut() { return run(u"ip link set board down"_s); }
    bool restore() { return run(u"ip link set board up"_s); }

private:
    bool farRun(const QString &command) const { return run(launcher().join(u' ') + u' ' + command); }

    QProcess m_farEnd; ///< Lives for as long as this does, and has the other network.
    bool m_stands = false;
};

/// The computer's clock as one program sees it.
class ShiftedClock
{
public:
    explicit ShiftedClock(const QString &path)
        : m_file(path)
    {
        if (!m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
            qFatal("The shift of the clock cannot be written.");
        jumpTo(0);
    }

    QStringList launcher() const
    {
        return {u"env"_s, u"LD_PRELOAD="_s + QStringLiteral(SHIFTED_CLOCK), u"SHIFTED_CLOCK="_s + m_file.fileName(),
                u"ASAN_OPTIONS=verify_asan_link_order=0:"_s + qEnvironmentVariable("ASAN_OPTIONS")};
    }
    /// So many days from now.
    void jumpTo(int days)
    {
        const qint64 seconds = days * qint64(24 * 60 * 60);
        m_file.seek(0);
        m_file.write(reinterpret_cast<const char *>(&seconds), sizeof(seconds));
    }

private:
    QFile m_file;
};

int coloursIn(const QByteArray &pixels)
{
    QSet<quint32> colours;
    for (qsizetype i = 0; i + 4 <= pixels.size(); i += 4)
        colours.insert(qFromLittleEndian<quint32>(pixels.constData() + i));
    return int(colours.size());
}

} // namespace

/// What the real client makes of a computer that fails it.
class HardshipsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_stage->begin(); }
    void cleanup() { m_stage->end(); }
    void cleanupTestCase() { m_stage.reset(); }

    void aLinkThatIsCutIsSaidSoUntilItIsRestored();
    void aReportThatFindsNoRoomIsNotOpened();
    void picturesThatFindNoRoomAreShown();
    void aClockThatJumpsKeepsNothingFromThePerson();

private:
    QString onDesk(const QString &name) const { return m_stage->desk().path(name); }

    std::unique_ptr<Stage> m_stage;
};

void HardshipsTest::initTestCase()
{
    // To cut a link, fill a disk and move the clock takes a network and mounts of one's own, which a system gives to
    // its administrator or, where it allows user namespaces, to anybody. Where it does neither there is no safe way to
    // try.
    if (!whyNotSecluded.isEmpty())
        QSKIP(qPrintable(whyNotSecluded));
    QVERIFY(run(u"ip link set lo up"_s));
    m_stage = std::make_unique<Stage>();
}

void HardshipsTest::aLinkThatIsCutIsSaidSoUntilItIsRestored()
{
    Link link;
    QVERIFY(link.stands());
    m_stage->startBoardAt(u"0.0.0.0"_s);
    m_stage->keepTokenOf(mira);
    const VexalProcess vexal(m_stage->desk(), link.launcher(),
                             {u"-ServerURL"_s, u"http://10.77.0.1:%1"_s.arg(m_stage->port())});
    WAIT_FOR(showsTheBoard(vexal));
    QVERIFY(link.cut());
    WAIT_FOR(vexal.says(u"This Mac is offline. Vexal will catch up when it's back."_s));
    QVERIFY(showsTheBoard(vexal));
    QCOMPARE(writeNote(m_stage->port(), teo, u"While you were away."_s), 200);
    QVERIFY(link.restore());
    WAIT_FOR(vexal.says(u"Teo Brandt: While you were away."_s));
    WAIT_FOR(!vexal.says(u"offline"_s));
}

void HardshipsTest::aReportThatFindsNoRoomIsNotOpened()
{
    const QString downloads = onDesk(u"Downloads"_s);
    const QString opened = onDesk(u"opened"_s);
    m_stage->desk().logOpened(u"application/pdf"_s, opened);
    const FullDisk disk(downloads);
    const auto vexal = m_stage->startSignedIn();
    QVERIFY(vexal->press(u"Open"_s));
    WAIT_FOR(vexal->says(u"Couldn't open the report."_s));
    QCOMPARE(QDir(downloads).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"filling"_s});
    QVERIFY(!QFile::exists(opened));

    // It was the room that was missing, and nothing else.
    disk.makeRoom();
    QVERIFY(vexal->press(u"Open"_s));
    WAIT_FOR(QFile::exists(opened));
    QCOMPARE(QDir(downloads).entryList({u"*.pdf"_s}).size(), 1);
}

void HardshipsTest::picturesThatFindNoRoomAreShown()
{
    const FullDisk disk(onDesk(u"cache/Vexal/img"_s));
    const auto vexal = m_stage->startSignedIn();
    const auto page = [&] {
        const auto shown = vexal->find(u"graphic"_s, u"What we sent"_s);
        return shown ? m_stage->desk().pixels(shown->place()) : QByteArray();
    };
    WAIT_FOR(coloursIn(page()) > 200);
    QCOMPARE(vexal->names(u"alert message"_s), QStringList());
    QCOMPARE(vexal->names(u"notification"_s), QStringList());
    QCOMPARE(QDir(onDesk(u"cache/Vexal/img"_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"filling"_s});
}

void HardshipsTest::aClockThatJumpsKeepsNothingFromThePerson()
{
    ShiftedClock clock(onDesk(u"clock"_s));
    const auto vexal = m_stage->startSignedIn(clock.launcher());
    for (const int days : {400, -2, 0}) {
        clock.jumpTo(days);
        const QString text = u"Shifted by %1."_s.arg(days);
        QCOMPARE(writeNote(m_stage->port(), teo, text), 200);
        WAIT_FOR(vexal->says(u"Teo Brandt: "_s + text));
        QVERIFY(vexal->shows(u"label"_s, u"Up to date"_s));
    }
}

int main(int argc, char **argv)
{
    whyNotSecluded = seclude().value_or(QString());
    const QCoreApplication application(argc, argv);
    HardshipsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_hardships.moc"
