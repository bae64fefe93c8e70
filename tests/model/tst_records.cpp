#include "anyrecord.h"
#include "decode.h"
#include "encode.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace vexal;
using namespace Qt::StringLiterals;

namespace {

template <typename T>
struct Wire;
template <>
struct Wire<QString>
{
    static QString name() { return u"string"_s; }
};
template <>
struct Wire<qint64>
{
    static QString name() { return u"integer"_s; }
};
template <>
struct Wire<double>
{
    static QString name() { return u"double"_s; }
};
template <>
struct Wire<bool>
{
    static QString name() { return u"boolean"_s; }
};
template <typename T>
struct Wire<QList<T>>
{
    static QString name() { return u"list of "_s + Wire<T>::name(); }
};
template <typename T>
struct Wire<QMap<QString, T>>
{
    static QString name() { return u"map to "_s + Wire<T>::name(); }
};
template <typename T>
struct Wire<std::optional<T>>
{
    static QString name() { return Wire<T>::name() + u'?'; }
};
#define VEXAL_NAME_ON_THE_WIRE(R)                                                                                      \
    template <>                                                                                                        \
    struct Wire<R>                                                                                                     \
    {                                                                                                                  \
        static QString name() { return u"" #R ""_s; }                                                                  \
    };
VEXAL_EACH_RECORD(VEXAL_NAME_ON_THE_WIRE)

/// The fields of a record as one line: "email: string, name: string, photo: string?, ...".
template <Record R>
QString fieldsOnTheWire()
{
    QStringList fields;
    R record;
    forEachField(record, [&]<typename T>(const char *key, const T &) {
        fields += QString::fromLatin1(key) + u": "_s + Wire<T>::name();
    });
    return fields.join(u", "_s);
}

template <typename T>
constexpr bool mayBeAbsent = false;
template <typename T>
constexpr bool mayBeAbsent<std::optional<T>> = true;

template <Record R>
QJsonObject objectOf(const R &record)
{
    return QJsonDocument::fromJson(encode(record)).object();
}

QByteArray bytesOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// Whether \a json by itself is a value for a field of this type.
template <typename T>
struct Fits
{
    static bool in(const QJsonValue &json) { return json.isObject() && decode<T>(bytesOf(json.toObject())); }
};
template <>
struct Fits<QString>
{
    static bool in(const QJsonValue &json) { return json.isString(); }
};
template <>
struct Fits<qint64>
{
    static bool in(const QJsonValue &json) { return json.isDouble() && json.toDouble() == json.toInteger(); }
};
template <>
struct Fits<double>
{
    static bool in(const QJsonValue &json) { return json.isDouble(); }
};
template <>
struct Fits<bool>
{
    static bool in(const QJsonValue &json) { return json.isBool(); }
};
template <typename T>
struct Fits<QList<T>>
{
    static bool in(const QJsonValue &json)
    {
        const QJsonArray array = json.toArray();
        return json.isArray() && std::all_of(array.begin(), array.end(), Fits<T>::in);
    }
};
template <typename T>
struct Fits<QMap<QString, T>>
{
    static bool in(const QJsonValue &json)
    {
        const QJsonObject object = json.toObject();
        return json.isObject() && std::all_of(object.begin(), object.end(), Fits<T>::in);
    }
};
template <typename T>
struct Fits<std::optional<T>>
{
    static bool in(const QJsonValue &json) { return json.isNull() || Fits<T>::in(json); }
};

template <Record R>
void survivesEncodingAndDecoding()
{
    AnyRecord any(1);
    for (int round = 0; round < 300; ++round) {
        const R record = any.make<R>();
        const QByteArray bytes = encode(record);
        const Decoded<R> decoded = decode<R>(bytes);
        QVERIFY2(decoded, qPrintable(decoded.error.text() + u" in "_s + QString::fromUtf8(bytes)));
        QVERIFY2(*decoded == record, bytes.constData());
    }
}

template <Record R>
void failsWithoutWhatIsRequired()
{
    R record;
    forEachField(record, [&]<typename T>(const char *key, const T &) {
        QJsonObject object = objectOf(R{});
        const QString name = QString::fromLatin1(key);
        object.remove(name);
        const Decoded<R> missing = decode<R>(bytesOf(object));
        QCOMPARE(bool(missing), mayBeAbsent<T>);
        object[name] = QJsonValue::Null;
        const Decoded<R> null = decode<R>(bytesOf(object));
        QCOMPARE(bool(null), mayBeAbsent<T>);
        if constexpr (mayBeAbsent<T>) {
            QVERIFY(*missing == R{});
            QVERIFY(*null == R{});
        } else {
            QCOMPARE(missing.error.text(), name + u": missing"_s);
            QCOMPARE(null.error.path, name);
        }
    });
}

template <Record R>
void failsWithAnotherType()
{
    const QJsonValue samples[] = {u"text"_s,
                                  u""_s,
                                  1,
                                  -1.5,
                                  true,
                                  false,
                                  QJsonValue(QJsonValue::Null),
                                  QJsonArray(),
                                  QJsonArray{1},
                                  QJsonArray{u"text"_s},
                                  QJsonArray{QJsonArray{1}},
                                  QJsonArray{QJsonValue(QJsonValue::Null)},
                                  QJsonObject(),
                                  QJsonObject{{u"key"_s, 1}},
                                  QJsonObject{{u"key"_s, QJsonObject()}}};
    R record;
    forEachField(record, [&]<typename T>(const char *key, const T &) {
        for (const QJsonValue &sample : samples) {
            QJsonObject object = objectOf(R{});
            object[QLatin1StringView(key)] = sample;
            const QByteArray bytes = bytesOf(object);
            const Decoded<R> decoded = decode<R>(bytes);
            QVERIFY2(bool(decoded) == Fits<T>::in(sample), bytes.constData());
            QVERIFY2(decoded || decoded.error.path.startsWith(QLatin1StringView(key)),
                     qPrintable(decoded.error.text()));
        }
    });
}

/// Calls \a check for each type of record, until one fails.
template <typename Check>
void forEveryRecord(Check check)
{
#define VEXAL_CHECK(R)                                                                                                 \
    check.template operator()<R>();                                                                                    \
    if (QTest::currentTestFailed())                                                                                    \
        QFAIL(#R);
    VEXAL_EACH_RECORD(VEXAL_CHECK)
#undef VEXAL_CHECK
}

} // namespace

/// What holds for every record.
class TestRecords : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyRecordHasItsKeysAndTypes_data()
    {
        QTest::addColumn<QString>("fields");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &fields, const QString &expected) {
            QTest::newRow(name) << fields << expected;
        };
        row("Me", fieldsOnTheWire<Me>(), u"email: string, name: string"_s);
        row("Person", fieldsOnTheWire<Person>(),
            u"email: string, name: string, photo: string?, color: string?, last_seen: double?"_s);
        row("Links", fieldsOnTheWire<Links>(),
            u"gmail: string?, drive: string?, drive_folder: string?, indd: string?, indd_name: string?"_s);
        row("Ref", fieldsOnTheWire<Ref>(),
            u"role: string, name: string?, link: string?, page_count: integer?, matched: integer?, note: string?"_s);
        row("Counts", fieldsOnTheWire<Counts>(),
            u"pages: integer?, high: integer?, medium: integer?, low: integer?, expected: integer?, shown: integer?"_s);
        row("Tally", fieldsOnTheWire<Tally>(), u"open: integer?, issues: integer?, total: integer?"_s);
        row("RefPage", fieldsOnTheWire<RefPage>(),
            u"i: integer?, label: string?, img: string?, px: list of double?, score: double?, how: string?"_s);
        row("Page", fieldsOnTheWire<Page>(),
            u"i: integer, label: string?, w: double?, h: double?, img: string?, thumb: string?, px: list of double?, "
            "refs: map to RefPage?, ocr: boolean?"_s);
        row("FileItem", fieldsOnTheWire<FileItem>(),
            u"id: string, key: string?, po: string?, title: string?, component: string?, supplier: string?, "
            "filename: string?, kind: string?, sender: string?, received: double?, page_count: integer?, links: "
            "Links?, "
            "refs: list of Ref?, summary: string?, counts: Counts?, status: string, status_by: string?, "
            "status_at: double?, created: double?, rev: integer?, thumb: string?, tally: Tally?, pages: list of Page?"_s);
        row("Finding", fieldsOnTheWire<Finding>(),
            u"id: string, file_id: string, page: integer, against: string, kind: string, severity: string, "
            "title: string, detail: string?, before: string?, after: string?, box: list of double?, "
            "ref_box: list of double?, boxes: list of list of double?, state: string, state_by: string?, "
            "state_at: double?, ord: integer?"_s);
        row("Note", fieldsOnTheWire<Note>(),
            u"id: string, file_id: string, page: integer?, x: double?, y: double?, finding_id: string?, text: string, "
            "by: string, at: double, edited: double?, resolved: integer?, resolved_by: string?"_s);
        row("FileDetail", fieldsOnTheWire<FileDetail>(),
            u"file: FileItem, findings: list of Finding, comments: list of Note"_s);
        row("Summary", fieldsOnTheWire<Summary>(),
            u"done: list of string?, changed: list of string?, check: list of string?"_s);
        row("JobResult", fieldsOnTheWire<JobResult>(),
            u"new_files: integer?, report_id: string?, drive_link: string?, cost: double?"_s);
        row("JobArgs", fieldsOnTheWire<JobArgs>(), u"file_ids: list of string?"_s);
        row("Job", fieldsOnTheWire<Job>(),
            u"id: string, kind: string, status: string, requested_by: string?, created: double?, started: double?, "
            "finished: double?, beat: double?, step: string?, steps: list of string?, summary: Summary?, "
            "result: JobResult?, args: JobArgs?"_s);
        row("Report", fieldsOnTheWire<Report>(),
            u"id: string, job_id: string?, file_ids: list of string, title: string?, size: integer?, "
            "drive_link: string?, by: string?, at: double?"_s);
        row("Event", fieldsOnTheWire<Event>(),
            u"id: integer, at: double, by: string?, kind: string, file_id: string?, page: integer?, text: string?"_s);
        row("BoardState", fieldsOnTheWire<BoardState>(),
            u"rev: integer, me: Me, users: list of Person, files: list of FileItem, sync: Job?, jobs: list of Job, "
            "reports: list of Report, events: list of Event"_s);
        row("VersionInfo", fieldsOnTheWire<VersionInfo>(),
            u"version: string, build: integer, url: string, notes: string?"_s);
        row("SignInAnswer", fieldsOnTheWire<SignInAnswer>(), u"token: string, me: Me"_s);
        row("Sample", fieldsOnTheWire<Sample>(), u"board: BoardState, details: map to FileDetail"_s);
    }

    void everyRecordHasItsKeysAndTypes()
    {
        QFETCH(QString, fields);
        QFETCH(QString, expected);
        QCOMPARE(fields, expected);
    }

    void everyRecordSurvivesEncodingAndDecoding()
    {
        forEveryRecord([]<Record R>() { survivesEncodingAndDecoding<R>(); });
    }

    void whatIsRequiredMustBeThereAndWhatIsOptionalMayBeMissingOrNull()
    {
        forEveryRecord([]<Record R>() { failsWithoutWhatIsRequired<R>(); });
    }

    void aValueOfAnotherTypeFailsInEveryField()
    {
        forEveryRecord([]<Record R>() { failsWithAnotherType<R>(); });
    }
};

QTEST_APPLESS_MAIN(TestRecords)
#include "tst_records.moc"
