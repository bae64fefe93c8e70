#include "difference.h"
#include "samplefolder.h"

#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

QRectF rectOf(const Box &box)
{
    return {box.at(0), box.at(1), box.at(2), box.at(3)};
}

/// Where a finding says that something is: on the supplier's page and on ours.
QList<QRectF> placesOf(const Finding &finding)
{
    QList<QRectF> places;
    if (finding.box)
        places.append(rectOf(*finding.box));
    if (finding.ref_box)
        places.append(rectOf(*finding.ref_box));
    for (const Box &box : finding.boxes.value_or(QList<Box>()))
        places.append(rectOf(box));
    return places;
}

QSize sizeOf(const std::optional<QList<double>> &px)
{
    return px && px->size() == 2 ? QSizeF(px->at(0), px->at(1)).toSize() : QSize();
}

/// A page as a scanner puts it: 0.4 degrees askew about its middle and 3 pixels off, on white.
QImage askew(const QImage &page, QSize size)
{
    QImage glass(size, QImage::Format_RGB32);
    glass.fill(Qt::white);
    QPainter painter(&glass);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(size.width() / 2.0 + 3, size.height() / 2.0 + 3);
    painter.rotate(0.4);
    painter.drawImage(QPointF(-size.width() / 2.0, -size.height() / 2.0), page);
    return glass;
}

/// Where two pages of one size differ clearly, seen in blocks of four pixels by four. What the edge of the paper does
/// is left out.
class Coarse
{
public:
    Coarse(const QImage &one, const QImage &other)
        : m_one(coarse(one))
        , m_other(coarse(other))
    {
    }

    int seenIn(const QRectF &place) const
    {
        return count([this, around = around(place)](QPoint at) { return around.contains(at); });
    }
    int seenOutside(const QList<QRectF> &places) const
    {
        return count([this, &places](QPoint at) {
            return std::none_of(places.begin(), places.end(),
                                [this, at](const QRectF &place) { return around(place).contains(at); });
        });
    }

private:
    static constexpr int edge = 6;
    static constexpr int clearly = 40; ///< Of 255 levels of grey.

    static QImage coarse(const QImage &page)
    {
        return page.scaled(page.size() / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    QRectF around(const QRectF &place) const
    {
        const QSizeF size = m_one.size();
        return QRectF(place.x() * size.width(), place.y() * size.height(), place.width() * size.width(),
                      place.height() * size.height())
            .adjusted(-1, -1, 1, 1);
    }
    template <typename Counts>
    int count(Counts counts) const
    {
        int found = 0;
        for (int y = edge; y < m_one.height() - edge; ++y) {
            for (int x = edge; x < m_one.width() - edge; ++x) {
                const int distance = qAbs(qGray(m_one.pixel(x, y)) - qGray(m_other.pixel(x, y)) * 249 / 255);
                found += distance > clearly && counts(QPoint(x, y)) ? 1 : 0;
            }
        }
        return found;
    }

    QImage m_one;
    QImage m_other;
};

bool meet(const Finding &one, const Finding &other)
{
    const QList<QRectF> places = placesOf(other);
    const QList<QRectF> own = placesOf(one);
    return std::any_of(own.begin(), own.end(), [&places](const QRectF &place) {
        return std::any_of(places.begin(), places.end(), [&place](const QRectF &at) { return at.intersects(place); });
    });
}

} // namespace

class PicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyRunWritesTheSameBytes();
    void everyPictureIsThereInTheSizeThatIsTold();
    void noPictureLiesThereUnnamed();
    void aKeyHoldsNoUnderscore();
    void noFindingLiesInThePlaceOfAnother();
    void theProofDiffersInsideTheBoxesAndNowhereElse_data();
    void theProofDiffersInsideTheBoxesAndNowhereElse();
    void theScanIsAskewAndGrainy();
    void theScanDiffersInsideTheBoxesAndNowhereElse();

private:
    FileDetail scanned() const { return sample().details.value(u"songs"_s); }
    const Sample &sample() const { return m_folder.sample(); }

    SampleFolder m_folder;
};

void PicturesTest::initTestCase()
{
    const QString problem = m_folder.make();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    QCOMPARE(m_folder.inbox().size(), 2);
}

void PicturesTest::everyRunWritesTheSameBytes()
{
    SampleFolder again;
    const QString problem = again.make({{u"TZ"_s, u"Pacific/Auckland"_s},
                                        {u"LC_ALL"_s, u"de_DE.UTF-8"_s},
                                        {u"QT_HASH_SEED"_s, u"7"_s},
                                        {u"QT_QPA_PLATFORM"_s, u"minimal"_s},
                                        {u"QT_SCALE_FACTOR"_s, u"2"_s},
                                        {u"FONTCONFIG_FILE"_s, u"/dev/null"_s}});
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const QStringList names = m_folder.files();
    QCOMPARE(again.files(), names);
    for (const QString &name : names)
        QVERIFY2(again.bytes(name) == m_folder.bytes(name), qPrintable(name));
}

void PicturesTest::everyPictureIsThereInTheSizeThatIsTold()
{
    const auto check = [](const QString &file, const std::optional<QList<double>> &px) {
        const QSize real = QImageReader(file).size();
        QVERIFY2(real == sizeOf(px), qPrintable(file));
        QVERIFY2(real.height() >= 1600, qPrintable(file));
    };
    for (const FileDetail &detail : m_folder.all()) {
        QVERIFY(QImageReader(m_folder.picture(detail, *detail.file.thumb)).size().height() >= 180);
        for (const Page &page : *detail.file.pages) {
            check(m_folder.picture(detail, *page.img), page.px);
            QVERIFY(QImageReader(m_folder.picture(detail, *page.thumb)).canRead());
            for (const RefPage &ref : page.refs.value_or(QMap<QString, RefPage>()))
                check(m_folder.picture(detail, *ref.img), ref.px);
        }
    }
    for (const Person &person : sample().board.users)
        if (person.photo)
            QCOMPARE(QImageReader(m_folder.picture(*person.photo)).size(), QSize(512, 512));
}

void PicturesTest::noPictureLiesThereUnnamed()
{
    QSet<QString> named{u"sample.json"_s, u"inbox/inbox.json"_s};
    const auto name = [&named, this](const QString &file) {
        named.insert(QDir(m_folder.path()).relativeFilePath(file));
    };
    for (const FileDetail &detail : m_folder.all()) {
        name(m_folder.picture(detail, *detail.file.thumb));
        for (const Page &page : *detail.file.pages) {
            name(m_folder.picture(detail, *page.img));
            name(m_folder.picture(detail, *page.thumb));
            for (const RefPage &ref : page.refs.value_or(QMap<QString, RefPage>()))
                name(m_folder.picture(detail, *ref.img));
        }
    }
    for (const Person &person : sample().board.users)
        if (person.photo)
            name(m_folder.picture(*person.photo));
    const QStringList there = m_folder.files();
    QCOMPARE(QSet(there.begin(), there.end()), named);
}

void PicturesTest::aKeyHoldsNoUnderscore()
{
    for (const FileDetail &detail : m_folder.all()) {
        QVERIFY(!detail.file.key->contains(u'_') && !detail.file.thumb->contains(u'_'));
        for (const Page &page : *detail.file.pages) {
            QVERIFY(!page.img->contains(u'_') && !page.thumb->contains(u'_'));
            for (const RefPage &ref : page.refs.value_or(QMap<QString, RefPage>()))
                QVERIFY(!ref.img->contains(u'_'));
        }
    }
}

// Else what differs in one's box could be the other's, and a box without a difference of its own would pass.
void PicturesTest::noFindingLiesInThePlaceOfAnother()
{
    for (const FileDetail &detail : m_folder.all()) {
        for (qsizetype i = 0; i < detail.findings.size(); ++i) {
            for (qsizetype j = 0; j < i; ++j) {
                const Finding &one = detail.findings.at(i);
                const Finding &other = detail.findings.at(j);
                if (one.page == other.page && one.against == other.against)
                    QVERIFY2(!meet(one, other), qPrintable(one.title + u" / "_s + other.title));
            }
        }
    }
}

void PicturesTest::theProofDiffersInsideTheBoxesAndNowhereElse_data()
{
    QTest::addColumn<QString>("proof");
    QTest::addColumn<QString>("ours");
    QTest::addColumn<QList<QRectF>>("changed"); // in each of these something differs
    QTest::addColumn<QStringList>("titles");
    for (const FileDetail &detail : m_folder.all()) {
        if (detail.file.kind == u"scan"_s)
            continue;
        for (const Page &page : *detail.file.pages) {
            const QMap<QString, RefPage> refs = page.refs.value_or(QMap<QString, RefPage>());
            for (auto ref = refs.begin(); ref != refs.end(); ++ref) {
                if (ref->px != page.px)
                    continue;
                QList<QRectF> changed;
                QStringList titles;
                for (const Finding &finding : detail.findings) {
                    if (finding.page != page.i || finding.against != ref.key() || finding.kind == "pass"_L1)
                        continue;
                    for (const QRectF &place : placesOf(finding)) {
                        changed.append(place);
                        titles.append(finding.title);
                    }
                }
                QTest::addRow("%s-%lld-%s", qPrintable(detail.file.id), static_cast<long long>(page.i),
                              qPrintable(ref.key()))
                    << m_folder.picture(detail, *page.img) << m_folder.picture(detail, *ref->img) << changed << titles;
            }
        }
    }
}

void PicturesTest::theProofDiffersInsideTheBoxesAndNowhereElse()
{
    QFETCH(const QString, proof);
    QFETCH(const QString, ours);
    QFETCH(const QList<QRectF>, changed);
    QFETCH(const QStringList, titles);
    const Difference difference{QImage(proof), QImage(ours)};
    for (qsizetype i = 0; i < changed.size(); ++i) {
        const QRectF place = changed.at(i);
        QVERIFY2(QRectF(0, 0, 1, 1).contains(place), qPrintable(titles.at(i)));
        const int seen = difference.seenIn(place);
        QVERIFY2(seen >= 6, qPrintable(u"%1: %2 pixels"_s.arg(titles.at(i)).arg(seen)));
    }
    const QPoint outside = difference.firstOutside(changed);
    QVERIFY2(outside == QPoint(-1, -1), qPrintable(u"at %1, %2"_s.arg(outside.x()).arg(outside.y())));
}

void PicturesTest::theScanIsAskewAndGrainy()
{
    const FileDetail scan = scanned();
    const QImage page(m_folder.picture(*scan.file.pages->first().img));
    const auto topOfPicture = [&page](int x) {
        for (int y = 60; y < 160; ++y)
            if (qGray(page.pixel(x, y)) < 140)
                return y;
        return -1;
    };
    const double slope = (topOfPicture(1100) - topOfPicture(200)) / 900.0;
    QVERIFY2(qAbs(slope - qTan(qDegreesToRadians(0.4))) < 0.002, qPrintable(QString::number(slope)));

    QSet<int> greys; // of the empty paper at the foot
    for (int x = 200; x < 260; ++x)
        greys.insert(qGray(page.pixel(x, 1690)));
    QVERIFY(greys.size() > 3);
    for (const Page &one : *scan.file.pages)
        QCOMPARE(one.ocr, std::optional(true));
}

// Our page is laid under the scanner's glass as the scan was, and both are made coarse, so that the grain goes.
void PicturesTest::theScanDiffersInsideTheBoxesAndNowhereElse()
{
    const FileDetail scan = scanned();
    int compared = 0;
    for (const Page &page : *scan.file.pages) {
        const QImage proof(m_folder.picture(*page.img));
        for (const auto &[role, ours] : page.refs.value_or(QMap<QString, RefPage>()).asKeyValueRange()) {
            QList<QRectF> changed;
            for (const Finding &finding : scan.findings) {
                if (finding.page == page.i && finding.against == role && finding.box)
                    changed.append(rectOf(*finding.box));
            }
            const Coarse difference(proof, askew(QImage(m_folder.picture(*ours.img)), proof.size()));
            for (const QRectF &place : changed)
                QVERIFY(difference.seenIn(place) >= 10);
            QCOMPARE(difference.seenOutside(changed), 0);
            compared += int(changed.size());
        }
    }
    QCOMPARE(compared, 2);
}

QTEST_MAIN(PicturesTest)
#include "pictures_test.moc"
