#include "boards.h"
#include "screen.h"
#include "testclock.h"

#include <QAccessible>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

QStringList shown;

/// What a reader of the screen is told.
void hear(QAccessibleEvent *event)
{
    QAccessibleInterface *told = event->accessibleInterface();
    if (!told || told->role() != QAccessible::Notification)
        return;
    if (event->type() == QAccessible::ObjectShow)
        shown += told->text(QAccessible::Name);
}

} // namespace

/// What assistive technology is told without asking.
class AnnouncementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachToastIsReadOutOnce();
};

void AnnouncementTest::eachToastIsReadOutOnce()
{
    // Somebody listens: the bus of assistive technology comes up for whoever asks for it.
    QDBusConnection::sessionBus().call(
        QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s));
    TestClock clock;
    Store store(clock.clock());
    Sample sample;
    sample.board = aBoard({aFile(u"a"_s)});
    store.takeSample(sample);
    const test::Screen screen(store, "import Vexal.Root\nRootView {}", QSize(1180, 720));
    QTRY_VERIFY2(QAccessible::isActive(), "No accessibility bus: is at-spi2-core installed?");
    QAccessible::installUpdateHandler(hear);
    store.showToast(u"Note added."_s);
    QTRY_COMPARE(shown, QStringList{u"Note added."_s});
    store.showToast(u"Marked fine."_s);
    QTRY_COMPARE(shown, (QStringList{u"Note added."_s, u"Marked fine."_s}));
    // The same words again are news again.
    store.showToast(u"Marked fine."_s);
    QTRY_COMPARE(shown.size(), 3);
    QCOMPARE(shown.last(), u"Marked fine."_s);
    QAccessible::installUpdateHandler(nullptr);
}

QTEST_MAIN(AnnouncementTest)
#include "tst_announcement.moc"
