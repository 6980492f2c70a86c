#include "Timers/PomodoroTimer.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TestPomodoroTimer : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ManualScheduler> m_scheduler;
    std::unique_ptr<PomodoroTimer> m_timer;

    void passFocusPhase() const
    {
        m_timer->start();
        m_scheduler->advance(1501s);
    }

private Q_SLOTS:
    void init()
    {
        m_scheduler = std::make_unique<ManualScheduler>();
        m_timer = std::make_unique<PomodoroTimer>(*m_scheduler);
    }

    void cleanup()
    {
        m_timer.reset();
        m_scheduler.reset();
    }

    void beginsWithAFullFocusPhase()
    {
        QCOMPARE(m_timer->displayTime(), u"25:00"_s);
        QVERIFY(m_timer->isFocusPhase());
        QVERIFY(!m_timer->isRunning());
        QCOMPARE(m_timer->sessionCount(), 0);
    }

    void showsTheTime_data()
    {
        QTest::addColumn<int>("seconds");
        QTest::addColumn<QString>("time");
        QTest::newRow("full") << 0 << u"25:00"_s;
        QTest::newRow("one second gone") << 1 << u"24:59"_s;
        QTest::newRow("five minutes left") << 1200 << u"05:00"_s;
        QTest::newRow("less than a minute left") << 1441 << u"00:59"_s;
        QTest::newRow("nothing left") << 1500 << u"00:00"_s;
    }

    void showsTheTime()
    {
        QFETCH(int, seconds);
        QFETCH(QString, time);

        m_timer->start();
        m_scheduler->advance(std::chrono::seconds(seconds));

        QCOMPARE(m_timer->displayTime(), time);
    }

    void holdsAtZeroForOneSecond()
    {
        m_timer->start();
        for (int tick = 1; tick <= 1500; ++tick) {
            m_scheduler->advance(1s);
            QCOMPARE(m_timer->timeRemaining(), 1500 - tick);
            QVERIFY(m_timer->isRunning() && m_timer->isFocusPhase());
        }
        QCOMPARE(m_timer->displayTime(), u"00:00"_s);

        m_scheduler->advance(1s);

        QVERIFY(!m_timer->isFocusPhase() && !m_timer->isRunning());
        QCOMPARE(m_timer->displayTime(), u"05:00"_s);
        QCOMPARE(m_timer->sessionCount(), 1);
    }

    void stopsAtTheBoundary()
    {
        passFocusPhase();
        m_scheduler->advance(24h);

        QCOMPARE(m_timer->displayTime(), u"05:00"_s);
        QCOMPARE(m_timer->sessionCount(), 1);
    }

    void doesNotCountABreak()
    {
        passFocusPhase();
        m_timer->start();
        m_scheduler->advance(300s);
        QVERIFY(!m_timer->isFocusPhase());
        QCOMPARE(m_timer->displayTime(), u"00:00"_s);

        m_scheduler->advance(1s);

        QVERIFY(m_timer->isFocusPhase() && !m_timer->isRunning());
        QCOMPARE(m_timer->displayTime(), u"25:00"_s);
        QCOMPARE(m_timer->sessionCount(), 1);
    }

    void resetDuringABreakRefillsTheBreak()
    {
        passFocusPhase();
        m_timer->start();
        m_scheduler->advance(100s);

        m_timer->reset();

        QCOMPARE(m_timer->displayTime(), u"05:00"_s);
        QVERIFY(!m_timer->isFocusPhase() && !m_timer->isRunning());
        QCOMPARE(m_timer->sessionCount(), 1);
        m_scheduler->advance(10s);
        QCOMPARE(m_timer->displayTime(), u"05:00"_s);
    }

    void pauseBeforeAnyStartIsHarmless()
    {
        const QSignalSpy changes(m_timer.get(), &PomodoroTimer::isRunningChanged);

        m_timer->pause();

        QVERIFY(!m_timer->isRunning());
        QCOMPARE(changes.count(), 0);
    }

    void goesOnWhereItWasPaused()
    {
        m_timer->start();
        m_scheduler->advance(std::chrono::seconds(1500 - 12 * 60 - 34));
        m_timer->pause();
        m_scheduler->advance(60s);
        QCOMPARE(m_timer->displayTime(), u"12:34"_s);

        m_timer->start();
        m_scheduler->advance(1s);

        QCOMPARE(m_timer->displayTime(), u"12:33"_s);
    }

    void startedTwiceItCountsTwice()
    {
        m_timer->start();
        m_timer->start();
        m_scheduler->advance(10s);
        QCOMPARE(m_timer->timeRemaining(), 1480);

        m_timer->pause();
        m_scheduler->advance(10s);

        QCOMPARE(m_timer->timeRemaining(), 1470); // the first tick can no longer be reached
    }

    void announcesOnlyWhatChanges()
    {
        const QSignalSpy time(m_timer.get(), &PomodoroTimer::timeRemainingChanged);
        const QSignalSpy running(m_timer.get(), &PomodoroTimer::isRunningChanged);
        const QSignalSpy phase(m_timer.get(), &PomodoroTimer::isFocusPhaseChanged);
        const QSignalSpy sessions(m_timer.get(), &PomodoroTimer::sessionCountChanged);

        m_timer->reset();
        QCOMPARE(time.count() + running.count(), 0);
        m_timer->start();
        m_scheduler->advance(2s);
        QCOMPARE(time.count(), 2);
        QCOMPARE(running.count(), 1);
        m_scheduler->advance(1499s);

        QCOMPARE(time.count(), 1501); // 1500 ticks and the refill
        QCOMPARE(running.count(), 2);
        QCOMPARE(phase.count(), 1);
        QCOMPARE(sessions.count(), 1);
    }

    void isWholeWhenItAnnounces()
    {
        m_timer->start();
        m_scheduler->advance(1500s);
        QString seen;
        connect(m_timer.get(), &PomodoroTimer::isRunningChanged, this, [this, &seen] {
            seen = m_timer->displayTime() + (m_timer->isFocusPhase() ? u" focus"_s : u" break"_s);
        });

        m_scheduler->advance(1s);

        QCOMPARE(seen, u"05:00 break"_s);
    }

    void aDestroyedTimerTakesItsCallsBack()
    {
        m_timer->start();
        QVERIFY(!m_scheduler->isIdle());
        m_timer.reset();
        QVERIFY(m_scheduler->isIdle());
    }
};

PELKO_TEST(TestPomodoroTimer)
#include "tst_PomodoroTimer.moc"
