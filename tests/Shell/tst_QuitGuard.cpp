#include "Shell/QuitGuard.h"
#include "Store/AppState.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
struct EndingProgram {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    AppState appState{scheduler, clock, file};
    QuitGuard guard{appState};
};
} // namespace

class TestQuitGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesWhatIsNotSavedYet()
    {
        EndingProgram program;
        program.appState.createDocument(Space::work);
        QVERIFY(program.guard.mayQuit());
        QVERIFY(!program.guard.asks());
        QCOMPARE(program.file.writes(), 1);
    }

    void writesNothingWhenAllIsSaved()
    {
        EndingProgram program;
        QVERIFY(program.guard.mayQuit());
        QCOMPARE(program.file.writes(), 0);
    }

    void asksInTheAlertsPlaceWhenTheSaveFails()
    {
        EndingProgram program;
        program.file.writeError = u"No space left on device"_s;
        program.appState.createDocument(Space::work);
        QVERIFY(!program.guard.mayQuit());
        QVERIFY(program.guard.asks());
        QCOMPARE(program.guard.reason(), u"Save failed: No space left on device"_s);
        QCOMPARE(program.appState.lastError(), std::nullopt);
    }

    void asksWhenTheSaveMayNotLast()
    {
        EndingProgram program;
        program.file.confirmError = u"Input/output error"_s;
        program.appState.createDocument(Space::work);
        QVERIFY(!program.guard.mayQuit());
        QVERIFY(program.guard.asks());
    }

    void theWriterMayStay()
    {
        EndingProgram program;
        program.file.writeError = u"No space left on device"_s;
        program.appState.createDocument(Space::work);
        program.guard.mayQuit();
        program.guard.stay();
        QVERIFY(!program.guard.asks());
        program.file.writeError.reset();
        QVERIFY(program.guard.mayQuit());
        QCOMPARE(program.file.writes(), 1);
    }

    void theWriterMayLoseTheChangesAndIsNotAskedTwice()
    {
        EndingProgram program;
        program.file.writeError = u"No space left on device"_s;
        program.appState.createDocument(Space::work);
        program.guard.mayQuit();
        const QSignalSpy quitting(&program.guard, &QuitGuard::quitRequested);
        program.guard.quitAnyway();
        QCOMPARE(quitting.size(), 1);
        QVERIFY(!program.guard.asks());
        QVERIFY(program.guard.mayQuit());
        QVERIFY(!program.guard.asks());
    }
};

PELKO_TEST(TestQuitGuard)
#include "tst_QuitGuard.moc"
