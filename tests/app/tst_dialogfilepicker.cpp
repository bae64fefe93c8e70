#include "dialogfilepicker.h"

#include <QFile>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <memory>

using namespace Qt::StringLiterals;
using namespace vexal;

/// The dialog for opening a file, as Qt draws it in the window where the desktop has none of its own. It opens and
/// closes at once; no test lets it be drawn, for Qt's software renderer loses the textures of its icons.
class DialogFilePickerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QQuickWindow>();
        m_window->resize(900, 700);
        m_window->show();
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_picked.clear();
    }
    void cleanup() { m_window.reset(); }

    void theDialogSaysWhatItIsForAndWhatItTakes();
    void aChosenFileIsAnsweredByItsPath();
    void aDialogThatIsClosedAnswersNothing();
    void oneDialogIsOpenAtATime();
    void whoHasGoneIsNotAnswered();

private:
    /// The dialogs that are open in the window.
    QObjectList dialogs() const
    {
        QObjectList open = m_window->findChildren<QObject *>();
        open.removeIf([](const QObject *each) {
            return !each->inherits("QQuickFileDialogImpl") || !each->property("visible").toBool();
        });
        return open;
    }
    void pick(DialogFilePicker &picker, QObject *context)
    {
        picker.pick(u"Pick a photo."_s, {u"*.jpg"_s, u"*.png"_s}, context,
                    [this](const QString &path) { m_picked += path; });
    }
    static void end(QObject *dialog, const char *how) { QVERIFY(QMetaObject::invokeMethod(dialog, how)); }

    std::unique_ptr<QQuickWindow> m_window;
    QStringList m_picked;
};

void DialogFilePickerTest::theDialogSaysWhatItIsForAndWhatItTakes()
{
    DialogFilePicker picker;
    pick(picker, this);
    QCOMPARE(dialogs().size(), 1);
    QCOMPARE(dialogs().first()->property("title").toString(), u"Pick a photo."_s);
    const auto *filter = dialogs().first()->property("selectedNameFilter").value<QObject *>();
    QCOMPARE(filter->property("name").toString(), u"Photos"_s);
    QCOMPARE(filter->property("globs").toStringList(), (QStringList{u"*.jpg"_s, u"*.png"_s}));
    end(dialogs().first(), "reject");
}

void DialogFilePickerTest::aChosenFileIsAnsweredByItsPath()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Mira's photo #1 100%.jpg"_s);
    QVERIFY(QFile(path).open(QIODevice::WriteOnly));
    DialogFilePicker picker;
    pick(picker, this);
    QCOMPARE(dialogs().size(), 1);
    QObject *dialog = dialogs().first();
    dialog->setProperty("currentFolder", QUrl::fromLocalFile(folder.path()));
    dialog->setProperty("selectedFile", QUrl::fromLocalFile(path));
    end(dialog, "accept");
    QTRY_COMPARE(m_picked, QStringList{path});
    QTRY_COMPARE(dialogs().size(), 0);
}

void DialogFilePickerTest::aDialogThatIsClosedAnswersNothing()
{
    DialogFilePicker picker;
    for (int i = 0; i < 2; ++i) {
        pick(picker, this);
        QCOMPARE(dialogs().size(), 1);
        end(dialogs().first(), "reject");
        QTRY_COMPARE(dialogs().size(), 0);
    }
    QCOMPARE(m_picked, QStringList());
}

void DialogFilePickerTest::oneDialogIsOpenAtATime()
{
    DialogFilePicker picker;
    pick(picker, this);
    QCOMPARE(dialogs().size(), 1);
    pick(picker, this);
    QCOMPARE(dialogs().size(), 1);
    end(dialogs().first(), "reject");
}

void DialogFilePickerTest::whoHasGoneIsNotAnswered()
{
    DialogFilePicker picker;
    auto context = std::make_unique<QObject>();
    pick(picker, context.get());
    QCOMPARE(dialogs().size(), 1);
    context.reset();
    end(dialogs().first(), "accept");
    QTRY_COMPARE(dialogs().size(), 0);
    QCOMPARE(m_picked, QStringList());
}

QTEST_MAIN(DialogFilePickerTest)
#include "tst_dialogfilepicker.moc"
