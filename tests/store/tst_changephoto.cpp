#include "livestore.h"

#include "photo.h"

#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

/// The person's own photo, from a file to the server.
class TestChangePhoto : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_live = std::make_unique<LiveStore>();
        m_live->begin();
        m_live->client.server.on("PUT", "/api/me/photo").answer(200);
    }
    void cleanup() { m_live.reset(); }

    void thePhotoThatIsPickedIsSent()
    {
        m_live->picker.path = picture();
        QList<QSet<QString>> busy;
        QObject::connect(&m_live->store, &Store::busyChanged, this, [&] { busy.append(m_live->store.busy()); });
        m_live->store.changePhoto();
        QTRY_COMPARE(busy, (QList<QSet<QString>>{{u"photo"_s}, {}}));
        QCOMPARE(m_live->picker.messages, QStringList{u"Pick a photo for your profile."_s});
        QCOMPARE(m_live->picker.lastPatterns, photoPatterns());
        const auto sent = m_live->client.server.requests("PUT", "/api/me/photo");
        QCOMPARE(sent.size(), 1);
        QCOMPARE(sent.first().header("Content-Type"), "image/jpeg");
        QCOMPARE(sent.first().header("Authorization"), "Bearer token");
        QCOMPARE(sent.first().body, profilePhoto(picture()));
        QCOMPARE(QImage::fromData(sent.first().body, "jpeg").size(), QSize(512, 512));
        QCOMPARE(m_live->toast(), u"Photo updated."_s);
        QVERIFY(!m_live->client.server.requests("GET", "/api/state").isEmpty());
    }

    void withoutAPickNothingHappens()
    {
        m_live->store.changePhoto();
        QVERIFY(m_live->store.busy().isEmpty());
        QCOMPARE(m_live->toast(), u""_s);
    }

    void whatIsNoPictureIsSaidSo()
    {
        m_live->picker.path = m_live->downloads.filePath(u"missing.jpg"_s);
        m_live->store.changePhoto();
        QTRY_COMPARE(m_live->toast(), u"That photo didn't open."_s);
        QVERIFY(m_live->store.busy().isEmpty());
        QVERIFY(m_live->client.server.requests().isEmpty());
    }

    void aPhotoThatIsNotTakenIsSaidSo()
    {
        m_live->client.server.on("PUT", "/api/me/photo").answer(400, QJsonObject{{u"error"_s, u"Too plain."_s}});
        m_live->picker.path = picture();
        m_live->store.changePhoto();
        QTRY_COMPARE(m_live->toast(), u"Too plain."_s);
        QVERIFY(m_live->store.busy().isEmpty());
    }

    void aRefusedCredentialSignsOut()
    {
        m_live->client.server.on("PUT", "/api/me/photo").answer(401);
        m_live->picker.path = picture();
        m_live->store.changePhoto();
        QTRY_VERIFY(!m_live->store.signedIn());
        QVERIFY(m_live->store.busy().isEmpty());
    }

    void aPickOfAnEarlierSessionIsNotSent()
    {
        m_live->picker.path = picture();
        m_live->store.changePhoto();
        m_live->store.signOut();
        m_live->client.credentials.store(u"token"_s, &m_live->store, [] {});
        m_live->begin();
        m_live->round();
        QVERIFY(m_live->client.server.requests("PUT", "/api/me/photo").isEmpty());
    }

    void aStoreMayGoWhileThePhotoIsRead()
    {
        m_live->picker.path = picture();
        m_live->store.changePhoto();
        QTest::qWait(0);
        m_live.reset();
    }

private:
    QString picture() const
    {
        const QString path = m_live->downloads.filePath(u"me.jpg"_s);
        QImage image(3000, 2000, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        image.save(path, "jpeg");
        return path;
    }

    std::unique_ptr<LiveStore> m_live;
};

QTEST_GUILESS_MAIN(TestChangePhoto)
#include "tst_changephoto.moc"
