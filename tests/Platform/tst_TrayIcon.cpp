#include "Platform/Tray/TrayIcon.h"
#include "Platform/Tray/TrayTypes.h"
#include "Timers/TrayIconState.h"
#include "support/TestProgram.h"

namespace
{
TrayIconState running(int minutes, double progress)
{
    TrayIconState face;
    face.isRunning = true;
    face.flameOpacity = 1;
    face.progress = progress;
    face.minutesLeft = minutes;
    return face;
}

int opaquePixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) == 255;
    }
    return count;
}
} // namespace

class TestTrayIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atRestItIsTheFlameAtItsOpacity()
    {
        const QImage icon = trayIcon({}, 48, TrayLabels::ignored);

        QCOMPARE(icon.size(), QSize(48, 48));
        QCOMPARE(qAlpha(icon.pixel(0, 0)), 0);
        QVERIFY(qAbs(qAlpha(icon.pixel(24, 34)) - 204) <= 2); // 0.8
        QVERIFY(qRed(icon.pixel(24, 34)) > qBlue(icon.pixel(24, 34)));
    }

    void whileItRunsItIsACoinOnItsOwnGround()
    {
        const QImage icon = trayIcon(running(17, 0.3), 48, TrayLabels::ignored);

        QCOMPARE(qAlpha(icon.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(icon.pixel(24, 6)), 255);
        QVERIFY(qGray(icon.pixel(24, 6)) < 40);
        QVERIFY(opaquePixels(icon) > 1600); // of the 1810 of a whole disc
    }

    void theRingFillsWithTheTimeSpent()
    {
        const QImage early = trayIcon(running(24, 0.05), 48, TrayLabels::ignored);
        const QImage late = trayIcon(running(2, 0.95), 48, TrayLabels::ignored);
        const QPoint left(2, 24);

        QVERIFY(qRed(late.pixel(left)) > qRed(early.pixel(left)) + 60);
    }

    void theMinutesCanBeTold()
    {
        for (const int size : {16, 22, 24, 32, 48}) {
            QVERIFY(trayIcon(running(17, 0.3), size, TrayLabels::ignored) !=
                    trayIcon(running(16, 0.3), size, TrayLabels::ignored));
        }
    }

    void besideALabelItIsTheFlame()
    {
        TrayIconState face = running(17, 0.3);
        const QImage bright = trayIcon(face, 48, TrayLabels::drawn);
        QCOMPARE(qAlpha(bright.pixel(24, 34)), 255);
        face.flameOpacity = 0.5;
        QVERIFY(qAbs(qAlpha(trayIcon(face, 48, TrayLabels::drawn).pixel(24, 34)) - 128) <= 2);
    }

    void pixelsTravelInNetworkOrder()
    {
        QImage image(1, 1, QImage::Format_ARGB32);
        image.setPixel(0, 0, 0x80112233);

        QCOMPARE(TrayPixmap::of(image).bytes, QByteArray("\x80\x11\x22\x33"));
    }
};

PELKO_TEST(TestTrayIcon)
#include "tst_TrayIcon.moc"
