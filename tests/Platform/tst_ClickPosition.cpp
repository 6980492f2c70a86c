#include "Platform/Tray/ClickPosition.h"
#include "support/TestProgram.h"

/// Clicks in the tray of a desktop of two screens side by side: 3840 × 2160 pixels at scale 2, and 1920 ×
/// 1080 at 1.
class TestClickPosition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deviceIndependentPixelsAreCountedFromTheScreen_data()
    {
        QTest::addColumn<QPoint>("devicePixels");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("origin") << QPoint(0, 0) << QPoint(0, 0);
        QTest::newRow("corner of the dense screen") << QPoint(3800, 20) << QPoint(1900, 10);
        QTest::newRow("last pixel of the dense screen") << QPoint(3838, 2158) << QPoint(1919, 1079);
        QTest::newRow("first pixel of the other") << QPoint(3840, 10) << QPoint(3840, 10);
        QTest::newRow("corner of the other") << QPoint(5750, 10) << QPoint(5750, 10);
        QTest::newRow("outside") << QPoint(-5, 3000) << QPoint(-5, 3000);
    }
    void deviceIndependentPixelsAreCountedFromTheScreen()
    {
        QFETCH(QPoint, devicePixels);
        QFETCH(QPoint, place);
        const QList<ScaledScreen> screens{
            {.geometry = QRect(0, 0, 1920, 1080), .devicePixelRatio = 2},
            {.geometry = QRect(3840, 0, 1920, 1080), .devicePixelRatio = 1},
        };
        QCOMPARE(clickPosition(devicePixels, screens), place);
    }
};

PELKO_TEST(TestClickPosition)
#include "tst_ClickPosition.moc"
