#include "Timers/FlowTimer.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TestFlowTimer : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ManualScheduler> m_scheduler;
    std::unique_ptr<FlowTimer> m_timer;

private Q_SLOTS:
    void init()
    {
        m_scheduler = std::make_unique<ManualScheduler>();
        m_timer = std::make_unique<FlowTimer>(*m_scheduler);
    }

    void cleanup()
    {
        m_timer.reset();
        m_scheduler.reset();
    }

    void beginsFresh()
    {
        QCOMPARE(m_timer->displayTime(), u"5:00"_s);
        QVERIFY(!m_timer->isRunning());
        QVERIFY(!m_timer->isActive());
    }

    void showsTheTime_data()
    {
        QTest::addColumn<int>("left");
        QTest::addColumn<QString>("time");
        QTest::newRow("full") << 300 << u"5:00"_s;
        QTest::newRow("just over a minute") << 61 << u"1:01"_s;
        QTest::newRow("seconds") << 9 << u"0:09"_s;
        QTest::newRow("nothing") << 0 << u"0:00"_s;
    }

    void showsTheTime()
    {
        QFETCH(int, left);
        QFETCH(QString, time);

        m_timer->start();
        m_scheduler->advance(std::chrono::seconds(300 - left));

        QCOMPARE(m_timer->displayTime(), time);
    }

    void startedTwiceItTicksOnce()
    {
        m_timer->start();
        m_scheduler->advance(500ms);
        m_timer->start();
        m_scheduler->advance(2s);

        QCOMPARE(m_timer->remaining(), 298);
    }

    void restsAtZeroBeforeItEnds()
    {
        m_timer->start();
        m_scheduler->advance(300s);
        QCOMPARE(m_timer->remaining(), 0);
        QVERIFY(m_timer->isRunning());

        m_scheduler->advance(1s);

        QVERIFY(!m_timer->isRunning());
        QVERIFY(m_timer->isActive()); // "0:00" stays up until the next start
        m_scheduler->advance(1h);
        QCOMPARE(m_timer->remaining(), 0);
    }

    void aFinishedRunStartsAfresh()
    {
        m_timer->start();
        m_scheduler->advance(301s);

        m_timer->start();

        QCOMPARE(m_timer->displayTime(), u"5:00"_s);
        m_scheduler->advance(1s);
        QCOMPARE(m_timer->displayTime(), u"4:59"_s);
    }

    void aStoppedRunGoesOn()
    {
        m_timer->start();
        m_scheduler->advance(1s);
        m_timer->stop();
        m_scheduler->advance(10s);
        QCOMPARE(m_timer->remaining(), 299);
        QVERIFY(!m_timer->isRunning() && m_timer->isActive());

        m_timer->start();
        m_scheduler->advance(1s);

        QCOMPARE(m_timer->remaining(), 298);
    }

    void announcesOnlyWhatChanges()
    {
        const QSignalSpy remaining(m_timer.get(), &FlowTimer::remainingChanged);
        const QSignalSpy running(m_timer.get(), &FlowTimer::isRunningChanged);
        const QSignalSpy active(m_timer.get(), &FlowTimer::isActiveChanged);

        m_timer->stop();
        QCOMPARE(running.count(), 0);
        m_timer->start();
        QCOMPARE(active.count(), 1);
        m_scheduler->advance(301s);
        QCOMPARE(remaining.count(), 300);
        QCOMPARE(running.count(), 2);
        QCOMPARE(active.count(), 1);
    }
};

PELKO_TEST(TestFlowTimer)
#include "tst_FlowTimer.moc"
