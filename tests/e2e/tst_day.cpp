#include "derived.h"
#include "pdfreader.h"
#include "reviewer.h"
#include "stage.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

const QString button = u"push button"_s;
const QString heading = u"heading"_s;
const QString listItem = u"list item"_s;
const QString page = u"graphic"_s;
const QString activity = u"Activity"_s;
const QString viewerLog = u"opened"_s;
const QString foxRow = u"The Lantern Fox Interior"_s;
const QString mothRow = u"Moth Carnival Box lid"_s;
const QString owlRow = u"A Letter by Owl Greeting card"_s;
const QString newRow = u"The Winter Tram Advent calendar"_s;

bool isOpen(const Finding &finding)
{
    return finding.state == "open"_L1 && !isSettled(finding);
}

} // namespace

/// What a day with Vexal is made of: the real client and board, a real mouse, keyboard and browser.
class DayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<Stage>(); }
    void init();
    void cleanup();
    void cleanupTestCase() { m_stage.reset(); }

    void aWholeFileIsReviewedByKeyboardAlone();
    void twoFilesGoIntoOneReport();
    void aFinishedReportIsOpened();
    void anActivityLeadsToItsFileAndPage();
    void aDayFromTheFirstStartToSigningOut();

private:
    Reviewer person() const { return {m_stage->desk(), *m_vexal}; }
    QString onDesk(const QString &name) const { return m_stage->desk().path(name); }
    QString judgement(const QString &file, const QString &title) const;
    QStringList notes(const QString &file) const;
    bool follow(const QString &line) const;
    QString openedFile() const;
    QString openedText() const;
    bool judgeByKeyboard(const QString &file, const QString &title, const QString &button, const QString &state) const;

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<VexalProcess> m_vexal;
};

void DayTest::init()
{
    m_stage->begin();
    m_stage->desk().logOpened(u"application/pdf"_s, onDesk(viewerLog));
}

void DayTest::cleanup()
{
    m_vexal.reset();
    m_stage->end();
}

QString DayTest::judgement(const QString &file, const QString &title) const
{
    for (const Finding &finding : m_stage->visitor().file(file).findings) {
        if (finding.title == title)
            return finding.state;
    }
    return {};
}

/// What the person wrote there.
QStringList DayTest::notes(const QString &file) const
{
    QStringList texts;
    for (const Note &note : m_stage->visitor().file(file).comments) {
        if (note.by == mira)
            texts.append(note.text);
    }
    return texts;
}

/// Goes to the finding's card, has both sides of it enlarged, and judges it by that button.
bool DayTest::judgeByKeyboard(const QString &file, const QString &title, const QString &button,
                              const QString &state) const
{
    if (!person().tabTo(listItem, title))
        return false;
    person().press({u"Return"_s});
    const auto isEnlarged = [&] { return m_vexal->shows(u"panel"_s, title); };
    if (!QTest::qWaitFor(isEnlarged, Stage::patience) || !person().tabTo(::button, button))
        return false;
    person().press({u"space"_s});
    return QTest::qWaitFor([&] { return judgement(file, title) == state; }, Stage::patience);
}

/// Opens the activity list and clicks on that line of it.
bool DayTest::follow(const QString &line) const
{
    const auto isOpen = [this] { return m_vexal->shows(heading, activity); };
    return person().clickOnButton(activity) && QTest::qWaitFor(isOpen, Stage::patience) && person().clickOnButton(line);
}

/// What the person's viewer was given to show; empty until there is anything.
QString DayTest::openedFile() const
{
    QFile log(onDesk(viewerLog));
    return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readLine()).trimmed() : QString();
}

/// What stands in it, a PDF.
QString DayTest::openedText() const
{
    const QString path = openedFile();
    QFile pdf(path);
    return !path.isEmpty() && pdf.open(QIODevice::ReadOnly) ? textOfPdf(pdf.readAll()) : QString();
}

void DayTest::aWholeFileIsReviewedByKeyboardAlone()
{
    const QString file = u"owl"_s;
    m_vexal = m_stage->startSignedIn();
    // The keyboard comes to the list at the file that shows.
    QVERIFY(person().tabTo(listItem, foxRow));
    QVERIFY(person().tabTo(listItem, owlRow, u"Up"_s));
    person().press({u"Return"_s});
    WAIT_FOR(m_vexal->shows(heading, owlRow));
    WAIT_FOR(m_vexal->shows(page, u"Tarnwick Cards file · p1"_s));
    QVERIFY(judgeByKeyboard(file, u"“it is” reads “it’s”"_s, u"Real issue"_s, u"issue"_s));
    QVERIFY(judgeByKeyboard(file, u"The full stop after “owl” is gone"_s, u"Real issue"_s, u"issue"_s));

    QVERIFY(person().tabTo(listItem, u"Page 1, 2 real issues"_s));
    QVERIFY(person().tabTo(listItem, u"Page 2, 1 to look at, 1 note"_s, u"Right"_s));
    WAIT_FOR(m_vexal->shows(page, u"Tarnwick Cards file · p2"_s));
    QVERIFY(judgeByKeyboard(file, u"A line lies under the art"_s, u"Fine"_s, u"fine"_s));
    QVERIFY(person().tabTo(u"text"_s, u"Note on page 2"_s));
    person().write(u"Calm enough."_s);
    person().press({u"ctrl+Return"_s});
    WAIT_FOR(notes(file).contains(u"Calm enough."_s));

    person().press({u"ctrl+d"_s});
    WAIT_FOR(m_stage->visitor().file(file).file.status == "reviewed"_L1);
    WAIT_FOR(m_vexal->shows(button, u"Reopen"_s));
    QVERIFY(std::ranges::none_of(m_stage->visitor().file(file).findings, isOpen));
}

void DayTest::twoFilesGoIntoOneReport()
{
    m_vexal = m_stage->startSignedIn();
    QVERIFY(person().clickOn(listItem, mothRow));
    WAIT_FOR(m_vexal->shows(heading, mothRow));
    QVERIFY(person().clickOn(listItem, owlRow, u"ctrl"_s));
    WAIT_FOR(m_vexal->shows(heading, u"2 files"_s));
    QVERIFY(person().clickOnButton(u"Make one report"_s));
    WAIT_FOR(m_vexal->says(u"Asked the Mac mini for the report."_s));
    const auto job = [this] { return m_stage->visitor().board().jobs.first(); };
    QCOMPARE(job().kind, u"report"_s);
    const auto files = job().args->file_ids.value();
    QCOMPARE(files.size(), 2);
    QCOMPARE(QSet<QString>(files.cbegin(), files.cend()), (QSet{u"moth"_s, u"owl"_s}));

    WAIT_FOR(job().status == "done"_L1);
    QCOMPARE(m_stage->visitor().board().reports.first().file_ids, files);
    const auto link = [this] { return m_vexal->names(button).filter(u"Open the report from "_s).value(0); };
    WAIT_FOR(!link().isEmpty());
    QVERIFY(person().clickOnButton(link()));
    WAIT_FOR(openedText().contains(mothRow) && openedText().contains(owlRow));
}

void DayTest::aFinishedReportIsOpened()
{
    m_vexal = m_stage->startSignedIn();
    QVERIFY(person().clickOn(listItem, mothRow));
    QVERIFY(person().clickOnButton(u"Make report"_s));
    QVERIFY(person().clickOnButton(u"Open"_s));
    WAIT_FOR(openedText().contains(mothRow));
    const QFileInfo opened(openedFile());
    QCOMPARE(opened.path(), onDesk(u"Downloads"_s));
    QCOMPARE(opened.suffix(), u"pdf"_s);
}

void DayTest::anActivityLeadsToItsFileAndPage()
{
    m_vexal = m_stage->startSignedIn();
    QVERIFY(person().clickOn(listItem, mothRow));
    WAIT_FOR(m_vexal->shows(heading, mothRow));
    QVERIFY(follow(u"Teo left a note: “Moon looks a touch more yellow here. Ask for a fresh proof?”"_s));
    WAIT_FOR(m_vexal->shows(heading, u"The Lantern Fox Interior"_s));
    WAIT_FOR(m_vexal->shows(page, u"Ostrel Print file · p7"_s));
    WAIT_FOR(!m_vexal->shows(heading, activity));
}

void DayTest::aDayFromTheFirstStartToSigningOut()
{
    const QString file = u"tram"_s;
    const QString finding = u"There is no door 19, and 16 stands twice"_s;
    const QString note = u"Where is door 19?"_s;
    m_vexal = std::make_unique<VexalProcess>(m_stage->desk(), m_stage->port());
    QVERIFY(m_stage->signsIn(*m_vexal));
    QVERIFY(person().clickOnButton(u"Sync"_s));
    WAIT_FOR(m_vexal->says(u"1 new file from Tarnwick Cards"_s));

    QVERIFY(person().clickOn(listItem, newRow));
    WAIT_FOR(m_vexal->shows(heading, newRow));
    QVERIFY(person().clickOnButton(u"Fine"_s));
    WAIT_FOR(judgement(file, finding) == "fine"_L1);
    QVERIFY(person().clickOnButton(u"Undo"_s));
    WAIT_FOR(judgement(file, finding) == "open"_L1);
    QVERIFY(person().clickOnButton(u"Real issue"_s));
    WAIT_FOR(judgement(file, finding) == "issue"_L1);
    QVERIFY(person().clickOn(u"text"_s, u"Note on page 1"_s));
    person().write(note);
    QVERIFY(person().clickOnButton(u"Post"_s));
    WAIT_FOR(notes(file) == QStringList{note});

    QVERIFY(person().clickOnButton(u"Make report"_s));
    QVERIFY(person().clickOnButton(u"Open"_s));
    WAIT_FOR(openedText().contains(note));
    QVERIFY(person().clickOnButton(u"Mark reviewed"_s));
    WAIT_FOR(m_stage->visitor().file(file).file.status == "reviewed"_L1);

    QVERIFY(person().clickOn(listItem, mothRow));
    WAIT_FOR(m_vexal->shows(heading, mothRow));
    QVERIFY(follow(u"You left a note: “%1”"_s.arg(note)));
    WAIT_FOR(m_vexal->shows(heading, newRow));

    const QString token = m_stage->keptTokens().value(0);
    QVERIFY(m_stage->signsOut(*m_vexal));
    WAIT_FOR(Visitor(m_stage->port(), token).get(u"/api/state"_s).status == 401);
    person().press({u"ctrl+q"_s});
    QCOMPARE(m_vexal->exitStatus(), 0);
}

QTEST_GUILESS_MAIN(DayTest)
#include "tst_day.moc"
