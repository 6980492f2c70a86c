#include "Platform/QtScheduler.h"
#include "support/TestProgram.h"

#include <QThread>

using namespace std::chrono_literals;

class TestQtScheduler : public QObject
{
    Q_OBJECT

    QtScheduler scheduler;

private Q_SLOTS:
    void aCallIsMadeOnceAndNotEarly()
    {
        int calls = 0;
        QElapsedTimer time;
        time.start();
        const ScheduledCall call = scheduler.after(30ms, [&] { ++calls; });
        QTRY_COMPARE(calls, 1);
        QVERIFY(time.elapsed() >= 29);
        QTest::qWait(80);
        QCOMPARE(calls, 1);
    }

    void aDroppedCallIsNotMade()
    {
        int calls = 0;
        {
            const ScheduledCall dropped = scheduler.after(1ms, [&] { ++calls; });
            ScheduledCall cancelled = scheduler.after(1ms, [&] { ++calls; });
            cancelled.cancel();
            ScheduledCall replaced = scheduler.after(1ms, [&] { ++calls; });
            replaced = scheduler.after(1h, [&] { ++calls; });
        }
        QTest::qWait(40);
        QCOMPARE(calls, 0);
    }

    void aRepeatedCallGoesOnUntilItIsDropped()
    {
        int calls = 0;
        {
            const ScheduledCall call = scheduler.every(2ms, [&] { ++calls; });
            QTRY_VERIFY(calls >= 3);
        }
        const int made = calls;
        QTest::qWait(40);
        QCOMPARE(calls, made);
    }

    void missedTicksAreNotRepeated()
    {
        int calls = 0;
        const ScheduledCall call = scheduler.every(50ms, [&] { ++calls; });
        QThread::msleep(400); // like a suspended machine or a stopped process
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();

        QVERIFY2(calls <= 2, qPrintable(QString::number(calls)));
        QTRY_VERIFY(calls >= 3); // and then it goes on
    }

    void anActionMayDropItsOwnRequest()
    {
        QByteArray seen;
        int calls = 0;
        ScheduledCall call;
        const auto action = [&call, &seen, &calls, text = QByteArray("kept by the action")] {
            call.cancel();
            seen = text; // the action is still alive here
            ++calls;
        };
        call = scheduler.every(1ms, action);
        QTRY_COMPARE(seen, "kept by the action");
        QTest::qWait(40);
        QCOMPARE(calls, 1);
    }

    void anActionMayReplaceItsOwnRequest()
    {
        ScheduledCall call;
        int calls = 0;
        std::function<void()> again = [&] {
            if (++calls < 3)
                call = scheduler.after(1ms, again);
        };
        call = scheduler.after(1ms, again);
        QTRY_COMPARE(calls, 3);
    }
};

PELKO_TEST(TestQtScheduler)
#include "tst_QtScheduler.moc"
