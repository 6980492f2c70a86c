#include "Store/AppState.h"
#include "Timers/PomodoroTimer.h"
#include "Timers/TimersViewModel.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualPasteboard.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
struct TimersProgram {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    ManualPasteboard pasteboard;
    AppState appState{scheduler, clock, file};
    PomodoroTimer timer{scheduler};
    FlowTimer flow{scheduler};
    TimersViewModel timers{timer, flow, appState, pasteboard, scheduler};
    QSignalSpy opened{&timers, &TimersViewModel::panelOpened};
    QSignalSpy closed{&timers, &TimersViewModel::panelClosed};
};
constexpr QRect label(50, 10, 60, 26);
} // namespace

class TestTimersViewModel : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TimersProgram> m_program;

private Q_SLOTS:
    void init() { m_program = std::make_unique<TimersProgram>(); }

    void theLabelTellsTheTimeOnlyWhileItRuns()
    {
        TimersViewModel &timers = m_program->timers;
        QCOMPARE(timers.labelText(), QString());
        QCOMPARE(timers.labelName(), u"Timer"_s);

        m_program->timer.start();
        QCOMPARE(timers.labelText(), u"25:00"_s);
        m_program->scheduler.advance(std::chrono::seconds(1500 - 12 * 60 - 34));
        QCOMPARE(timers.labelText(), u"12:34"_s);
        QCOMPARE(timers.labelName(), u"Timer, 12:34 of focus left"_s);

        m_program->timer.pause();
        QCOMPARE(timers.labelText(), QString());
        m_program->timer.start();
        QCOMPARE(timers.labelText(), u"12:34"_s);
    }

    void theLabelEmptiesWhenAPhaseIsComplete()
    {
        m_program->timer.start();
        m_program->scheduler.advance(1501s);
        QCOMPARE(m_program->timers.labelText(), QString());

        m_program->timer.start();
        QCOMPARE(m_program->timers.labelName(), u"Timer, 05:00 of break left"_s);
    }

    void theLabelAnnouncesEachSecond()
    {
        const QSignalSpy text(&m_program->timers, &TimersViewModel::labelTextChanged);
        m_program->timer.start();
        m_program->scheduler.advance(3s);
        QCOMPARE(text.count(), 4);
    }

    void aClickOpensThePanelAndAnotherClosesIt()
    {
        m_program->timers.togglePanel(label);
        QVERIFY(m_program->timers.isPanelOpen());
        QCOMPARE(m_program->opened.count(), 1);
        QCOMPARE(m_program->opened[0][0].toRect(), label);

        m_program->timers.togglePanel(label);
        QVERIFY(!m_program->timers.isPanelOpen());
        QCOMPARE(m_program->closed.count(), 1);
    }

    void theClickWhosePressTookTheKeyboardDoesNotOpenItAgain()
    {
        m_program->timers.togglePanel(label);
        m_program->timers.leavePanel();
        QCOMPARE(m_program->closed.count(), 1);

        m_program->timers.togglePanel(label);
        QVERIFY(!m_program->timers.isPanelOpen());

        m_program->scheduler.advance(300ms);
        m_program->timers.togglePanel(label);
        QVERIFY(m_program->timers.isPanelOpen());
    }

    void aPanelWithAHalfTypedSparkStaysWhenTheKeyboardGoesElsewhere()
    {
        m_program->timers.togglePanel(label);
        m_program->timers.panel().typed(u"half a thou"_s);
        m_program->timers.leavePanel();
        QVERIFY(m_program->timers.isPanelOpen());
        QCOMPARE(m_program->timers.panel().quickNote(), u"half a thou"_s);

        m_program->timers.togglePanel(label);
        QVERIFY(!m_program->timers.isPanelOpen());
    }

    void aPanelOfBlanksGoesWithTheKeyboard()
    {
        m_program->timers.togglePanel(label);
        m_program->timers.panel().typed(u"  "_s);
        m_program->timers.leavePanel();
        QVERIFY(!m_program->timers.isPanelOpen());
    }

    void closedByItselfItOpensAgainAtOnce()
    {
        m_program->timers.togglePanel(label);
        m_program->timers.closePanel();
        m_program->timers.togglePanel(label);

        QVERIFY(m_program->timers.isPanelOpen());
    }

    void closingWhatIsClosedSaysNothing()
    {
        m_program->timers.closePanel();
        m_program->timers.leavePanel();
        m_program->timers.togglePanel(label);

        QCOMPARE(m_program->closed.count(), 0);
        QVERIFY(m_program->timers.isPanelOpen());
    }
};

PELKO_TEST(TestTimersViewModel)
#include "tst_TimersViewModel.moc"
