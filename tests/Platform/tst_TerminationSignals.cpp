#include "Platform/TerminationSignals.h"
#include "support/TestProgram.h"

#include <csignal>
#include <sys/wait.h>

class TestTerminationSignals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSignalIsHeardInTheEventLoop_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void aSignalIsHeardInTheEventLoop()
    {
        QFETCH(const int, signal);
        int heard = 0;
        const TerminationSignals signals([&heard] { ++heard; });
        ::raise(signal);
        QCOMPARE(heard, 0);
        QTRY_COMPARE(heard, 1);
    }

    void theSecondOfAKindEndsTheProcess()
    {
        const pid_t child = ::fork();
        if (child == 0) {
            const TerminationSignals signals([] {});
            ::raise(SIGTERM);
            ::raise(SIGTERM);
            ::_exit(1);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
    }

    void aSignalThatWasIgnoredStaysIgnored()
    {
        std::signal(SIGHUP, SIG_IGN);
        int heard = 0;
        {
            const TerminationSignals signals([&heard] { ++heard; });
            ::raise(SIGHUP);
            QCoreApplication::processEvents();
        }
        QCOMPARE(heard, 0);
        QVERIFY(std::signal(SIGHUP, SIG_DFL) == SIG_IGN);
    }
};

PELKO_TEST(TestTerminationSignals)
#include "tst_TerminationSignals.moc"
