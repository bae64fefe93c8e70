#include "boards.h"
#include "fileliststate.h"
#include "screen.h"
#include "testclock.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;
using test::Screen;

namespace {

const QByteArray listQml = R"(
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar
FileList {
    focus: true
    state: FileListState { store: Store }
}
)";

} // namespace

class FileListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aClickSelectsAFileAlone();
    void aClickWithCommandAddsAndTakesAway();
    void takingTheOnlyOneAwayEmptiesTheSelection();
    void aClickLetsGoOfTheFocus();
    void theKeyboardReachesEveryRow();
    void theKeyboardAddsAndTakesAway();
    void homeEndAndWholePagesMoveTheCursorAlone();
    void addingAFileMovesNothing();
    void whatIsShownIsBelowTheTitleOfItsSection();
    void aClickBringsTheKeyboardButNoRing();
    void sectionsHaveTheirHeadings();
    void anEmptyBoardSaysWhatToDo();
    void aNewBoardMovesRowsAndBuildsNone();
    void longNamesAreCutNotSpilled();
    void whateverABoardChangesEachRowIsOfItsFile();

private:
    void showHundred();
    QQuickItem *list() const;
    QStringList keys() const;
    QQuickItem *row(const QString &key) const;

    TestClock m_clock;
    std::unique_ptr<Store> m_store;
    std::unique_ptr<Screen> m_screen;
};

void FileListTest::init()
{
    m_screen.reset();
    m_store = std::make_unique<Store>(m_clock.clock());
    m_store->takeBoard(aBoard({aFile(u"a"_s), aFile(u"b"_s), aFile(u"c"_s, u"reviewed"_s)}));
    m_screen = std::make_unique<Screen>(*m_store, listQml, QSize(288, 600));
}

QStringList FileListTest::keys() const
{
    QMap<qreal, QString> byPlace;
    for (const QQuickItem *row : m_screen->all("FileRow"))
        byPlace.insert(row->mapToScene({}).y(), row->property("row").value<FileRow>().key);
    return byPlace.values();
}

QQuickItem *FileListTest::row(const QString &key) const
{
    for (QQuickItem *row : m_screen->all("FileRow")) {
        if (row->property("row").value<FileRow>().key == key)
            return row;
    }
    return nullptr;
}

void FileListTest::aClickSelectsAFileAlone()
{
    m_screen->click(row(u"b"_s));
    QCOMPARE(m_store->selection(), QSet<QString>{u"b"_s});
    QVERIFY(row(u"b"_s)->property("row").value<FileRow>().selected);
    QVERIFY(!row(u"a"_s)->property("row").value<FileRow>().selected);
}

void FileListTest::aClickWithCommandAddsAndTakesAway()
{
    m_screen->click(row(u"b"_s), Qt::ControlModifier);
    QCOMPARE(m_store->selection(), QSet<QString>({u"a"_s, u"b"_s}));
    m_screen->click(row(u"a"_s), Qt::ControlModifier);
    QCOMPARE(m_store->selection(), QSet<QString>{u"b"_s});
}

void FileListTest::takingTheOnlyOneAwayEmptiesTheSelection()
{
    m_screen->click(row(u"a"_s), Qt::ControlModifier);
    QVERIFY(m_store->selection().isEmpty());
}

void FileListTest::aClickLetsGoOfTheFocus()
{
    m_store->focusFinding(u"x"_s);
    m_screen->click(row(u"a"_s));
    QVERIFY(!m_store->focus());
}

void FileListTest::theKeyboardReachesEveryRow()
{
    m_screen->press(Qt::Key_Down);
    m_screen->press(Qt::Key_Down);
    QCOMPARE(m_store->selection(), QSet<QString>{u"a"_s});
    m_screen->press(Qt::Key_Return);
    QCOMPARE(m_store->selection(), QSet<QString>{u"c"_s});
    m_screen->press(Qt::Key_Up);
    m_screen->press(Qt::Key_Space);
    QCOMPARE(m_store->selection(), QSet<QString>{u"b"_s});
}

void FileListTest::theKeyboardAddsAndTakesAway()
{
    m_screen->press(Qt::Key_Down);
    m_screen->press(Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(m_store->selection(), QSet<QString>({u"a"_s, u"b"_s}));
    m_screen->press(Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(m_store->selection(), QSet<QString>{u"a"_s});
}

void FileListTest::showHundred()
{
    QList<FileItem> files;
    for (int i = 0; i < 100; ++i)
        files.append(aFile(QString::number(i)));
    m_store->takeBoard(aBoard(files, 2));
    m_store->selectFile(u"0"_s);
    QTRY_COMPARE(list()->property("count").toInt(), 100);
}

QQuickItem *FileListTest::list() const
{
    return m_screen->window().rootObject()->findChild<QQuickItem *>(u"files"_s);
}

void FileListTest::addingAFileMovesNothing()
{
    showHundred();
    list()->setProperty("contentY", 3000);
    QTRY_VERIFY(row(u"56"_s));
    m_screen->click(row(u"56"_s), Qt::ControlModifier);
    QCOMPARE(m_store->selection(), QSet<QString>({u"0"_s, u"56"_s}));
    QCOMPARE(list()->property("contentY").toReal(), 3000.0);
    // Nor does taking it away again, which leaves one that is far off.
    m_screen->click(row(u"56"_s), Qt::ControlModifier);
    QCOMPARE(m_store->selection(), QSet<QString>{u"0"_s});
    QCOMPARE(list()->property("contentY").toReal(), 3000.0);
}

void FileListTest::whatIsShownIsBelowTheTitleOfItsSection()
{
    showHundred();
    const auto top = [this](const QString &key) { return row(key) ? row(key)->mapToItem(list(), {}).y() : -1; };
    list()->setProperty("contentY", 3000);
    m_store->selectFile(u"20"_s);
    QTRY_COMPARE(top(u"20"_s), 30.0);
    m_screen->press(Qt::Key_End);
    m_screen->press(Qt::Key_Home);
    QTRY_COMPARE(top(u"0"_s), 30.0);
    m_screen->press(Qt::Key_End);
    for (int i = 0; i < 15; ++i)
        m_screen->press(Qt::Key_Up);
    QTRY_COMPARE(top(u"84"_s), 30.0);
}

void FileListTest::aClickBringsTheKeyboardButNoRing()
{
    const auto ring = [this](const QString &key) { return row(key)->property("ring").toBool(); };
    m_screen->click(row(u"b"_s));
    QVERIFY(list()->hasActiveFocus());
    QVERIFY(!ring(u"b"_s));
    m_screen->press(Qt::Key_Down);
    QVERIFY(ring(u"c"_s));
    m_screen->press(Qt::Key_Return);
    QCOMPARE(m_store->selection(), QSet<QString>{u"c"_s});
}

void FileListTest::homeEndAndWholePagesMoveTheCursorAlone()
{
    showHundred();
    const auto cursor = [this] { return list()->property("currentIndex").toInt(); };

    m_screen->press(Qt::Key_End);
    QCOMPARE(cursor(), 99);
    m_screen->press(Qt::Key_End);
    QCOMPARE(cursor(), 99);
    m_screen->press(Qt::Key_PageUp);
    QCOMPARE(cursor(), 89); // ten rows of 56 points under the title of a list of 600
    m_screen->press(Qt::Key_PageDown);
    QCOMPARE(cursor(), 99);
    m_screen->press(Qt::Key_Home);
    QCOMPARE(cursor(), 0);
    m_screen->press(Qt::Key_PageUp);
    QCOMPARE(cursor(), 0);
    QCOMPARE(m_store->selection(), QSet<QString>{u"0"_s});
}

void FileListTest::sectionsHaveTheirHeadings()
{
    QStringList headings;
    for (const QQuickItem *heading : m_screen->all("SectionHeader"))
        headings.append(heading->property("section").toString());
    headings.removeDuplicates();
    headings.sort();
    QCOMPARE(headings, QStringList({u"Reviewed"_s, u"To review"_s}));
    QVERIFY(m_screen->texts().contains(u"TO REVIEW"_s));
}

void FileListTest::anEmptyBoardSaysWhatToDo()
{
    m_store->takeBoard(aBoard({}, 2));
    QVERIFY(m_screen->texts().contains(u"Nothing to review."_s));
    QVERIFY(m_screen->texts().contains(u"Press Sync to check supplier mail."_s));
    QVERIFY(m_screen->all("FileRow").isEmpty());
}

void FileListTest::aNewBoardMovesRowsAndBuildsNone()
{
    QSet<QQuickItem *> before;
    for (QQuickItem *row : m_screen->all("FileRow"))
        before.insert(row);
    m_store->takeBoard(aBoard({aFile(u"a"_s, u"reviewed"_s), aFile(u"b"_s), aFile(u"c"_s, u"new"_s)}, 2));
    QTRY_COMPARE(keys(), QStringList({u"b"_s, u"c"_s, u"a"_s}));
    QSet<QQuickItem *> after;
    for (QQuickItem *row : m_screen->all("FileRow"))
        after.insert(row);
    QCOMPARE(after, before);
}

void FileListTest::longNamesAreCutNotSpilled()
{
    FileItem file = aFile(u"a"_s);
    file.title = QString(10000, u'w');
    file.supplier = u"<i>"_s + QString(500, u's');
    file.tally = Tally{.open = 1234};
    m_store->takeBoard(aBoard({file}, 2));
    QTRY_COMPARE(m_screen->all("FileRow").size(), 1);
    const QQuickItem *row = m_screen->only("FileRow");
    for (const QQuickItem *label : m_screen->all("Label")) {
        const QRectF place = label->mapRectToItem(row, label->boundingRect());
        QVERIFY2(place.left() >= 0 && place.right() <= row->width(),
                 qPrintable(label->property("text").toString().left(40)));
    }
}

void FileListTest::whateverABoardChangesEachRowIsOfItsFile()
{
    const auto named = [](const QString &id, const QString &title) {
        FileItem file = aFile(id);
        file.title = title;
        return file;
    };
    const FileItem a = named(u"a"_s, u"A"_s);
    const FileItem b = named(u"b"_s, u"B"_s);
    const FileItem c = named(u"c"_s, u"C"_s);
    const QList<QList<FileItem>> boards{{a, b, c},
                                        {a, named(u"b"_s, u"Changed"_s), c},
                                        {named(u"n"_s, u"New"_s), a, b, c},
                                        {c, b, a},
                                        {c, b, b, a},
                                        {named(u"c"_s, u"Twice changed"_s), b, b, a},
                                        {c, named(u"a"_s, u"Moved and changed"_s)},
                                        {a},
                                        {a, b, c}};
    FileListState list;
    list.setStore(m_store.get());
    qint64 rev = 2;
    for (const QList<FileItem> &files : boards) {
        m_store->takeBoard(aBoard(files, rev++));
        QStringList told;
        for (int i = 0; i < list.rows()->rowCount(); ++i) {
            const auto row = list.rows()->index(i, 0).data(RowList<FileRow>::rowRole).value<FileRow>();
            told.append(row.key + u' ' + row.title);
            QCOMPARE(row.selected, m_store->selection().contains(row.key));
        }
        QStringList wanted;
        for (const FileItem &file : files)
            wanted.append(file.id + u' ' + *file.title);
        wanted.removeDuplicates();
        QCOMPARE(told, wanted);
    }
}

QTEST_MAIN(FileListTest)
#include "tst_filelist.moc"
