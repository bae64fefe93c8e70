#include "inspectorscreen.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vexal;
using test::InspectorScreen;

namespace {

Finding found(const QString &id, const QString &kind, qint64 page = 0)
{
    Finding finding = aFinding(id, page, u"medium"_s);
    finding.file_id = u"f"_s;
    finding.kind = kind;
    finding.against = u"submitted"_s;
    finding.title = u"Title of "_s + id;
    return finding;
}

FileDetail detailOf(const QList<Finding> &findings, qint64 pages = 4)
{
    FileDetail detail = aDetail(u"f"_s, pages, findings);
    for (Page &page : *detail.file.pages)
        page.refs = QMap<QString, RefPage>{{u"submitted"_s, {}}, {u"latest"_s, {}}};
    return detail;
}

} // namespace

/// The findings of a page: their cards, and what people make of them.
class JudgingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_on.reset(); }

    void aJudgementShowsAtOnceAndASecondPressTakesItBack();
    void theOtherButtonChangesTheJudgement();
    void theKeyboardJudges();
    void aRefusedJudgementComesBack();
    void aJudgementOnItsWayIsNotPressedAgain();
    void aCardJudgedFineStepsBackUntilSomebodyIsAtIt();
    void aClickOnACardFocusesItsFinding();
    void theFocusedCardIsBroughtIntoView();
    void aSettledFindingThatGetsTheFocusIsUnfolded();
    void theSettledFindingsUnfoldAndFoldAgain();
    void anotherFileBeginsFolded();
    void aNewBoardRebuildsNoCard();
    void ofManyCardsOnlyThoseNearTheColumnAreBuilt();
    void aKeyThatIsHeldJudgesOnce();
    void aCardThatIsScrolledAwayShowsAnother();
    void arrowsGoFromCardToCard();
    void anotherPageIsTurnedTo();
    void theNoticeStandsOverAPageThatWasRead();
    void nothingFoundIsSaid();
    void whatDiffersLiesOnAGround();
    void textsFromOutsideStayTextAndStayInTheColumn();
    void theKeyboardReachesEverythingAndIsSeen();
    void everythingIsCalledSomething();

private:
    void show(const FileDetail &detail, QSize size = {330, 900})
    {
        m_on = std::make_unique<InspectorScreen>(detail, size);
        for (const Finding &finding : detail.findings) {
            m_on->live.client.server.on("POST", "/api/findings/" + finding.id.toUtf8())
                .react([this, id = finding.id](const Received &request) {
                    for (Finding &held : m_on->live.details[u"f"_s].findings) {
                        if (held.id == id)
                            held.state = request.json()[u"state"_s].toString();
                    }
                    return Answer(200);
                });
        }
    }
    void labelsAreTextInTheColumn() const;
    QString state(int at = 0) const { return m_on->live.store.detail(u"f"_s)->findings[at].state; }
    QQuickItem *button(const QString &name) const { return InspectorScreen::named(m_on->card(u"Title of a"_s), name); }

    std::unique_ptr<InspectorScreen> m_on;
};

void JudgingTest::aJudgementShowsAtOnceAndASecondPressTakesItBack()
{
    show(detailOf({found(u"a"_s, u"words"_s)}));
    m_on->screen->click(button(u"issue"_s));
    QVERIFY(button(u"issue"_s)->property("on").toBool());
    QVERIFY(!button(u"fine"_s)->property("on").toBool());
    QCOMPARE(InspectorScreen::named(m_on->card(u"Title of a"_s), u"judged"_s)->property("text"), u"You · just now"_s);
    m_on->waitForEnd();
    QCOMPARE(m_on->live.toast(), u"Marked a real issue."_s);
    m_on->screen->click(button(u"issue"_s));
    QVERIFY(!button(u"issue"_s)->property("on").toBool());
    m_on->waitForEnd();
    QCOMPARE(m_on->live.toast(), u"Reopened."_s);
    const auto sent = m_on->live.client.server.requests("POST", "/api/findings/a");
    QCOMPARE(sent.size(), 2);
    QCOMPARE(sent[0].body, R"({"state":"issue"})");
    QCOMPARE(sent[1].body, R"({"state":"open"})");
    QCOMPARE(m_on->live.store.focus(), std::nullopt);
}

void JudgingTest::theOtherButtonChangesTheJudgement()
{
    show(detailOf({found(u"a"_s, u"words"_s)}));
    m_on->screen->click(button(u"fine"_s));
    QCOMPARE(state(), u"fine"_s);
    m_on->waitForEnd();
    m_on->screen->click(button(u"issue"_s));
    QCOMPARE(state(), u"issue"_s);
    QVERIFY(!button(u"fine"_s)->property("on").toBool());
    m_on->waitForEnd();
}

void JudgingTest::theKeyboardJudges()
{
    show(detailOf({found(u"a"_s, u"words"_s)}));
    m_on->card(u"Title of a"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_on->screen->press(Qt::Key_Tab);
    QCOMPARE(m_on->focus(), button(u"issue"_s));
    m_on->screen->press(Qt::Key_Space);
    QCOMPARE(state(), u"issue"_s);
    m_on->waitForEnd();
    QCOMPARE(m_on->focus(), button(u"issue"_s));
    m_on->screen->press(Qt::Key_Return);
    QCOMPARE(state(), u"open"_s);
    m_on->waitForEnd();
}

void JudgingTest::aRefusedJudgementComesBack()
{
    show(detailOf({found(u"a"_s, u"words"_s)}));
    m_on->live.client.server.on("POST", "/api/findings/a").answer(500);
    m_on->screen->click(button(u"fine"_s));
    QVERIFY(button(u"fine"_s)->property("on").toBool());
    m_on->waitForEnd();
    QVERIFY(!button(u"fine"_s)->property("on").toBool());
    QCOMPARE(state(), u"open"_s);
}

void JudgingTest::aJudgementOnItsWayIsNotPressedAgain()
{
    show(detailOf({found(u"a"_s, u"words"_s)}));
    m_on->screen->click(button(u"issue"_s));
    QVERIFY(button(u"issue"_s)->property("busy").toBool());
    m_on->screen->click(button(u"issue"_s));
    m_on->screen->click(button(u"fine"_s));
    QCOMPARE(state(), u"issue"_s);
    m_on->waitForEnd();
    QCOMPARE(m_on->live.client.server.requests("POST", "/api/findings/a").size(), 1);
}

void JudgingTest::aCardJudgedFineStepsBackUntilSomebodyIsAtIt()
{
    Finding fine = found(u"a"_s, u"words"_s);
    fine.state = u"fine"_s;
    show(detailOf({fine, found(u"b"_s, u"words"_s)}));
    QQuickItem *card = m_on->card(u"Title of a"_s);
    QTRY_COMPARE(card->opacity(), 0.72);
    QCOMPARE(m_on->card(u"Title of b"_s)->opacity(), 1.0);
    card->forceActiveFocus(Qt::TabFocusReason);
    QTRY_COMPARE(card->opacity(), 1.0);
    m_on->field()->forceActiveFocus();
    QTRY_COMPARE(card->opacity(), 0.72);
    m_on->live.store.focusFinding(u"a"_s);
    QTRY_COMPARE(card->opacity(), 1.0);
    m_on->live.store.clearFocus();
    QTest::mouseMove(&m_on->screen->window(), card->mapToScene({150, 20}).toPoint());
    QTRY_COMPARE(card->opacity(), 1.0);
}

void JudgingTest::aClickOnACardFocusesItsFinding()
{
    show(detailOf({found(u"a"_s, u"words"_s), found(u"b"_s, u"words"_s)}));
    m_on->screen->click(InspectorScreen::named(m_on->card(u"Title of b"_s), u"title"_s));
    QCOMPARE(m_on->live.store.focus(), u"b"_s);
    m_on->screen->click(InspectorScreen::named(m_on->card(u"Title of b"_s), u"title"_s));
    QCOMPARE(m_on->live.store.focus(), u"b"_s);
    QTRY_COMPARE(InspectorScreen::named(m_on->card(u"Title of b"_s), u"focusOutline"_s)->opacity(), 0.45);
    QCOMPARE(InspectorScreen::named(m_on->card(u"Title of a"_s), u"focusOutline"_s)->opacity(), 0.0);
    m_on->card(u"Title of a"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_on->screen->press(Qt::Key_Return);
    QCOMPARE(m_on->live.store.focus(), u"a"_s);
}

void JudgingTest::theFocusedCardIsBroughtIntoView()
{
    QList<Finding> findings;
    for (int i = 0; i < 20; ++i)
        findings.append(found(u"f%1"_s.arg(i), u"words"_s));
    show(detailOf(findings), {330, 500});
    const auto inSight = [this](const QString &title) {
        QQuickItem *card = m_on->card(title);
        const QRectF place = card ? card->mapRectToScene(card->boundingRect()) : QRectF(0, 1e6, 1, 1);
        return place.top() >= 0 && place.bottom() <= 500;
    };
    QVERIFY(!inSight(u"Title of f15"_s));
    m_on->live.store.focusFinding(u"f15"_s);
    QTRY_VERIFY(inSight(u"Title of f15"_s));
    m_on->live.store.focusFinding(u"f0"_s);
    QTRY_VERIFY(inSight(u"Title of f0"_s));
}

void JudgingTest::aSettledFindingThatGetsTheFocusIsUnfolded()
{
    show(detailOf({found(u"a"_s, u"words"_s), found(u"e"_s, u"expected"_s)}));
    QVERIFY(!m_on->card(u"Title of e"_s));
    m_on->live.store.focusFinding(u"e"_s);
    QTRY_VERIFY(m_on->card(u"Title of e"_s));
}

void JudgingTest::theSettledFindingsUnfoldAndFoldAgain()
{
    show(detailOf({found(u"e"_s, u"expected"_s), found(u"p"_s, u"pass"_s)}));
    QQuickItem *line = m_on->screen->only("FoldLine");
    QCOMPARE(line->property("text"), u"2 checked and fine"_s);
    QVERIFY(m_on->screen->all("GroupHeader").isEmpty());
    QVERIFY(m_on->screen->texts().contains(u"Matches"_s));
    m_on->screen->click(line);
    QTRY_COMPARE(InspectorScreen::named(line, u"chevron"_s)->rotation(), 90.0);
    QQuickItem *card = m_on->card(u"Title of e"_s);
    QVERIFY(card);
    QVERIFY(!InspectorScreen::named(card, u"tag"_s));
    QVERIFY(InspectorScreen::named(card, u"issue"_s));
    m_on->screen->click(line);
    QTRY_VERIFY(!m_on->card(u"Title of e"_s));
}

void JudgingTest::anotherFileBeginsFolded()
{
    show(detailOf({found(u"e"_s, u"expected"_s)}));
    m_on->screen->click(m_on->screen->only("FoldLine"));
    QTRY_VERIFY(m_on->card(u"Title of e"_s));
    m_on->live.store.turnPage(u"f"_s, 1);
    m_on->live.store.turnPage(u"f"_s, 0);
    QTRY_VERIFY(m_on->card(u"Title of e"_s));
    m_on->live.store.selectFile(u"other"_s);
    m_on->live.store.selectFile(u"f"_s);
    QTRY_VERIFY(!m_on->card(u"Title of e"_s));
}

void JudgingTest::aNewBoardRebuildsNoCard()
{
    show(detailOf({found(u"a"_s, u"words"_s), found(u"b"_s, u"fonts"_s), found(u"c"_s, u"words"_s)}));
    const QPointer<QQuickItem> first = m_on->card(u"Title of a"_s);
    const QPointer<QQuickItem> last = m_on->card(u"Title of b"_s);
    FileDetail detail = detailOf({found(u"b"_s, u"fonts"_s), found(u"new"_s, u"words"_s), found(u"a"_s, u"words"_s)});
    detail.findings[0].title = u"Another title"_s;
    m_on->live.store.takeDetail(u"f"_s, detail);
    QTRY_COMPARE(m_on->screen->all("StandingCard").size(), 3);
    QCOMPARE(m_on->card(u"Title of a"_s), first.data());
    QCOMPARE(m_on->card(u"Another title"_s), last.data());
    QTRY_VERIFY(last->mapToScene({}).y() < first->mapToScene({}).y());
}

void JudgingTest::ofManyCardsOnlyThoseNearTheColumnAreBuilt()
{
    QList<Finding> findings;
    for (int i = 0; i < 300; ++i)
        findings.append(found(u"f%1"_s.arg(i), u"words"_s));
    show(detailOf(findings), {330, 600});
    const auto built = [this] { return m_on->screen->all("StandingCard").size(); };
    QTRY_VERIFY(built() > 8 && built() < 30);
    m_on->live.store.focusFinding(u"f150"_s);
    QTRY_VERIFY(m_on->card(u"Title of f150"_s));
    QTRY_VERIFY(!m_on->card(u"Title of f0"_s));
    QVERIFY(built() < 40);
    // By keyboard from there, further than was built at first.
    m_on->card(u"Title of f150"_s)->forceActiveFocus(Qt::TabFocusReason);
    for (int i = 0; i < 20; ++i)
        m_on->screen->press(Qt::Key_Down);
    QCOMPARE(m_on->focus(), m_on->card(u"Title of f170"_s));
    QTRY_VERIFY(built() < 40);
    // What has the keyboard stays, however far it is scrolled away, once the column has come to the focused card.
    QTRY_VERIFY(!m_on->screen->window().rootObject()->property("wanted").value<QQuickItem *>());
    m_on->named(u"column"_s)->setProperty("contentY", 0);
    QTRY_VERIFY(m_on->card(u"Title of f0"_s));
    QCOMPARE(m_on->focus(), m_on->card(u"Title of f170"_s));
    // Those who listen to the window find every one of them, and can go there.
    const auto places = m_on->screen->all("FindingPlace");
    QCOMPARE(places.size(), 300);
    QAccessibleInterface *last = QAccessible::queryAccessibleInterface(places.last());
    QCOMPARE(last->role(), QAccessible::ListItem);
    QCOMPARE(last->text(QAccessible::Name), u"Title of f299"_s);
    last->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(m_on->focus(), m_on->card(u"Title of f299"_s));
    // Where the keyboard was, nothing is kept any longer.
    QTRY_VERIFY(!m_on->card(u"Title of f170"_s));
    QVERIFY(built() < 40);
}

void JudgingTest::aKeyThatIsHeldJudgesOnce()
{
    show(detailOf({found(u"a"_s, u"words"_s)}));
    QQuickItem *issue = InspectorScreen::named(m_on->card(u"Title of a"_s), u"issue"_s);
    issue->forceActiveFocus(Qt::TabFocusReason);
    QSignalSpy judged(m_on->card(u"Title of a"_s), SIGNAL(judged(QString)));
    m_on->screen->hold(Qt::Key_Return);
    QCOMPARE(judged.size(), 1);
    QTRY_VERIFY(!issue->property("busy").toBool());
    m_on->screen->hold(Qt::Key_Space);
    QCOMPARE(judged.size(), 2);
}

void JudgingTest::aCardThatIsScrolledAwayShowsAnother()
{
    QList<Finding> findings;
    for (int i = 0; i < 300; ++i)
        findings.append(found(u"f%1"_s.arg(i), u"words"_s));
    findings.append(found(u"last"_s, u"fonts"_s));
    show(detailOf(findings), {330, 600});
    QTRY_VERIFY(m_on->card(u"Title of f3"_s));
    const auto made = [this] {
        const auto items = m_on->screen->window().contentItem()->findChildren<QQuickItem *>();
        return std::ranges::count_if(items, [](const QQuickItem *item) {
            return QByteArray(item->metaObject()->className()).startsWith("StandingCard_QML");
        });
    };
    QVERIFY(made() < 30);
    const auto headings = [this] { return m_on->screen->all("GroupHeader"); };
    QCOMPARE(headings().size(), 1);
    m_on->live.store.focusFinding(u"last"_s);
    QTRY_VERIFY(m_on->card(u"Title of last"_s));
    QTRY_VERIFY(!m_on->card(u"Title of f3"_s));
    QCOMPARE(headings().size(), 1);
    const QQuickItem *last = m_on->card(u"Title of last"_s);
    QCOMPARE(headings().first()->mapToItem(last, QPointF()), QPointF(0, -22));
    // Each is as high as what it shows now.
    const QQuickItem *place = last->parentItem();
    QTRY_COMPARE(place->height(), last->y() + last->height());
    for (int i = 0; i < 300; i += 10) {
        m_on->live.store.focusFinding(u"f%1"_s.arg(i));
        QTRY_VERIFY(m_on->card(u"Title of f%1"_s.arg(i)));
    }
    QVERIFY(made() < 40);
    // It judges what it shows now.
    m_on->screen->click(InspectorScreen::named(m_on->card(u"Title of f290"_s), u"issue"_s));
    QCOMPARE(state(290), u"issue"_s);
}

void JudgingTest::arrowsGoFromCardToCard()
{
    show(detailOf({found(u"a"_s, u"words"_s), found(u"b"_s, u"fonts"_s)}));
    m_on->card(u"Title of a"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_on->screen->press(Qt::Key_Down);
    QCOMPARE(m_on->focus(), m_on->card(u"Title of b"_s));
    m_on->screen->press(Qt::Key_Down);
    QCOMPARE(m_on->focus(), m_on->card(u"Title of b"_s));
    m_on->screen->press(Qt::Key_Up);
    QCOMPARE(m_on->focus(), m_on->card(u"Title of a"_s));
}

void JudgingTest::anotherPageIsTurnedTo()
{
    show(detailOf({found(u"a"_s, u"words"_s), found(u"b"_s, u"words"_s, 2), found(u"c"_s, u"words"_s, 2)}));
    QCOMPARE(m_on->screen->all("SectionTitle").last()->property("text"), u"STILL OPEN ON OTHER PAGES"_s);
    QQuickItem *row = m_on->screen->only("OtherPageRow");
    QVERIFY(m_on->screen->texts().contains(u"2 to look at"_s));
    m_on->screen->click(row);
    QCOMPARE(m_on->live.store.shownPage(u"f"_s), 2);
    QVERIFY(m_on->screen->texts().contains(u"Page 3"_s));
    QVERIFY(m_on->screen->texts().contains(u"2 found"_s));
    QVERIFY(m_on->screen->texts().contains(u"1 to look at"_s));
}

void JudgingTest::theNoticeStandsOverAPageThatWasRead()
{
    FileDetail detail = detailOf({});
    detail.file.pages->operator[](1).ocr = true;
    show(detail);
    QVERIFY(!m_on->named(u"notice"_s));
    m_on->live.store.turnPage(u"f"_s, 1);
    QTRY_VERIFY(m_on->named(u"notice"_s));
    QVERIFY(m_on->screen->texts().contains(
        u"This page has no live text, so its words were read from the picture. Check them by eye."_s));
}

void JudgingTest::nothingFoundIsSaid()
{
    show(detailOf({}));
    QVERIFY(m_on->screen->texts().contains(u"Nothing different here."_s));
    QVERIFY(m_on->screen->texts().contains(u"The words, breaks, fonts and art match vs what we sent."_s));
    QVERIFY(m_on->screen->texts().contains(u"No notes on this page yet."_s));
    QCOMPARE(m_on->screen->only("SectionTitle")->property("text"), u"NOTES"_s);
    m_on->live.store.setAgainst(u"latest"_s);
    QVERIFY(m_on->screen->texts().contains(u"The words, breaks, fonts and art match vs last print."_s));
}

void JudgingTest::whatDiffersLiesOnAGround()
{
    Finding finding = found(u"a"_s, u"words"_s);
    finding.before = u"lit every lantern"_s;
    finding.after = u"lit every lantem, "_s + u"and so on and on "_s.repeated(10);
    show(detailOf({finding}));
    QQuickItem *ours = m_on->named(u"ours"_s);
    const auto grounds = [](QQuickItem *side) {
        QList<QRectF> places;
        for (const QQuickItem *child : side->childItems()) {
            if (child->property("radius").toReal() == 2.5)
                places.append(QRectF(child->position(), child->size()));
        }
        return places;
    };
    QTRY_COMPARE(grounds(ours).size(), 1);
    const QRectF ground = grounds(ours).constFirst();
    QVERIFY(ground.left() > 30 && ground.right() <= ours->property("contentWidth").toReal() + 2);
    // Several lines have a ground each, none of them outside the text.
    QQuickItem *theirs = m_on->named(u"theirs"_s);
    QTRY_VERIFY(grounds(theirs).size() > 2);
    for (const QRectF &place : grounds(theirs))
        QVERIFY(place.left() >= -1 && place.right() <= theirs->width() + 2 && place.bottom() <= theirs->height() + 1);
}

void JudgingTest::textsFromOutsideStayTextAndStayInTheColumn()
{
    const QString nasty = u"<b>bold</b><img src='http://127.0.0.1:9/x.png'> \u202Eright to left \U0001F98A"_s;
    Finding finding = found(u"a"_s, u"words"_s);
    finding.title = nasty + u"x"_s.repeated(10000);
    finding.detail = nasty + u" word"_s.repeated(2000);
    finding.before = nasty + u"a"_s.repeated(10000);
    finding.after = nasty + u"b"_s.repeated(10000);
    FileDetail detail = detailOf({finding});
    detail.file.supplier = nasty.repeated(50);
    detail.file.pages->operator[](0).label = nasty.repeated(50);
    Note note;
    note.id = u"n"_s;
    note.page = 0;
    note.text = nasty + u"y"_s.repeated(10000);
    note.by = nasty.repeated(20);
    detail.comments = {note};
    show(detail);
    labelsAreTextInTheColumn();
    QQuickItem *card = m_on->screen->only("StandingCard");
    QVERIFY2(card->height() < 1500, qPrintable(QString::number(card->height())));
    for (const auto *name : {"ours", "theirs"}) {
        const QQuickItem *side = m_on->named(QString::fromLatin1(name));
        QCOMPARE(side->property("textFormat").toInt(), int(Qt::PlainText));
        QVERIFY(side->property("text").toString().startsWith(u"<b>bold</b>"_s));
    }
    QQuickItem *body = InspectorScreen::named(m_on->screen->only("NoteRow"), u"text"_s);
    QCOMPARE(body->property("textFormat").toInt(), int(Qt::PlainText));
    QCOMPARE(body->property("text").toString(), note.text);
    QVERIFY(body->property("contentWidth").toReal() <= body->width());
    m_on->live.store.answerFinding(u"a"_s);
    QVERIFY(m_on->context().startsWith(u"Note on: <b>bold</b><img"_s));
    labelsAreTextInTheColumn();
}

void JudgingTest::labelsAreTextInTheColumn() const
{
    for (const QQuickItem *label : m_on->screen->all("Label")) {
        QCOMPARE(label->property("textFormat").toInt(), int(Qt::PlainText));
        const QRectF place = label->mapRectToScene(label->boundingRect());
        QVERIFY2(place.left() >= 15 && place.right() <= 315.5, qPrintable(label->property("text").toString().left(40)));
    }
}

void JudgingTest::theKeyboardReachesEverythingAndIsSeen()
{
    FileDetail detail = detailOf({found(u"a"_s, u"words"_s), found(u"b"_s, u"fonts"_s), found(u"e"_s, u"expected"_s),
                                  found(u"c"_s, u"words"_s, 2)});
    Note note;
    note.id = u"n"_s;
    note.page = 0;
    note.text = u"A note"_s;
    detail.comments = {note};
    show(detail, {330, 400});
    m_on->live.store.answerFinding(u"a"_s);
    m_on->field()->setProperty("text", u"Something"_s);
    m_on->card(u"Title of a"_s)->forceActiveFocus(Qt::TabFocusReason);
    QQuickItem *const first = m_on->focus();
    QStringList reached;
    qreal before = -1e9;
    QQuickItem *flickable = m_on->named(u"field"_s);
    do {
        QQuickItem *item = m_on->focus();
        const QRectF place = item->mapRectToScene(item->boundingRect());
        QVERIFY2(place.bottom() > 0 && place.top() < 400, qPrintable(reached.join(u", "_s)));
        const QRectF onSheet = item->mapRectToItem(flickable, item->boundingRect());
        QVERIFY2(onSheet.bottom() + 1 >= before, qPrintable(reached.join(u", "_s)));
        before = onSheet.top();
        reached.append(item->property("name").isValid() && !item->property("name").toString().isEmpty()
                           ? item->property("name").toString()
                           : item->objectName());
        const QQuickItem *ring = InspectorScreen::named(item, u"focusRing"_s);
        const bool writes = item->objectName() == u"edit"_s;
        QVERIFY2(writes || (ring && ring->isVisible()), qPrintable(reached.join(u", "_s)));
        m_on->screen->press(Qt::Key_Tab);
    } while (m_on->focus() != first && reached.size() < 40);
    QCOMPARE(reached, QStringList({u""_s, u"Real issue"_s, u"Fine"_s, u"Add a note to this"_s, u""_s, u"Real issue"_s,
                                   u"Fine"_s, u"Add a note to this"_s, u"1 of our edit came through"_s, u"Resolve"_s,
                                   u"Edit or delete"_s, u"Clear"_s, u"edit"_s, u"Post"_s, u"Page 3, 1 to look at"_s}));
}

void JudgingTest::everythingIsCalledSomething()
{
    show(detailOf({found(u"a"_s, u"words"_s)}));
    const auto spoken = [](QObject *item) { return QAccessible::queryAccessibleInterface(item); };
    QAccessibleInterface *card = spoken(m_on->card(u"Title of a"_s));
    QCOMPARE(card->role(), QAccessible::ListItem);
    QCOMPARE(card->text(QAccessible::Name), u"Title of a"_s);
    QCOMPARE(card->text(QAccessible::Description), u"Check"_s);
    QVERIFY(!card->state().selected);
    card->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(m_on->live.store.focus(), u"a"_s);
    QVERIFY(spoken(m_on->card(u"Title of a"_s))->state().selected);
    QAccessibleInterface *issue = spoken(button(u"issue"_s));
    QCOMPARE(issue->text(QAccessible::Name), u"Real issue"_s);
    QVERIFY(!issue->state().checked);
    issue->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(state(), u"issue"_s);
    QVERIFY(spoken(button(u"issue"_s))->state().checked);
    m_on->waitForEnd();
    QCOMPARE(spoken(button(u"note"_s))->text(QAccessible::Description), u"Add a note to this"_s);
    QCOMPARE(spoken(m_on->field())->role(), QAccessible::EditableText);
    QCOMPARE(spoken(m_on->field())->text(QAccessible::Name), u"Note on page 1"_s);
}

QTEST_MAIN(JudgingTest)
#include "tst_judging.moc"
