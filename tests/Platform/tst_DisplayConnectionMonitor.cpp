#include "Platform/DisplayConnectionMonitor.h"
#include "support/TestProgram.h"

#include <QThread>

#include <memory>

namespace
{
constexpr const char *brokenConnection = "The Wayland connection broke. Did the Wayland compositor die?";
}

class TestDisplayConnectionMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theActionIsRunOnceWhenQtSaysThatTheConnectionBroke_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("X11") << QByteArray("The X11 connection broke (error 1). Did the X11 server die?");
        QTest::newRow("Wayland, gone") << QByteArray(brokenConnection);
        QTest::newRow("Wayland, broken")
            << QByteArray("The Wayland connection experienced a fatal error: Protocol error");
    }

    void theActionIsRunOnceWhenQtSaysThatTheConnectionBroke()
    {
        QFETCH(const QByteArray, message);
        int runs = 0;
        const DisplayConnectionMonitor display([&runs] { ++runs; });
        qWarning("%s", message.constData());
        QCOMPARE(runs, 1);
        qWarning("%s", message.constData());
        QCOMPARE(runs, 1);
    }

    void anotherThreadWaitsForTheInterfaceThread()
    {
        QThread *ranOn = nullptr;
        const DisplayConnectionMonitor display([&ranOn] { ranOn = QThread::currentThread(); });
        bool isDone = false;
        const std::unique_ptr<QThread> thread(QThread::create([&ranOn, &isDone] {
            qWarning("%s", brokenConnection);
            isDone = ranOn != nullptr;
        }));
        thread->start();
        QTRY_VERIFY(thread->isFinished());
        QVERIFY(isDone);
        QCOMPARE(ranOn, QThread::currentThread());
    }

    void otherWarningsAreNoConcern()
    {
        int runs = 0;
        const DisplayConnectionMonitor display([&runs] { ++runs; });
        qWarning("This window is too narrow.");
        QCOMPARE(runs, 0);
    }

    void doesNothingAfterDestruction()
    {
        int runs = 0;
        {
            const DisplayConnectionMonitor display([&runs] { ++runs; });
        }
        qWarning("%s", brokenConnection);
        QCOMPARE(runs, 0);
    }
};

PELKO_TEST(TestDisplayConnectionMonitor)
#include "tst_DisplayConnectionMonitor.moc"
