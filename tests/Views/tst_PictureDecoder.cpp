#include "Views/Editor/PictureDecoder.h"
#include "support/TestProgram.h"

#include "Views/Editor/DrawingInspector.h"

#include <QBuffer>
#include <QColor>
#include <QElapsedTimer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace
{

/// Returns a picture that is red at the left and blue at the right.
QImage picture(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QPainter(&image).fillRect(0, 0, size.width() / 2, size.height(), Qt::red);
    return image;
}

QByteArray encoded(const QImage &image, const char *format)
{
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

QByteArray drawing(const QByteArray &content, const QByteArray &attributes = "viewBox='0 0 40 20'")
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' " +
           attributes + ">" + content + "</svg>";
}

/// Returns an SVG drawing in which every level uses the level before ten times.
QByteArray bomb(int levels)
{
    QByteArray content = "<g id='a0'><rect width='1' height='1'/></g>";
    for (int level = 1; level <= levels; ++level) {
        content += "<g id='a" + QByteArray::number(level) + "'>";
        for (int i = 0; i < 10; ++i)
            content += "<use xlink:href='#a" + QByteArray::number(level - 1) + "'/>";
        content += "</g>";
    }
    return drawing("<defs>" + content + "</defs><use xlink:href='#a" + QByteArray::number(levels) + "'/>");
}

/// Returns a GIF of one pixel; Qt cannot write this format.
QByteArray gif()
{
    return QByteArray::fromBase64("R0lGODlhAQABAIAAAP8AAP///ywAAAAAAQABAAACAkQBADs=");
}

} // namespace

class TestPictureDecoder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormatIsDecoded_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QSize>("size");
        for (const char *format : {"PNG", "JPEG", "WEBP", "BMP", "TIFF", "ICO"})
            QTest::newRow(format) << encoded(picture({64, 32}), format) << QSize(64, 32);
        QTest::newRow("GIF") << gif() << QSize(1, 1);
        QTest::newRow("SVG") << drawing("<rect width='40' height='20' fill='red'/>") << QSize(64, 32);
    }

    void everyFormatIsDecoded()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QSize, size);
        const QImage image = PictureDecoder::decode(bytes, {64, 32});
        QCOMPARE(image.size(), size);
        QVERIFY(image.pixelColor(0, 0).red() > 240);
    }

    void aPictureIsDecodedJustLargeEnough_data()
    {
        QTest::addColumn<QSize>("wanted");
        QTest::addColumn<QSize>("decoded");
        QTest::newRow("to its width") << QSize(100, 50) << QSize(100, 50);
        QTest::newRow("to cover a banner") << QSize(200, 150) << QSize(300, 150);
        QTest::newRow("not larger than it is") << QSize(4000, 2000) << QSize(800, 400);
    }

    void aPictureIsDecodedJustLargeEnough()
    {
        QFETCH(const QSize, wanted);
        QFETCH(const QSize, decoded);
        QCOMPARE(PictureDecoder::decode(encoded(picture({800, 400}), "JPEG"), wanted).size(), decoded);
    }

    void aDrawingIsAsSharpAsItsPlace()
    {
        QCOMPARE(PictureDecoder::decode(drawing("<rect width='40' height='20'/>"), {1248, 624}).size(),
                 QSize(1248, 624));
    }

    void aPhotoTakenOnItsSideStandsUpright()
    {
        QBuffer buffer;
        QImageWriter writer(&buffer, "JPEG");
        writer.setTransformation(QImageIOHandler::TransformationRotate90);
        QVERIFY(writer.write(picture({64, 32})));
        const QImage image = PictureDecoder::decode(buffer.data(), {16, 32});
        QCOMPARE(PictureDecoder::sizeOf(buffer.data()), QSize(32, 64));
        QCOMPARE(image.size(), QSize(16, 32));
        QVERIFY(image.pixelColor(8, 2).red() > 200);
        QVERIFY(image.pixelColor(8, 29).blue() > 200);
    }

    void theFirstBytesTellTheSize()
    {
        QImage noise(1500, 1000, QImage::Format_RGB32);
        quint32 state = 1;
        for (int y = 0; y < noise.height(); ++y) {
            for (int x = 0; x < noise.width(); ++x)
                noise.setPixel(x, y, state = state * 1664525 + 1013904223);
        }
        const QByteArray bytes = encoded(noise, "PNG");
        QVERIFY(bytes.size() > 1'000'000);
        QCOMPARE(PictureDecoder::sizeOf(bytes), QSize(1500, 1000));
        QVERIFY(PictureDecoder::sizeOf(drawing({})).isEmpty()); // would have to be read as a whole
    }

    void badBytesAreNoPicture_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray png = encoded(picture({640, 320}), "PNG");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("text") << "this is no picture"_ba;
        QTest::newRow("only a signature") << png.first(8);
        QTest::newRow("only a header") << png.first(33);
        QTest::newRow("zeroes") << QByteArray(1'000'000, '\0');
        QTest::newRow("half a drawing") << drawing("<rect width='40' height='20'/>").chopped(8);
        QTest::newRow("a drawing of text only") << "<html><body>hello</body></html>"_ba;
    }

    void badBytesAreNoPicture()
    {
        QFETCH(const QByteArray, bytes);
        QVERIFY(PictureDecoder::decode(bytes, {400, 200}).isNull());
    }

    void aPictureThatWouldTakeGigabytesIsRefusedByTheDecoder()
    {
        QByteArray png = encoded(picture({64, 32}), "PNG");
        qToBigEndian<quint32>(40'000, png.data() + 16);
        qToBigEndian<quint32>(40'000, png.data() + 20);
        QElapsedTimer time;
        time.start();
        QVERIFY(PictureDecoder::decode(png, {400, 400}).isNull());
        QVERIFY(time.elapsed() < 1000);
    }

    void aHarmlessDrawingIsDrawn_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("plain") << drawing("<rect width='40' height='20'/>");
        QTest::newRow("used twice") << drawing("<g id='a'><rect/></g><use xlink:href='#a'/><use href='#a'/>");
        QTest::newRow("used before it is there") << drawing("<use xlink:href='#a'/><g id='a'><rect/></g>");
        QTest::newRow("gradient") << drawing(
            "<linearGradient id='g'/><rect fill='url(#g)' width='9' height='9'/>");
        QTest::newRow("link") << drawing("<a xlink:href='https://example.org'><rect/></a>");
        QTest::newRow("photo inside")
            << drawing("<image width='4' height='4' xlink:href='data:image/png;base64," +
                       encoded(picture({4, 4}), "PNG").toBase64() + "'/>");
        QTest::newRow("many parts") << drawing(QByteArray("<rect/>").repeated(10'000));
    }

    void aHarmlessDrawingIsDrawn()
    {
        QFETCH(const QByteArray, bytes);
        QVERIFY(DrawingInspector::isHarmless(bytes));
        QVERIFY(!PictureDecoder::decode(bytes, {400, 200}).isNull());
    }

    void aDrawingThatDoesHarmIsNotDrawn_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("drawn over and over") << bomb(9);
        QTest::newRow("contains itself") << drawing("<g id='a'><use xlink:href='#a'/></g>");
        QTest::newRow("contain each other")
            << drawing("<g id='a'><use href='#b'/></g><g id='b'><use href='#a'/></g>");
        QTest::newRow("a file") << drawing("<image xlink:href='/dev/zero' width='9' height='9'/>");
        QTest::newRow("another file") << drawing("<image href='file:///etc/hostname' width='9' height='9'/>");
        QTest::newRow("a drawing inside")
            << drawing("<image xlink:href='data:image/svg+xml;base64," + bomb(2).toBase64() + "'/>");
        QTest::newRow("disguised") << drawing("<image xlink:href='data:image/png;base64,iVBOR;base64," +
                                              bomb(2).toBase64() + "'/>");
        QTest::newRow("a style of its own") << "<?xml-stylesheet href='/dev/zero'?>" + drawing("<rect/>");
        QTest::newRow("deep") << drawing(QByteArray("<g>").repeated(5000) +
                                         QByteArray("</g>").repeated(5000));
        QTest::newRow("compressed") << "\x1f\x8b\x08\0"_ba;
    }

    void aDrawingThatDoesHarmIsNotDrawn()
    {
        QFETCH(const QByteArray, bytes);
        QElapsedTimer time;
        time.start();
        QVERIFY(!DrawingInspector::isHarmless(bytes));
        QVERIFY(PictureDecoder::decode(bytes, {400, 200}).isNull());
        QVERIFY(time.elapsed() < 2000);
    }
};

PELKO_TEST(TestPictureDecoder)
#include "tst_PictureDecoder.moc"
