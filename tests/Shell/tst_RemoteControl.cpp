#include "Shell/RemoteControl.h"
#include "support/TestProgram.h"

#include "Store/AppState.h"
#include "Timers/PomodoroTimer.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"

#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
struct ControlledProgram {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    AppState appState{scheduler, clock, file};
    PomodoroTimer timer{scheduler};
    RemoteControl remote{appState, timer};

    CommandLineResult answer(const QStringList &words)
    {
        return remote.answer(QStringList{u"pelko"_s} + words);
    }
    QString status() { return answer({u"--pomodoro"_s, u"status"_s}).text; }
};
} // namespace

class TestRemoteControl : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ControlledProgram> m_program;

private Q_SLOTS:
    void init() { m_program = std::make_unique<ControlledProgram>(); }

    void aSecondStartAsksForTheWindow()
    {
        const QSignalSpy opened(&m_program->remote, &RemoteControl::openRequested);

        QCOMPARE(m_program->answer({}), CommandLineResult());

        QCOMPARE(opened.count(), 1);
    }

    void aSparkIsCaughtAndSaved()
    {
        const QSignalSpy opened(&m_program->remote, &RemoteControl::openRequested);

        QCOMPARE(m_program->answer({u"--spark"_s, u" a thought "_s}), CommandLineResult());

        QCOMPARE(m_program->appState.sparks()[0].blocks[0].content, u"a thought"_s);
        QCOMPARE(m_program->file.writes(), 1);
        QCOMPARE(opened.count(), 0);
    }

    void anExportIsTheCallersOnceTheLatestWordsAreSaved()
    {
        const CommandLineResult result{{}, CommandLineResult::runInCaller};
        QCOMPARE(m_program->answer({u"--export"_s, u"notes"_s}), result);
        QCOMPARE(m_program->file.writes(), 0);

        m_program->appState.createDocument(Space::work);
        QCOMPARE(m_program->answer({u"--export"_s, u"notes"_s}), result);
        QCOMPARE(m_program->file.writes(), 1);
    }

    void anExportWithoutTheLatestWordsIsNone()
    {
        m_program->appState.createDocument(Space::work);
        m_program->file.writeError = u"No space left on device"_s;
        const CommandLineResult expected{u"pelko: Save failed: No space left on device\n"_s, 1};
        QCOMPARE(m_program->answer({u"--export"_s, u"notes"_s}), expected);
    }

    void aSparkThatCannotBeSavedIsToldAndKept()
    {
        m_program->file.writeError = u"No space left on device"_s;
        const CommandLineResult expected{u"pelko: Save failed: No space left on device\n"_s, 1};

        QCOMPARE(m_program->answer({u"--spark"_s, u"kept"_s}), expected);
        QCOMPARE(m_program->answer({u"--spark"_s, u"kept too"_s}), expected);
        QCOMPARE(m_program->appState.sparks().size(), 2);

        m_program->file.writeError.reset();
        QCOMPARE(m_program->answer({u"--spark"_s, u"saved"_s}), CommandLineResult());
    }

    void aBlankSparkIsRefused()
    {
        QCOMPARE(m_program->answer({u"--spark"_s, u" "_s}).exitCode, 2);
        QCOMPARE(m_program->appState.documents().size(), 0);
    }

    void thePomodoroIsWorkedByWords()
    {
        QCOMPARE(m_program->status(), u"focus 25:00 paused\n"_s);
        QCOMPARE(m_program->answer({u"--pomodoro"_s, u"start"_s}), CommandLineResult());
        m_program->scheduler.advance(498s);
        QCOMPARE(m_program->status(), u"focus 16:42 running\n"_s);
        QCOMPARE(m_program->answer({u"--pomodoro"_s, u"pause"_s}), CommandLineResult());
        QCOMPARE(m_program->status(), u"focus 16:42 paused\n"_s);
        QCOMPARE(m_program->answer({u"--pomodoro"_s, u"reset"_s}), CommandLineResult());
        QCOMPARE(m_program->status(), u"focus 25:00 paused\n"_s);
    }

    void startedTwiceItCountsOnce()
    {
        m_program->answer({u"--pomodoro"_s, u"start"_s});
        m_program->answer({u"--pomodoro"_s, u"start"_s});
        m_program->scheduler.advance(10s);

        QCOMPARE(m_program->status(), u"focus 24:50 running\n"_s);
    }

    void aBreakSaysSo()
    {
        m_program->timer.start();
        m_program->scheduler.advance(1501s);

        QCOMPARE(m_program->status(), u"break 05:00 paused\n"_s);
    }

    void refusesUnknownOptions() { QCOMPARE(m_program->answer({u"--frobnicate"_s}).exitCode, 2); }
};

PELKO_TEST(TestRemoteControl)
#include "tst_RemoteControl.moc"
