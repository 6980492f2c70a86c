#include "Store/AppState.h"
#include "Timers/PomodoroTimer.h"
#include "Timers/PomodoroViewModel.h"
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
struct PomodoroProgram {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    ManualPasteboard pasteboard;
    AppState appState{scheduler, clock, file};
    PomodoroTimer timer{scheduler};
    PomodoroViewModel panel{timer, appState, pasteboard, scheduler};

    void completeSessions(int count)
    {
        for (int i = 0; i < count; ++i) {
            timer.start();
            scheduler.advance(1501s);
            timer.start();
            scheduler.advance(301s);
        }
    }

    void capture(const QString &text)
    {
        clock.time += 1;
        panel.typed(text);
        panel.submitSpark();
    }

    const QList<RecentSpark> &cards() { return static_cast<SparkListModel *>(panel.sparks())->rows(); }
};
} // namespace

class TestPomodoroViewModel : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PomodoroProgram> m_program;

private Q_SLOTS:
    void init() { m_program = std::make_unique<PomodoroProgram>(); }

    void drawsADotForEachOfFourSessions_data()
    {
        QTest::addColumn<int>("sessions");
        QTest::addColumn<int>("dots");
        QTest::addColumn<QString>("more");
        QTest::newRow("none") << 0 << 0 << QString();
        QTest::newRow("one") << 1 << 1 << QString();
        QTest::newRow("four") << 4 << 4 << QString();
        QTest::newRow("five") << 5 << 4 << u"+1"_s;
        QTest::newRow("seven") << 7 << 4 << u"+3"_s;
    }

    void drawsADotForEachOfFourSessions()
    {
        QFETCH(int, sessions);
        m_program->completeSessions(sessions);

        QTEST(m_program->panel.sessionDots(), "dots");
        QTEST(m_program->panel.moreSessions(), "more");
    }

    void theRingFollowsThePhase()
    {
        PomodoroViewModel &panel = m_program->panel;
        QCOMPARE(panel.phase(), u"FOCUS"_s);
        QCOMPARE(panel.progress(), 0.0);
        m_program->timer.start();
        m_program->scheduler.advance(750s);
        QCOMPARE(panel.progress(), 0.5);
        m_program->scheduler.advance(750s);
        QCOMPARE(panel.progress(), 1.0);

        m_program->scheduler.advance(1s);
        QCOMPARE(panel.phase(), u"BREAK"_s);
        QCOMPARE(panel.progress(), 0.0);
        m_program->timer.start();
        m_program->scheduler.advance(150s);
        QCOMPARE(panel.progress(), 0.5);
    }

    void tellsWhatChanges()
    {
        const QSignalSpy time(&m_program->panel, &PomodoroViewModel::timeChanged);
        const QSignalSpy running(&m_program->panel, &PomodoroViewModel::isRunningChanged);
        const QSignalSpy phase(&m_program->panel, &PomodoroViewModel::phaseChanged);
        const QSignalSpy sessions(&m_program->panel, &PomodoroViewModel::sessionsChanged);

        m_program->panel.toggleTimer();
        m_program->scheduler.advance(1501s);

        QCOMPARE(time.count(), 1502);
        QCOMPARE(running.count(), 2);
        QCOMPARE(phase.count(), 1);
        QCOMPARE(sessions.count(), 1);
    }

    void oneButtonStartsAndPauses()
    {
        m_program->panel.toggleTimer();
        QVERIFY(m_program->timer.isRunning());
        m_program->scheduler.advance(10s);
        m_program->panel.toggleTimer();
        QVERIFY(!m_program->timer.isRunning());
        QCOMPARE(m_program->panel.displayTime(), u"24:50"_s);

        m_program->panel.resetTimer();
        QCOMPARE(m_program->panel.displayTime(), u"25:00"_s);
    }

    void blankIsNotSent()
    {
        m_program->panel.typed(u"   "_s);
        QVERIFY(!m_program->panel.canSubmit());

        m_program->panel.submitSpark();

        QCOMPARE(m_program->panel.quickNote(), u"   "_s);
        QCOMPARE(m_program->appState.documents().size(), 0);
    }

    void aSparkIsCaughtTrimmed()
    {
        m_program->panel.typed(u"  two words \n"_s);
        QVERIFY(m_program->panel.canSubmit());

        m_program->panel.submitSpark();

        QCOMPARE(m_program->panel.quickNote(), QString());
        QVERIFY(!m_program->panel.canSubmit());
        QCOMPARE(m_program->cards().size(), 1);
        QCOMPARE(m_program->cards()[0].text, u"two words"_s);
        QCOMPARE(m_program->appState.documents()[0].blocks[0].content, u"two words"_s);
        QCOMPARE(m_program->file.writes(), 1);
    }

    void onlyTheLatestGlows()
    {
        m_program->capture(u"first"_s);
        m_program->capture(u"second"_s);

        QVERIFY(m_program->cards()[0].isNew && m_program->cards()[0].text == u"second"_s);
        QVERIFY(!m_program->cards()[1].isNew);
    }

    void afterItsClosingThePanelStartsFresh()
    {
        const QSignalSpy freshness(&m_program->panel, &PomodoroViewModel::startedFresh);
        const QSignalSpy focus(&m_program->panel, &PomodoroViewModel::captureFocusRequested);
        m_program->timer.start();
        m_program->capture(u"spark"_s);
        m_program->panel.typed(u"half a thought"_s);

        m_program->panel.startFresh();

        QCOMPARE(m_program->panel.quickNote(), QString());
        QVERIFY(!m_program->panel.canSubmit());
        QCOMPARE(m_program->cards().size(), 1);
        QVERIFY(!m_program->cards()[0].isNew);
        QVERIFY(m_program->panel.isRunning());
        QCOMPARE(freshness.count(), 1);
        m_program->scheduler.advance(1s);
        QCOMPARE(focus.count(), 0);
    }

    void sixSparksAreCountedAndFourShown()
    {
        for (const QString &text : {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s})
            m_program->capture(text);

        QCOMPARE(m_program->panel.sparkCount(), 6);
        QStringList shown;
        for (const RecentSpark &card : m_program->cards())
            shown.append(card.text);
        QCOMPARE(shown, QStringList({u"6"_s, u"5"_s, u"4"_s, u"3"_s}));
    }

    void theFieldGetsTheKeyboardSoonAfterThePanelIsShown()
    {
        const QSignalSpy focus(&m_program->panel, &PomodoroViewModel::captureFocusRequested);

        m_program->panel.shown();
        m_program->scheduler.advance(149ms);
        QCOMPARE(focus.count(), 0);
        m_program->scheduler.advance(1ms);

        QCOMPARE(focus.count(), 1);
    }

    void theFieldGetsTheKeyboardBackAfterACapture()
    {
        const QSignalSpy focus(&m_program->panel, &PomodoroViewModel::captureFocusRequested);

        m_program->capture(u"spark"_s);
        m_program->scheduler.advance(49ms);
        QCOMPARE(focus.count(), 0);
        m_program->scheduler.advance(1ms);

        QCOMPARE(focus.count(), 1);
    }

    void copyPutsAllOfItOnThePasteboard()
    {
        const QString book(1'000'000, u'x');
        m_program->capture(book);

        m_program->panel.copySpark(m_program->cards()[0].id.toString());

        QCOMPARE(m_program->pasteboard.item, PasteboardItem{.text = book});
    }

    void copyOfASparkThatIsGoneLeavesThePasteboardAlone()
    {
        m_program->panel.copySpark(QUuid::createUuid().toString());

        QCOMPARE(m_program->pasteboard.item, PasteboardItem());
    }

    void deleteRemovesItAtOnce()
    {
        m_program->capture(u"stays"_s);
        m_program->capture(u"goes"_s);

        m_program->panel.deleteSpark(m_program->cards()[0].id.toString());

        QCOMPARE(m_program->cards().size(), 1);
        QCOMPARE(m_program->cards()[0].text, u"stays"_s);
        QCOMPARE(m_program->panel.sparkCount(), 1);
        QCOMPARE(m_program->appState.documents().size(), 1);
    }

    void aSparkCaughtElsewhereIsShown()
    {
        const QSignalSpy count(&m_program->panel, &PomodoroViewModel::sparkCountChanged);

        m_program->appState.captureSpark(u"from a key binding"_s);

        QCOMPARE(count.count(), 1);
        QCOMPARE(m_program->cards()[0].text, u"from a key binding"_s);
        QVERIFY(!m_program->cards()[0].isNew);
    }

    void sparkStaysInTheStoreWhenItsSaveFails()
    {
        m_program->file.writeError = u"No space left on device"_s;

        m_program->capture(u"kept"_s);

        QCOMPARE(m_program->cards()[0].text, u"kept"_s);
        QVERIFY(m_program->appState.lastError());
    }

    void failedSparkStaysInTheFieldWithItsError()
    {
        m_program->file.writeError = u"No space left on device"_s;
        const QSignalSpy told(&m_program->panel, &PomodoroViewModel::captureErrorChanged);
        m_program->capture(u" kept "_s);
        QCOMPARE(m_program->panel.quickNote(), u" kept "_s);
        QCOMPARE(m_program->panel.captureError(), u"Save failed: No space left on device"_s);
        QCOMPARE(told.count(), 1);
    }

    void returnAfterAFailedSaveSavesTheSparkOnce()
    {
        m_program->file.writeError = u"No space left on device"_s;
        m_program->capture(u"kept"_s);
        m_program->panel.submitSpark();
        QCOMPARE(m_program->panel.quickNote(), u"kept"_s);
        m_program->file.writeError.reset();
        m_program->panel.submitSpark();
        QCOMPARE(m_program->panel.quickNote(), QString());
        QCOMPARE(m_program->panel.captureError(), QString());
        QCOMPARE(m_program->panel.sparkCount(), 1);
        QCOMPARE(m_program->file.writes(), 1);
    }

    void theFieldIsClearedWhenTheSparkIsSavedByOtherMeans()
    {
        m_program->file.writeError = u"No space left on device"_s;
        m_program->capture(u"kept"_s);
        m_program->file.writeError.reset();
        m_program->appState.saveChanges();
        QCOMPARE(m_program->panel.quickNote(), QString());
        QCOMPARE(m_program->panel.captureError(), QString());
    }

    void anotherThoughtBehindOneThatFailedIsASparkOfItsOwn()
    {
        m_program->file.writeError = u"No space left on device"_s;
        m_program->capture(u"first"_s);
        m_program->panel.typed(u"second"_s);
        QCOMPARE(m_program->panel.captureError(), QString());
        m_program->file.writeError.reset();
        m_program->appState.saveChanges();
        QCOMPARE(m_program->panel.quickNote(), u"second"_s);
        m_program->panel.submitSpark();
        QCOMPARE(m_program->panel.sparkCount(), 2);
        QCOMPARE(m_program->panel.quickNote(), QString());
    }

    void theNextOpeningKnowsNothingOfAFailedSpark()
    {
        m_program->file.writeError = u"No space left on device"_s;
        m_program->capture(u"kept"_s);
        m_program->panel.startFresh();
        QCOMPARE(m_program->panel.quickNote(), QString());
        QCOMPARE(m_program->panel.captureError(), QString());
        m_program->capture(u"kept"_s);
        QCOMPARE(m_program->panel.sparkCount(), 2);
    }
};

PELKO_TEST(TestPomodoroViewModel)
#include "tst_PomodoroViewModel.moc"
