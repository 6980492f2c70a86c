#include "Timers/PomodoroTimer.h"
#include "Timers/TrayIconState.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TestTrayIconState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atRestItIsADimFlameWithoutText()
    {
        ManualScheduler scheduler;
        const PomodoroTimer timer(scheduler);
        const TrayIconState face = trayIconState(timer);

        QVERIFY(!face.isRunning);
        QCOMPARE(face.flameOpacity, 0.8);
        QCOMPARE(face.label, QString());
        QCOMPARE(face.toolTipTitle, u"Ready for 25:00 of focus"_s);
        QCOMPARE(face.toolTipText, u"No session done yet"_s);
    }

    void whileItRunsItPulsesOnceASecond()
    {
        ManualScheduler scheduler;
        PomodoroTimer timer(scheduler);
        timer.start();
        QCOMPARE(trayIconState(timer).label, u"25:00"_s);
        QCOMPARE(trayIconState(timer).flameOpacity, 1.0);
        scheduler.advance(1s);
        QCOMPARE(trayIconState(timer).flameOpacity, 0.5);
        scheduler.advance(1s);
        QCOMPARE(trayIconState(timer).flameOpacity, 1.0);
        timer.pause();
        QCOMPARE(trayIconState(timer).flameOpacity, 0.8);
        QCOMPARE(trayIconState(timer).label, QString());
    }

    void minutesAreRoundedUp_data()
    {
        QTest::addColumn<int>("passed");
        QTest::addColumn<int>("minutes");
        QTest::newRow("just started") << 0 << 25;
        QTest::newRow("a second later") << 1 << 25;
        QTest::newRow("a minute later") << 60 << 24;
        QTest::newRow("61 s left") << 1439 << 2;
        QTest::newRow("the last minute") << 1440 << 1;
        QTest::newRow("the last second") << 1499 << 1;
        QTest::newRow("nothing left") << 1500 << 0;
    }

    void minutesAreRoundedUp()
    {
        QFETCH(int, passed);
        ManualScheduler scheduler;
        PomodoroTimer timer(scheduler);
        timer.start();
        scheduler.advance(std::chrono::seconds(passed));

        QTEST(trayIconState(timer).minutesLeft, "minutes");
    }

    void aBreakSaysSo()
    {
        ManualScheduler scheduler;
        PomodoroTimer timer(scheduler);
        timer.start();
        scheduler.advance(1501s);
        timer.start();
        scheduler.advance(150s);
        const TrayIconState face = trayIconState(timer);

        QCOMPARE(face.toolTipTitle, u"02:30 of break left"_s);
        QCOMPARE(face.toolTipText, u"1 session done"_s);
        QCOMPARE(face.progress, 0.5);
    }

    void theToolTipTellsARunningTimerFromAPausedAndAWaitingOne()
    {
        ManualScheduler scheduler;
        PomodoroTimer timer(scheduler);
        timer.start();
        QCOMPARE(trayIconState(timer).toolTipTitle, u"25:00 of focus left"_s);
        scheduler.advance(60s);
        timer.pause();
        QCOMPARE(trayIconState(timer).toolTipTitle, u"Paused, 24:00 of focus left"_s);
        timer.start();
        scheduler.advance(1441s);
        QCOMPARE(trayIconState(timer).toolTipTitle, u"Ready for 05:00 of break"_s);
    }

    void theToolTipTellsOfAFailedSave()
    {
        ManualScheduler scheduler;
        const PomodoroTimer timer(scheduler);
        QCOMPARE(trayIconState(timer, u"Save failed: No space left on device"_s).toolTipText,
                 u"Save failed: No space left on device"_s);
    }

    void theMenuOffersWhatCanBeDone()
    {
        using Command = TrayMenuRow::Command;
        ManualScheduler scheduler;
        PomodoroTimer timer(scheduler);
        const QList<TrayMenuRow> atRest{{Command::open, u"Open Pelko"_s},
                                        {Command::startOrPause, u"Start"_s},
                                        {Command::reset, u"Reset"_s},
                                        {Command::none, {}},
                                        {Command::quit, u"Quit"_s}};
        QCOMPARE(trayIconState(timer).menu, atRest);

        timer.start();
        QCOMPARE(trayIconState(timer).menu[1].text, u"Pause"_s);
    }
};

PELKO_TEST(TestTrayIconState)
#include "tst_TrayIconState.moc"
