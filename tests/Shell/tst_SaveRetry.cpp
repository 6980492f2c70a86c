#include "Shell/SaveRetry.h"
#include "Store/AppState.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
struct FailedProgram {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    AppState appState{scheduler, clock, file};
    SaveRetry retry{appState, file, scheduler};
    int attempts = 0;

    FailedProgram()
    {
        file.whileWriting = [this] { ++attempts; };
        file.writeError = u"No space left on device"_s;
        file.looksWritable = false;
        appState.captureSpark(u"kept"_s);
    }
};
} // namespace

class TestSaveRetry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesWithinThirtySecondsOnceThereIsRoom()
    {
        FailedProgram program;
        program.scheduler.advance(1h);
        QCOMPARE(program.attempts, 1);
        program.file.writeError.reset();
        program.file.looksWritable = true;
        program.scheduler.advance(30s);
        QCOMPARE(program.file.writes(), 1);
        QCOMPARE(program.appState.lastSaveError(), std::nullopt);
    }

    void looksNoMoreOnceAllIsSaved()
    {
        FailedProgram program;
        program.file.writeError.reset();
        program.file.looksWritable = true;
        program.appState.saveChanges();
        program.scheduler.advance(1h);
        QCOMPARE(program.file.writes(), 1);
    }

    void continuesWhenTheCheckWasWrong()
    {
        FailedProgram program;
        program.file.looksWritable = true;
        program.scheduler.advance(30s);
        QCOMPARE(program.attempts, 2);
        program.file.writeError.reset();
        program.scheduler.advance(30s);
        QCOMPARE(program.file.writes(), 1);
    }
};

PELKO_TEST(TestSaveRetry)
#include "tst_SaveRetry.moc"
