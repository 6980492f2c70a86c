#include "Views/Editor/ImageCache.h"
#include "support/TestProgram.h"

#include <QBuffer>
#include <QColor>
#include <QSignalSpy>

class TestImageCache : public QObject
{
    Q_OBJECT

    const QUuid block = QUuid::createUuid();

    static QByteArray png(const QColor &color, const QSize &size = {800, 400})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        QBuffer buffer;
        image.save(&buffer, "PNG");
        return buffer.data();
    }

    /// Requests the picture, and again when it has been decoded.
    static QImage decoded(ImageCache &cache, const QUuid &id, const QByteArray &data, const QSize &pixels)
    {
        QSignalSpy arrived(&cache, &ImageCache::arrived);
        const int before = cache.decodings();
        const QImage known = cache.cachedImage(id, data, pixels);
        if (cache.decodings() == before)
            return known;
        [&] { QTRY_COMPARE(arrived.count(), 1); }();
        return cache.cachedImage(id, data, pixels);
    }

private Q_SLOTS:
    void aPictureIsDecodedOnlyUntilItIsStored()
    {
        ImageCache cache;
        const QByteArray data = png(Qt::red);
        QSignalSpy arrived(&cache, &ImageCache::arrived);
        QVERIFY(cache.cachedImage(block, data, {400, 200}).isNull());
        QVERIFY(cache.cachedImage(block, data, {400, 200}).isNull()); // shown again before it has arrived
        QTRY_COMPARE(arrived.count(), 1);
        for (int shown = 0; shown < 5; ++shown)
            QCOMPARE(cache.cachedImage(block, data, {400, 200}).pixelColor(0, 0), QColor(Qt::red));
        QCOMPARE(cache.decodings(), 1);
    }

    void aPictureIsNoLargerThanItIsShown()
    {
        ImageCache cache;
        QCOMPARE(decoded(cache, block, png(Qt::red), {400, 200}).size(), QSize(400, 200));
    }

    void aLargerPlaceHasItDecodedAgain()
    {
        ImageCache cache;
        const QByteArray data = png(Qt::red);
        decoded(cache, block, data, {200, 100});
        QCOMPARE(decoded(cache, block, data, {600, 300}).size(), QSize(600, 300));
        QCOMPARE(decoded(cache, block, data, {300, 150}).size(), QSize(600, 300));
        QCOMPARE(cache.decodings(), 2);
    }

    void aSmallPhotoIsDecodedOnceHoweverLargeItsPlace()
    {
        ImageCache cache;
        const QByteArray data = png(Qt::red, {80, 40});
        QCOMPARE(decoded(cache, block, data, {400, 200}).size(), QSize(80, 40));
        decoded(cache, block, data, {400, 200});
        QCOMPARE(cache.decodings(), 1);
    }

    void anotherPictureInTheSameBlockIsShown()
    {
        ImageCache cache;
        const QByteArray red = png(Qt::red);
        decoded(cache, block, red, {400, 200});
        QCOMPARE(decoded(cache, block, png(Qt::blue), {400, 200}).pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(decoded(cache, block, red, {400, 200}).pixelColor(0, 0), QColor(Qt::red));
    }

    void aPictureThatWasReplacedWhileItWasDecodedIsForgotten()
    {
        ImageCache cache;
        const QByteArray blue = png(Qt::blue);
        QSignalSpy arrived(&cache, &ImageCache::arrived);
        cache.cachedImage(block, png(Qt::red), {400, 200});
        cache.cachedImage(block, blue, {400, 200});
        QTRY_COMPARE(arrived.count(), 1);
        QCOMPARE(cache.cachedImage(block, blue, {400, 200}).pixelColor(0, 0), QColor(Qt::blue));
    }

    void theSameBytesInAnotherBlockAreAnEntryOfTheirOwn()
    {
        ImageCache cache;
        const QByteArray data = png(Qt::red);
        decoded(cache, block, data, {400, 200});
        decoded(cache, QUuid::createUuid(), data, {400, 200});
        QCOMPARE(cache.decodings(), 2);
    }

    void failedDecodeIsNotCachedAndIsRetried()
    {
        ImageCache cache;
        QVERIFY(cache.cachedImage(block, "no picture", {400, 200}).isNull());
        const auto again = [&cache, this] {
            cache.cachedImage(block, "no picture", {400, 200});
            return cache.decodings();
        };
        QTRY_COMPARE(again(), 2);
        QVERIFY(cache.sizeOf(block, "no picture").isEmpty());
    }

    void theSizeIsKnownBeforeThePicture()
    {
        ImageCache cache;
        QCOMPARE(cache.sizeOf(block, png(Qt::red)), QSize(800, 400));
        QCOMPARE(cache.decodings(), 0);
    }

    void overBudgetTheOldestBecomesAPreviewThatIsMadeWholeAgain()
    {
        ImageCache cache;
        cache.setBudget(400 * 200 * 4 * 3 / 2);
        const QByteArray data = png(Qt::red);
        decoded(cache, block, data, {400, 200});
        decoded(cache, QUuid::createUuid(), data, {400, 200});
        QCOMPARE(cache.cachedImage(block, data, {400, 200}).size(), QSize(100, 50));
        QTRY_COMPARE(cache.cachedImage(block, data, {400, 200}).size(), QSize(400, 200));
    }
};

PELKO_TEST(TestImageCache)
#include "tst_ImageCache.moc"
