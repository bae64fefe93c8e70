#include "boards.h"
#include "store.h"
#include "testclock.h"

#include <QMetaProperty>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <tuple>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

/// Every published field, in order.
auto fieldsOf(const Store &store)
{
    return std::make_tuple(store.signedIn(), store.board(), store.details(), store.selection(), store.page(),
                           store.focus(), store.against(), store.mode(), store.problem(), store.lastOK(), store.toast(),
                           store.pinning(), store.draftPin(), store.draftFinding(), store.busy(),
                           store.update().has_value(), store.refreshing(), store.showActivity());
}

using Fields = decltype(fieldsOf(std::declval<Store &>()));
constexpr size_t storeFields = std::tuple_size_v<Fields>;

/// The signal of each of these fields.
constexpr std::array<void (Store::*)(), storeFields> signalOf{
    &Store::signedInChanged,   &Store::boardChanged,        &Store::detailsChanged, &Store::selectionChanged,
    &Store::pageChanged,       &Store::focusChanged,        &Store::againstChanged, &Store::modeChanged,
    &Store::problemChanged,    &Store::lastOKChanged,       &Store::toastChanged,   &Store::pinningChanged,
    &Store::draftPinChanged,   &Store::draftFindingChanged, &Store::busyChanged,    &Store::updateChanged,
    &Store::refreshingChanged, &Store::showActivityChanged};

template <size_t... i>
std::array<int, storeFields> changesBetween(const Fields &before, const Fields &after, std::index_sequence<i...>)
{
    return {int(std::get<i>(before) != std::get<i>(after))...};
}

/// Does something to the store, whatever `dice` says.
void act(Store &store, QRandomGenerator &dice)
{
    const QStringList ids{u"a"_s, u"b"_s, u"c"_s};
    const QString &id = ids.at(dice.bounded(3));
    const auto some = [&](int below) { return dice.bounded(below); };
    switch (some(16)) {
    case 0:
        return store.selectFile(id);
    case 1:
        return store.selectFile(id, true);
    case 2:
        return store.turnPage(id, some(12) - 2);
    case 3:
        return store.takeBoard(aBoard({aFile(u"a"_s, id), aFile(u"b"_s)}, some(3)));
    case 4:
        return store.takeDetail(id, aDetail(id, some(9), {aFinding(u"f"_s, some(9), u"high"_s)}));
    case 5:
        return store.focusFinding(id);
    case 6:
        return store.clearFocus();
    case 7:
        return store.setAgainst(some(2) ? u"latest"_s : u"submitted"_s);
    case 8:
        return store.setMode(CompareMode(some(3)));
    case 9:
        return store.setPinning(some(2));
    case 10:
        return store.placePin({some(2) / 2.0, 0.25});
    case 11:
        return store.answerFinding(id);
    case 12:
        return store.clearDraft();
    case 13:
        return store.setShowActivity(some(2));
    case 14:
        return store.showToast(id);
    default:
        return store.undoToast();
    }
}

} // namespace

class TestSignals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachRealChangeIsToldOnceAndOnlyWhenAllStands()
    {
        Store store(m_clock.clock());
        std::array<int, storeFields> told{};
        QList<Fields> seen;
        for (size_t i = 0; i < storeFields; ++i) {
            connect(&store, signalOf[i], &store, [&, i] {
                ++told[i];
                seen.append(fieldsOf(store));
            });
        }
        QRandomGenerator dice(20251118);
        std::array<int, storeFields> toldInAll{};
        for (int step = 0; step < 5'000; ++step) {
            const Fields before = fieldsOf(store);
            act(store, dice);
            const Fields after = fieldsOf(store);
            QCOMPARE(told, changesBetween(before, after, std::make_index_sequence<storeFields>()));
            for (const Fields &fields : std::as_const(seen))
                QVERIFY(fields == after);
            for (size_t i = 0; i < storeFields; ++i)
                toldInAll[i] += std::exchange(told[i], 0);
            seen.clear();
        }
        for (const size_t i : {1, 2, 3, 4, 5, 6, 7, 10, 11, 12, 13, 17})
            QVERIFY2(toldInAll[i] > 50, qPrintable(QString::number(i)));
    }

    void noPinIsEverOnAnotherPage()
    {
        Store store(m_clock.clock());
        QRandomGenerator dice(42);
        const auto place = [&] {
            const bool one = store.selection().size() == 1;
            return std::pair(store.selection(), one ? store.shownPage(store.selection().values().first()) : 0);
        };
        int dropped = 0;
        for (int step = 0; step < 5'000; ++step) {
            store.placePin({0.5, 0.5});
            const auto before = place();
            act(store, dice);
            if (place() == before)
                continue;
            ++dropped;
            QVERIFY(!store.draftPin() && !store.draftFinding() && !store.pinning());
        }
        QVERIFY(dropped > 500);
    }

    void aSlotMayAskForAnotherChange()
    {
        Store store(m_clock.clock());
        connect(&store, &Store::selectionChanged, &store, [&] { store.setMode(CompareMode::Overlay); });
        QSignalSpy modes(&store, &Store::modeChanged);
        QSignalSpy boards(&store, &Store::boardChanged);
        store.takeBoard(aBoard({aFile(u"a"_s)}));
        QCOMPARE(store.mode(), CompareMode::Overlay);
        QCOMPARE(modes.size(), 1);
        QCOMPARE(boards.size(), 1);
    }

    void aPropertyIsWrittenByNobodyAndToldOfByItsSignal()
    {
        const QMetaObject &meta = Store::staticMetaObject;
        QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 16);
        for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
            const QMetaProperty property = meta.property(i);
            QVERIFY2(property.isReadable() && !property.isWritable() && property.hasNotifySignal(), property.name());
        }
    }

    void whatIsAbsentReadsAsEmpty()
    {
        const Store store(m_clock.clock());
        for (const char *name : {"focus", "problem", "draftFinding"})
            QCOMPARE(store.property(name), QVariant(QString()));
        QCOMPARE(store.property("lastOK"), QVariant(QDateTime()));
        QCOMPARE(store.property("hasDraftPin"), false);
        QCOMPARE(store.property("draftPin"), QVariant(QPointF()));
        QCOMPARE(store.property("selection"), QStringList());
        QCOMPARE(store.property("busy"), QStringList());
        const auto toast = store.property("toast").value<Toast>();
        QVERIFY(toast.id.isNull());
    }

    void propertiesReadTheFields()
    {
        Store store(m_clock.clock());
        store.selectFile(u"b"_s);
        store.selectFile(u"a"_s, true);
        store.focusFinding(u"f"_s);
        store.answerFinding(u"g"_s);
        store.placePin({0.25, 0.5});
        store.setMode(CompareMode::Blink);
        store.showToast(u"Marked fine."_s, u"Undo"_s, [] {});
        QCOMPARE(store.property("selection"), (QStringList{u"a"_s, u"b"_s}));
        QCOMPARE(store.property("focus"), u"f"_s);
        QCOMPARE(store.property("draftFinding"), u"g"_s);
        QCOMPARE(store.property("draftPin"), QPointF(0.25, 0.5));
        QCOMPARE(store.property("mode").value<CompareMode>(), CompareMode::Blink);
        const QVariant toast = store.property("toast");
        const auto read = [&toast](const char *name) {
            const QMetaObject &record = Toast::staticMetaObject;
            return record.property(record.indexOfProperty(name)).readOnGadget(toast.constData());
        };
        QCOMPARE(read("id").toUuid(), store.toast()->id);
        QCOMPARE(read("text"), u"Marked fine."_s);
        QCOMPARE(read("undoLabel"), u"Undo"_s);
    }

private:
    TestClock m_clock;
};

QTEST_GUILESS_MAIN(TestSignals)
#include "tst_signals.moc"
