#include "tinyboard.h"

#include <QBuffer>
#include <QImage>
#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

/// Each endpoint: what it answers and what it refuses.
class EndpointsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBoardIsTheSeedAsSeenByWhoAsks();
    void aFileIsAnsweredWithItsFindingsAndNotes();
    void aBoardThatIsHeldIsNotSentAgain();
    void aTagIsOnePersonsAndOneRevisions();
    void aFileThatIsHeldIsNotSentAgainUntilItChanges();
    void pollingAloneMovesLastSeenAtMostOnceAMinute();
    void withoutASessionThereIsOnlyTheSignIn_data();
    void withoutASessionThereIsOnlyTheSignIn();
    void aPictureIsAnsweredByItsKey();
    void aKeyThatLeadsOutsideFindsNothing_data();
    void aKeyThatLeadsOutsideFindsNothing();
    void aFilesStatusIsSetAndTold();
    void aFindingsStateIsSetTalliedAndTold();
    void whatIsAsItWasChangesNothing();
    void aNoteIsAddedPinnedAndTold();
    void aNoteIsEditedResolvedReopenedAndDeleted();
    void aPhotoGetsAKeyOfItsOwn();
    void theVersionIsOurOwnUntilAnotherIsOffered();
    void aBadRequestIsRefusedWithASentenceAndChangesNothing_data();
    void aBadRequestIsRefusedWithASentenceAndChangesNothing();
};

namespace {

QByteArray jpeg(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::green);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG");
    return buffer.data();
}

} // namespace

void EndpointsTest::theBoardIsTheSeedAsSeenByWhoAsks()
{
    TinyBoard board;
    auto teo = board.teo();
    const auto seen = teo.board();
    const auto sample = tinySample().board;
    QCOMPARE(seen.me, (Me{TinyBoard::teoEmail, u"Teo <Ott>"_s}));
    QVERIFY(seen.rev > sample.rev);
    QCOMPARE(seen.files, sample.files);
    QCOMPARE(seen.reports, sample.reports);
    QVERIFY(seen.jobs.isEmpty() && !seen.sync);
    QCOMPARE(seen.events.size(), 4);
    QCOMPARE(seen.events[0].id, 4);
    QCOMPARE(seen.events[0].kind, u"signin"_s);
    QCOMPARE(seen.events[0].by, TinyBoard::teoEmail);
    QCOMPARE(seen.events.last(3), sample.events);
    QCOMPARE(seen.users[0], sample.users[0]);
    QCOMPARE(seen.users[1].last_seen, board.now.load());
}

void EndpointsTest::aFileIsAnsweredWithItsFindingsAndNotes()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto sample = tinySample().details.value(u"f1"_s);
    const auto detail = mira.file(u"f1"_s);
    QCOMPARE(detail.file, sample.file);
    QCOMPARE(detail.file.pages->size(), 2);
    QCOMPARE(detail.findings, sample.findings);
    QCOMPARE(detail.comments, sample.comments);

    const auto none = mira.get(u"/api/files/nothing"_s);
    QCOMPARE(none.status, 404);
    QCOMPARE(none.error(), u"That file isn't on the board."_s);
}

void EndpointsTest::aBoardThatIsHeldIsNotSentAgain()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto first = mira.get(u"/api/state"_s);
    QCOMPARE(first.status, 200);
    QVERIFY(first.tag.startsWith('"') && first.tag.endsWith('"'));

    const auto held = mira.get(u"/api/state"_s, first.tag);
    QCOMPARE(held.status, 304);
    QCOMPARE(held.tag, first.tag);
    QVERIFY(held.body.isEmpty());
    QCOMPARE(mira.get(u"/api/state"_s, "\"other\", W/" + first.tag).status, 304);
    QCOMPARE(mira.get(u"/api/state"_s, "\"other\"").status, 200);

    QVERIFY(board->review().setStatus(TinyBoard::teoEmail, u"f1"_s, u"reviewed"_s));
    const auto next = mira.get(u"/api/state"_s, first.tag);
    QCOMPARE(next.status, 200);
    QVERIFY(next.tag != first.tag);
    QCOMPARE(next.as<BoardState>().rev, first.as<BoardState>().rev + 1);
}

void EndpointsTest::aTagIsOnePersonsAndOneRevisions()
{
    TinyBoard board;
    auto mira = board.mira();
    auto teo = board.teo();
    QCOMPARE(teo.get(u"/api/state"_s, mira.get(u"/api/state"_s).tag).status, 200);

    TinyBoard other;
    auto elsewhere = other.mira();
    other.teo();
    QCOMPARE(elsewhere.board().rev, mira.board().rev);
    QCOMPARE(elsewhere.get(u"/api/state"_s, mira.get(u"/api/state"_s).tag).status, 200);
}

void EndpointsTest::aFileThatIsHeldIsNotSentAgainUntilItChanges()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto first = mira.get(u"/api/files/f1"_s);
    QVERIFY(board->review().setStatus(TinyBoard::teoEmail, u"f2"_s, u"in_review"_s));
    QCOMPARE(mira.get(u"/api/files/f1"_s, first.tag).status, 304);
    QVERIFY(board->review().setFindingState(TinyBoard::teoEmail, u"a"_s, u"fine"_s));
    const auto next = mira.get(u"/api/files/f1"_s, first.tag);
    QCOMPARE(next.status, 200);
    QCOMPARE(next.as<FileDetail>().file.rev, 5);
    QVERIFY(next.tag != first.tag);
}

void EndpointsTest::pollingAloneMovesLastSeenAtMostOnceAMinute()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto first = mira.get(u"/api/state"_s);
    const double before = board.now;
    board.now = before + 59'999;
    QCOMPARE(mira.get(u"/api/state"_s, first.tag).status, 304);
    board.now = before + 60'000;
    const auto next = mira.get(u"/api/state"_s, first.tag);
    QCOMPARE(next.status, 200);
    QCOMPARE(next.as<BoardState>().users[0].last_seen, before + 60'000);
    QCOMPARE(mira.get(u"/api/state"_s, next.tag).status, 304);
}

void EndpointsTest::withoutASessionThereIsOnlyTheSignIn_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("path");
    for (const auto *path : {"/api/state", "/api/files/f1", "/api/blob/f1/0.png", "/api/reports/r1/pdf"})
        QTest::newRow(path) << u"GET"_s << QString::fromLatin1(path);
    for (const auto *path : {"/api/jobs", "/api/jobs/j/stop", "/api/findings/a", "/api/comments", "/api/comments/n1",
                             "/api/files/f1/status", "/api/logout"})
        QTest::newRow(path) << u"POST"_s << QString::fromLatin1(path);
    QTest::newRow("photo") << u"PUT"_s << u"/api/me/photo"_s;
}

void EndpointsTest::withoutASessionThereIsOnlyTheSignIn()
{
    QFETCH(QString, method);
    QFETCH(QString, path);
    TinyBoard board;
    for (const auto &token : {u""_s, u"wrong"_s}) {
        Visitor visitor(board->port(), token);
        const auto reply = method == "GET"_L1    ? visitor.get(path)
                           : method == "POST"_L1 ? visitor.post(path, "{}")
                                                 : visitor.put(path, "x", "image/jpeg");
        QCOMPARE(reply.status, 401);
        QCOMPARE(reply.error(), u"Sign in first."_s);
    }
}

void EndpointsTest::aPictureIsAnsweredByItsKey()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto reply = mira.get(u"/api/blob/f1/0.png"_s);
    QCOMPARE(reply.status, 200);
    QCOMPARE(reply.type, "image/png");
    QCOMPARE(QImage::fromData(reply.body).size(), QSize(300, 400));
    QCOMPARE(mira.get(u"/api/blob/f3/0.png"_s).status, 200);
    QCOMPARE(mira.get(u"/api/blob/f9/0.png"_s).status, 404);
}

void EndpointsTest::aKeyThatLeadsOutsideFindsNothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("up") << u"../../../../etc/passwd"_s;
    QTest::newRow("up, encoded") << u"..%2F..%2F..%2Fetc%2Fpasswd"_s;
    QTest::newRow("root") << u"/etc/passwd"_s;
    QTest::newRow("the ledger") << u"board.sqlite"_s;
    QTest::newRow("NUL") << u"f1/0.png%00.txt"_s;
    QTest::newRow("not UTF-8") << u"%ff%fe"_s;
    QTest::newRow("half an escape") << u"%2"_s;
    QTest::newRow("quote") << u"'%20OR%20''='"_s;
    QTest::newRow("pattern") << u"%25"_s;
    QTest::newRow("long") << QString(1500, u'a');
}

void EndpointsTest::aKeyThatLeadsOutsideFindsNothing()
{
    QFETCH(QString, key);
    QTemporaryDir data;
    TinyBoard board(data.path());
    const auto reply = board.mira().get(u"/api/blob/"_s + key);
    QCOMPARE(reply.status, 404);
    QCOMPARE(reply.error(), u"That picture isn't on the board."_s);
}

void EndpointsTest::aFilesStatusIsSetAndTold()
{
    TinyBoard board;
    auto mira = board.mira();
    board.now = tinyNewest + 2000;
    const auto reply = mira.post(u"/api/files/f1/status"_s, QJsonObject{{u"status"_s, u"reviewed"_s}});
    QCOMPARE(reply.status, 200);
    const auto seen = mira.board();
    QCOMPARE(withoutPages(reply.as<FileItem>()), seen.files[0]);
    QCOMPARE(seen.files[0].status, u"reviewed"_s);
    QCOMPARE(seen.files[0].status_by, TinyBoard::miraEmail);
    QCOMPARE(seen.files[0].status_at, board.now.load());
    QCOMPARE(seen.files[0].rev, 5);
    const auto event = seen.events[0];
    QCOMPARE(event.kind, u"status"_s);
    QCOMPARE(event.by, TinyBoard::miraEmail);
    QCOMPARE(event.file_id, u"f1"_s);
    QCOMPARE(event.text, u"Marked A Letter by Owl Box lid reviewed"_s);
    QCOMPARE(event.at, board.now.load());
    QCOMPARE(seen.users[0].last_seen, board.now.load());
}

void EndpointsTest::aFindingsStateIsSetTalliedAndTold()
{
    TinyBoard board;
    auto teo = board.teo();
    const auto reply = teo.post(u"/api/findings/b"_s, QJsonObject{{u"state"_s, u"issue"_s}});
    QCOMPARE(reply.status, 200);
    const auto finding = reply.as<Finding>();
    QCOMPARE(finding.state, u"issue"_s);
    QCOMPARE(finding.state_by, TinyBoard::teoEmail);
    QCOMPARE(finding.state_at, board.now.load());
    QCOMPARE(teo.file(u"f1"_s).findings[1], finding);
    const auto seen = teo.board();
    QCOMPARE(seen.files[0].tally, (Tally{.open = 1, .issues = 1, .total = 3}));
    QCOMPARE(seen.events[0].kind, u"finding"_s);
    QCOMPARE(seen.events[0].page, 1);
    QCOMPARE(seen.events[0].text, u"Marked a finding a real issue on A Letter by Owl Box lid"_s);

    QCOMPARE(teo.post(u"/api/findings/b"_s, QJsonObject{{u"state"_s, u"open"_s}}).status, 200);
    QCOMPARE(teo.board().files[0].tally, (Tally{.open = 2, .issues = 0, .total = 3}));
    QCOMPARE(teo.board().events[0].text, u"Reopened a finding on A Letter by Owl Box lid"_s);
}

void EndpointsTest::whatIsAsItWasChangesNothing()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto before = mira.get(u"/api/state"_s);
    QCOMPARE(mira.post(u"/api/files/f1/status"_s, QJsonObject{{u"status"_s, u"new"_s}}).status, 200);
    QCOMPARE(mira.post(u"/api/findings/a"_s, QJsonObject{{u"state"_s, u"open"_s}}).status, 200);
    QCOMPARE(mira.post(u"/api/comments/n1"_s, QJsonObject{{u"text"_s, u"Warmer"_s}, {u"resolved"_s, false}}).status,
             200);
    QCOMPARE(mira.get(u"/api/state"_s, before.tag).status, 304);
}

void EndpointsTest::aNoteIsAddedPinnedAndTold()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto reply = mira.post(u"/api/comments"_s, QJsonObject{{u"file_id"_s, u"f1"_s},
                                                                 {u"page"_s, 1},
                                                                 {u"text"_s, u" Größer, bitte 🙂\n"_s},
                                                                 {u"x"_s, 0.62},
                                                                 {u"y"_s, 1},
                                                                 {u"finding_id"_s, u"b"_s}});
    QCOMPARE(reply.status, 200);
    const auto note = reply.as<Note>();
    const Note expected{.id = note.id,
                        .file_id = u"f1"_s,
                        .page = 1,
                        .x = 0.62,
                        .y = 1,
                        .finding_id = u"b"_s,
                        .text = u"Größer, bitte 🙂"_s,
                        .by = TinyBoard::miraEmail,
                        .at = board.now};
    QCOMPARE(note, expected);
    const auto detail = mira.file(u"f1"_s);
    QCOMPARE(detail.comments.last(), expected);
    QCOMPARE(detail.file.rev, 5);
    QCOMPARE(mira.board().events[0].kind, u"comment"_s);
    QCOMPARE(mira.board().events[0].text, expected.text);

    const auto plain = mira.post(u"/api/comments"_s, QJsonObject{{u"file_id"_s, u"f1"_s}, {u"text"_s, u"All of it"_s}});
    QVERIFY(!plain.json().contains(u"page"_s) && !plain.json().contains(u"x"_s));
    QVERIFY(plain.as<Note>().id != note.id);
}

void EndpointsTest::aNoteIsEditedResolvedReopenedAndDeleted()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto path = u"/api/comments/n1"_s;
    const auto note = [&] { return mira.file(u"f1"_s).comments.value(0); };

    QCOMPARE(mira.post(path, QJsonObject{{u"text"_s, u"Cooler"_s}}).status, 200);
    QCOMPARE(note().text, u"Cooler"_s);
    QCOMPARE(note().edited, board.now.load());
    QCOMPARE(note().by, TinyBoard::teoEmail);

    QCOMPARE(mira.post(path, QJsonObject{{u"resolved"_s, true}}).status, 200);
    QCOMPARE(note().resolved, 1);
    QCOMPARE(note().resolved_by, TinyBoard::miraEmail);
    QCOMPARE(mira.board().events[0].kind, u"resolve"_s);

    QCOMPARE(mira.post(path, QJsonObject{{u"resolved"_s, false}}).status, 200);
    QVERIFY(!note().resolved && !note().resolved_by);

    QCOMPARE(mira.post(path, QJsonObject{{u"deleted"_s, true}}).status, 200);
    QVERIFY(mira.file(u"f1"_s).comments.isEmpty());
    QCOMPARE(mira.board().events[0].text, u"deleted a note"_s);
    QCOMPARE(mira.post(path, QJsonObject{{u"deleted"_s, true}}).status, 404);
}

void EndpointsTest::aPhotoGetsAKeyOfItsOwn()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto photo = jpeg(512, 512);
    const auto first = mira.put(u"/api/me/photo"_s, photo, "image/jpeg");
    QCOMPARE(first.status, 200);
    const auto key = mira.board().users[0].photo.value_or(QString());
    QCOMPARE(mira.get(u"/api/blob/"_s + key).body, photo);
    QCOMPARE(mira.board().events[0].kind, u"photo"_s);

    QCOMPARE(mira.put(u"/api/me/photo"_s, jpeg(100, 100), "image/jpeg").status, 200);
    QVERIFY(mira.board().users[0].photo != key);

    for (const auto &bad : {QByteArray(), QByteArray("no picture"), jpeg(5000, 10)}) {
        const auto reply = mira.put(u"/api/me/photo"_s, bad, "image/jpeg");
        QCOMPARE(reply.status, 400);
        QCOMPARE(reply.error(), u"That photo didn't open. It has to be a JPEG."_s);
    }
}

void EndpointsTest::theVersionIsOurOwnUntilAnotherIsOffered()
{
    QTemporaryDir data;
    TinyBoard board(data.path());
    const auto version = [&] { return board.stranger().get(u"/version.json"_s).as<VersionInfo>(); };
    QCOMPARE(version().build, 1);
    board->offer({.version = u"1.4"_s, .build = 140, .url = u"https://example.org"_s});
    QCOMPARE(version().build, 140);
    QFile placed(data.filePath(u"version.json"_s));
    QVERIFY(placed.open(QIODevice::WriteOnly));
    placed.write(R"({"version":"2.0","build":200,"url":"https://example.org"})");
    placed.close();
    QCOMPARE(version().version, u"2.0"_s);
}

void EndpointsTest::aBadRequestIsRefusedWithASentenceAndChangesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("status");
    const auto status = u"/api/files/f1/status"_s;
    const auto finding = u"/api/findings/a"_s;
    const auto notes = u"/api/comments"_s;
    const auto note = u"/api/comments/n1"_s;
    const auto jobs = u"/api/jobs"_s;

    QTest::newRow("no body") << status << QByteArray() << 400;
    QTest::newRow("no JSON") << status << QByteArray("{status") << 400;
    QTest::newRow("not UTF-8") << status << QByteArray("{\"status\":\"\xff\"}") << 400;
    QTest::newRow("a list") << status << QByteArray("[]") << 400;
    QTest::newRow("deep") << status << QByteArray(100'000, '[') << 400;
    QTest::newRow("deep objects") << status << QByteArray("{\"a\":").repeated(40'000) << 400;
    QTest::newRow("too large") << status << QByteArray("{\"status\":\"" + QByteArray(300'000, 'a') + "\"}") << 413;
    QTest::newRow("much too large") << status << QByteArray(8'000'001, ' ') << 413;
    QTest::newRow("status missing") << status << QByteArray("{}") << 400;
    QTest::newRow("status null") << status << QByteArray(R"({"status":null})") << 400;
    QTest::newRow("status a number") << status << QByteArray(R"({"status":1})") << 400;
    QTest::newRow("status unknown") << status << QByteArray(R"({"status":"lost"})") << 400;
    QTest::newRow("file unknown") << u"/api/files/f9/status"_s << QByteArray(R"({"status":"new"})") << 404;
    QTest::newRow("state unknown") << finding << QByteArray(R"({"state":"bad"})") << 400;
    QTest::newRow("finding unknown") << u"/api/findings/zz"_s << QByteArray(R"({"state":"fine"})") << 404;
    QTest::newRow("note without file") << notes << QByteArray(R"({"text":"a"})") << 400;
    QTest::newRow("note without text") << notes << QByteArray(R"({"file_id":"f1"})") << 400;
    QTest::newRow("note of blanks") << notes << QByteArray(R"({"file_id":"f1","text":" \n"})") << 400;
    QTest::newRow("note too long") << notes
                                   << QByteArray(R"({"file_id":"f1","text":")" + QByteArray(10'001, 'a') + "\"}")
                                   << 400;
    QTest::newRow("note with a NUL") << notes << QByteArray(R"({"file_id":"f1","text":"a\u0000b"})") << 400;
    QTest::newRow("note on no file") << notes << QByteArray(R"({"file_id":"f9","text":"a"})") << 404;
    QTest::newRow("page beyond") << notes << QByteArray(R"({"file_id":"f1","text":"a","page":2})") << 400;
    QTest::newRow("page below") << notes << QByteArray(R"({"file_id":"f1","text":"a","page":-1})") << 400;
    QTest::newRow("half a page") << notes << QByteArray(R"({"file_id":"f1","text":"a","page":0.5})") << 400;
    QTest::newRow("huge page") << notes << QByteArray(R"({"file_id":"f1","text":"a","page":1e300})") << 400;
    QTest::newRow("pin without y") << notes << QByteArray(R"({"file_id":"f1","text":"a","page":0,"x":0.5})") << 400;
    QTest::newRow("pin off the page") << notes << QByteArray(R"({"file_id":"f1","text":"a","page":0,"x":1.1,"y":0})")
                                      << 400;
    QTest::newRow("pin on no page") << notes << QByteArray(R"({"file_id":"f1","text":"a","x":0.5,"y":0.5})") << 400;
    QTest::newRow("pin of texts") << notes << QByteArray(R"({"file_id":"f1","text":"a","page":0,"x":"0","y":"0"})")
                                  << 400;
    QTest::newRow("no such finding") << notes << QByteArray(R"({"file_id":"f1","text":"a","finding_id":"zz"})") << 400;
    QTest::newRow("another file's finding")
        << notes << QByteArray(R"({"file_id":"f2","text":"a","finding_id":"a"})") << 400;
    QTest::newRow("nothing to change") << note << QByteArray("{}") << 400;
    QTest::newRow("changed to blanks") << note << QByteArray(R"({"text":"  "})") << 400;
    QTest::newRow("changed to a NUL") << note << QByteArray(R"({"text":"a\u0000b"})") << 400;
    QTest::newRow("resolved by number") << note << QByteArray(R"({"resolved":1})") << 400;
    QTest::newRow("deleted false alone") << note << QByteArray(R"({"deleted":false})") << 400;
    QTest::newRow("note unknown") << u"/api/comments/zz"_s << QByteArray(R"({"text":"a"})") << 404;
    QTest::newRow("no kind") << jobs << QByteArray("{}") << 400;
    QTest::newRow("unknown kind") << jobs << QByteArray(R"({"kind":"coffee"})") << 400;
    QTest::newRow("report on nothing") << jobs << QByteArray(R"({"kind":"report"})") << 400;
    QTest::newRow("report on no file") << jobs << QByteArray(R"({"kind":"report","file_ids":[]})") << 400;
    QTest::newRow("report on a number") << jobs << QByteArray(R"({"kind":"report","file_ids":[1]})") << 400;
    QTest::newRow("report on an unknown file")
        << jobs << QByteArray(R"({"kind":"report","file_ids":["f1","f9"]})") << 400;
    QTest::newRow("stop of nothing") << u"/api/jobs/zz/stop"_s << QByteArray() << 404;
    QTest::newRow("unknown path") << u"/api/elsewhere"_s << QByteArray() << 404;
    QTest::newRow("wrong method") << u"/api/state"_s << QByteArray() << 404;
}

void EndpointsTest::aBadRequestIsRefusedWithASentenceAndChangesNothing()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, body);
    QFETCH(int, status);
    TinyBoard board;
    auto mira = board.mira();
    const auto before = mira.get(u"/api/state"_s);
    const auto reply = mira.post(path, body);
    QCOMPARE(reply.status, status);
    QVERIFY2(reply.error().endsWith(u'.'), reply.body);
    QCOMPARE(mira.get(u"/api/state"_s, before.tag).status, 304);
}

QTEST_GUILESS_MAIN(EndpointsTest)
#include "tst_endpoints.moc"
