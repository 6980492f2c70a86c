#include "Shell/LaunchSequence.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

using namespace std::chrono_literals;

class TestLaunchSequence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsAnOpaqueCardWithNeitherFlameNorName()
    {
        const LaunchSequence launch(m_scheduler);

        QVERIFY(launch.overlayVisible());
        QVERIFY(!launch.showFlame());
        QVERIFY(!launch.showTitle());
    }

    void doesNothingBeforeItIsSeen()
    {
        const LaunchSequence launch(m_scheduler);
        m_scheduler.advance(10s);

        QVERIFY(launch.overlayVisible());
        QVERIFY(!launch.showFlame());
    }

    void showsFlameAndNameOnceSeen()
    {
        LaunchSequence launch(m_scheduler);
        launch.start();

        QVERIFY(launch.overlayVisible());
        QVERIFY(launch.showFlame());
        QVERIFY(launch.showTitle());
    }

    void removesTheCardAfterOneSecondAndNotEarlier()
    {
        LaunchSequence launch(m_scheduler);
        launch.start();

        m_scheduler.advance(999ms);
        QVERIFY(launch.overlayVisible());
        m_scheduler.advance(1ms);
        QVERIFY(!launch.overlayVisible());
        QVERIFY(launch.showFlame());
        QVERIFY(launch.showTitle());
    }

    void removesTheCardAtOnceWhenTheWaitIsCancelled()
    {
        LaunchSequence launch(m_scheduler);
        launch.start();
        m_scheduler.advance(200ms);
        launch.cancel();

        QVERIFY(!launch.overlayVisible());
    }

    void neverBringsTheCardBack()
    {
        LaunchSequence launch(m_scheduler);
        QSignalSpy overlayChanges(&launch, &LaunchSequence::overlayVisibleChanged);
        launch.start();
        m_scheduler.advance(1s);
        launch.start();
        m_scheduler.advance(10s);

        QVERIFY(!launch.overlayVisible());
        QCOMPARE(overlayChanges.count(), 1);
    }

    void aSecondStartDoesNotLengthenTheWait()
    {
        LaunchSequence launch(m_scheduler);
        launch.start();
        m_scheduler.advance(900ms);
        launch.start();
        m_scheduler.advance(100ms);

        QVERIFY(!launch.overlayVisible());
    }

    void aDestroyedSequenceTakesItsCallsBack()
    {
        ManualScheduler scheduler;
        {
            LaunchSequence launch(scheduler);
            launch.start();
            QVERIFY(!scheduler.isIdle());
        }
        QVERIFY(scheduler.isIdle());
    }

private:
    ManualScheduler m_scheduler;
};

PELKO_TEST(TestLaunchSequence)
#include "tst_LaunchSequence.moc"
