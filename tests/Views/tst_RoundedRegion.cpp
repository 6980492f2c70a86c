#include "Views/Timers/RoundedRegion.h"
#include "support/TestProgram.h"

#include <QImage>
#include <QPainter>

class TestRoundedRegion : public QObject
{
    Q_OBJECT

    static QImage painted(const QSize &size, int radius)
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(image.rect(), radius, radius);
        return image;
    }

private Q_SLOTS:
    void allThatIsPaintedIsInIt_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("radius");
        QTest::newRow("panel") << QSize(300, 420) << 24;
        QTest::newRow("small") << QSize(20, 20) << 10;
        QTest::newRow("square") << QSize(30, 20) << 0;
    }

    void allThatIsPaintedIsInIt()
    {
        QFETCH(QSize, size);
        QFETCH(int, radius);
        const QImage image = painted(size, radius);
        const QRegion region = roundedRegion(size, radius);
        int unpainted = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const bool isPainted = qAlpha(image.pixel(x, y)) > 0;
                QVERIFY(!isPainted || region.contains(QPoint(x, y)));
                unpainted += !isPainted && region.contains(QPoint(x, y)) ? 1 : 0;
            }
        }
        QVERIFY(unpainted <= 8); // what touches by less than can be seen
        QCOMPARE(region.boundingRect(), QRect(QPoint(), size));
    }
};

PELKO_TEST(TestRoundedRegion)
#include "tst_RoundedRegion.moc"
