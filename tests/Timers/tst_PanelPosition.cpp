#include "Timers/PanelPosition.h"
#include "support/TestProgram.h"

class TestPanelPosition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsBesideItsOpenerAndInsideTheScreen_data()
    {
        QTest::addColumn<QRect>("opener");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("room");
        QTest::addColumn<QPoint>("place");
        const QRect screen(0, 0, 1400, 1000);
        const QSize panel(300, 600);
        QTest::newRow("below, centred") << QRect(700, 10, 40, 20) << panel << screen << QPoint(570, 38);
        QTest::newRow("above in the lower half")
            << QRect(700, 970, 40, 20) << panel << screen << QPoint(570, 362);
        QTest::newRow("not past the right edge")
            << QRect(1380, 4, 20, 20) << panel << screen << QPoint(1092, 32);
        QTest::newRow("not past the left edge") << QRect(0, 4, 20, 20) << panel << screen << QPoint(8, 32);
        QTest::newRow("not past the lower edge")
            << QRect(700, 480, 1, 1) << panel << screen << QPoint(551, 392);
        QTest::newRow("higher than the screen, its top shows")
            << QRect(700, 900, 1, 1) << QSize(300, 1200) << screen << QPoint(551, 8);
        QTest::newRow("beside a bar that takes room")
            << QRect(700, 0, 24, 24) << panel << QRect(0, 30, 1400, 970) << QPoint(562, 38);
        QTest::newRow("on a second screen to the left")
            << QRect(-100, 10, 20, 20) << panel << QRect(-1000, 0, 1000, 800) << QPoint(-308, 38);
    }

    void standsBesideItsOpenerAndInsideTheScreen()
    {
        QFETCH(QRect, opener);
        QFETCH(QSize, size);
        QFETCH(QRect, room);
        QFETCH(QPoint, place);

        QCOMPARE(panelPosition(opener, size, room), place);
    }
};

PELKO_TEST(TestPanelPosition)
#include "tst_PanelPosition.moc"
