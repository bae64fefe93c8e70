#include "anyrecord.h"

#include <QSet>
#include <QTest>

#include <unordered_set>

using namespace vexal;
using namespace Qt::StringLiterals;

namespace {

template <Record R>
size_t hashOf(const R &record)
{
    return std::hash<R>()(record);
}

template <Record R>
void changesWithEveryField()
{
    AnyRecord any(2);
    for (int round = 0; round < 20; ++round) {
        const R record = any.make<R>();
        QVERIFY(record == R(record));
        QCOMPARE(hashOf(R(record)), hashOf(record));
        const auto fields = fieldsOf(&record);
        std::apply(
            [&](auto... field) {
                const auto changed = [&](auto one) {
                    R other = record;
                    other.*one.member = any.otherThan(record.*one.member);
                    QVERIFY2(other != record, one.key);
                    QVERIFY2(hashOf(other) != hashOf(record), one.key);
                };
                (changed(field), ...);
            },
            fields);
    }
}

} // namespace

/// Records as keys.
class TestHash : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyFieldCountsForEqualityAndHash()
    {
#define VEXAL_CHANGES(R)                                                                                               \
    changesWithEveryField<R>();                                                                                        \
    if (QTest::currentTestFailed())                                                                                    \
        QFAIL(#R);
        VEXAL_EACH_RECORD(VEXAL_CHANGES)
#undef VEXAL_CHANGES
    }

    void absentIsNotEmpty()
    {
        const Person absent{.email = u"a"_s};
        Person empty = absent;
        empty.photo = u""_s;
        QVERIFY(absent != empty);
        QVERIFY(hashOf(absent) != hashOf(empty));
    }

    void aValueCountsWhereItStands()
    {
        const Links drive{.drive = u"x"_s};
        const Links indd{.indd = u"x"_s};
        QVERIFY(drive != indd);
        QVERIFY(hashOf(drive) != hashOf(indd));
        const Summary done{.done = {{u"a"_s, u"b"_s}}, .changed = {{u"c"_s}}};
        const Summary shifted{.done = {{u"a"_s}}, .changed = {{u"b"_s, u"c"_s}}};
        QVERIFY(hashOf(done) != hashOf(shifted));
    }

    void bothZerosAreOne()
    {
        const Note plus{.at = 0.0};
        const Note minus{.at = -0.0};
        QVERIFY(plus == minus);
        QCOMPARE(hashOf(plus), hashOf(minus));
    }

    void theSeedCounts()
    {
        const Me me{.email = u"mira"_s, .name = u"Mira"_s};
        QVERIFY(qHash(me, 1) != qHash(me, 2));
    }

    void recordsAreKeysOfBothKindsOfContainers()
    {
        AnyRecord any(3);
        QSet<FileItem> set;
        std::unordered_set<FileItem> standard;
        QList<FileItem> files;
        for (int count = 0; count < 50; ++count)
            files += any.make<FileItem>();
        for (const FileItem &file : files + files) {
            set.insert(file);
            standard.insert(file);
        }
        QCOMPARE(set.size(), files.size());
        QCOMPARE(qsizetype(standard.size()), files.size());
        QVERIFY(set.contains(files.last()) && standard.contains(files.last()));
    }
};

QTEST_APPLESS_MAIN(TestHash)
#include "tst_hash.moc"
