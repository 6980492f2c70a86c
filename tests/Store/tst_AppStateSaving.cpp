#include "Store/AppState.h"
#include "support/DataFileText.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TestAppStateSaving : public QObject
{
    Q_OBJECT

    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    std::unique_ptr<AppState> state;

    void edit() { state->updateDocument(state->documents().first()); }

    /// Types eight keys a second without a pause.
    void typeFor(std::chrono::milliseconds duration)
    {
        for (const auto end = scheduler.now() + duration; scheduler.now() < end; scheduler.advance(125ms))
            edit();
    }

    void savesTake(std::chrono::milliseconds duration)
    {
        file.whileWriting = [this, duration] { scheduler.block(duration); };
    }

private Q_SLOTS:
    void init()
    {
        scheduler = {};
        file = {};
        file.bytes = dataFileText({PelkoDocument(Space::work, 1)});
        state = std::make_unique<AppState>(scheduler, clock, file);
    }

    void threeUpdatesInARowAreSavedOnceHalfASecondAfterTheLast()
    {
        for (int update = 0; update < 3; ++update) {
            scheduler.advance(200ms);
            edit();
        }
        scheduler.advance(499ms);
        QCOMPARE(file.writes(), 0);
        scheduler.advance(1ms);
        QCOMPARE(file.writes(), 1);
        scheduler.advance(10s);
        QCOMPARE(file.writes(), 1);
    }

    void steadyTypingIsSavedTwoSecondsAfterTheFirstUnsavedChange()
    {
        edit();
        for (int update = 0; update < 19; ++update) {
            scheduler.advance(100ms);
            edit();
        }
        scheduler.advance(99ms);
        QCOMPARE(file.writes(), 0);
        scheduler.advance(1ms);
        QCOMPARE(file.writes(), 1);
        QCOMPARE(readDocuments(*file.bytes), state->documents());
    }

    void typingForTwentySecondsIsSavedEveryTwo()
    {
        typeFor(20s);
        QCOMPARE(file.writes(), 10);
    }

    void theSaveAfterTwoSecondsLeavesNothingForTheOneAfterThePause()
    {
        typeFor(2s);
        QCOMPARE(file.writes(), 1);
        scheduler.advance(10s);
        QCOMPARE(file.writes(), 1);
    }

    void aSaveAfterAPauseStartsTheTwoSecondsAnew()
    {
        typeFor(1s);
        scheduler.advance(500ms);
        QCOMPARE(file.writes(), 1);
        typeFor(1875ms);
        QCOMPARE(file.writes(), 1);
    }

    void slowSavesTakeATenthOfTheTimeAtMost()
    {
        savesTake(1s);
        const auto start = scheduler.now();
        typeFor(100s);
        const auto passed = scheduler.now() - start;
        QVERIFY(file.writes() >= 9);
        QVERIFY(file.writes() * 1s * 10 <= passed + 10s); // the first came after two seconds
    }

    void aFastSaveBringsTheTwoSecondsBack()
    {
        savesTake(1s);
        state->save();
        savesTake(0s);
        state->save();
        typeFor(2s);
        QCOMPARE(file.writes(), 3);
    }

    void aFailedSaveIsNotTriedAgainBeforeTheNextChange()
    {
        file.writeError = u"No space left on device"_s;
        int attempts = 0;
        file.whileWriting = [&attempts] { ++attempts; };
        typeFor(2s);
        QCOMPARE(attempts, 1);
        scheduler.advance(1h);
        QCOMPARE(attempts, 1);
        typeFor(2s);
        QCOMPARE(attempts, 2);
    }

    void changesAreSavedAheadOfTimeWhenAskedFor()
    {
        edit();
        state->saveChanges();
        QCOMPARE(file.writes(), 1);
        state->saveChanges();
        QCOMPARE(file.writes(), 1);
        scheduler.advance(10s);
        QCOMPARE(file.writes(), 1);
    }

    void aFailedSaveIsKnownUntilOneSucceeds()
    {
        QSignalSpy changed(state.get(), &AppState::lastSaveErrorChanged);
        file.writeError = u"No space left on device"_s;
        state->save();
        state->save();
        state->clearLastError();
        QCOMPARE(state->lastSaveError(), u"Save failed: No space left on device"_s);
        QCOMPARE(changed.size(), 1);
        file.writeError.reset();
        state->saveChanges();
        QCOMPARE(state->lastSaveError(), std::nullopt);
        QCOMPARE(changed.size(), 2);
    }

    void aFileThatIsGoneIsWrittenAgain()
    {
        file.bytes.reset();
        state->adoptFile();
        state->saveChanges();
        QCOMPARE(readDocuments(file.bytes.value()), state->documents());
    }

    void documentsOfAnotherProgramAreAddedToTheListAndTheFile()
    {
        const PelkoDocument own = state->documents().first();
        const PelkoDocument other(Space::ideas, 2);
        file.bytes = dataFileText({other});
        QSignalSpy changed(state.get(), &AppState::documentsChanged);
        state->adoptFile();
        QCOMPARE(state->documents(), (QList{own, other}));
        QCOMPARE(changed.size(), 1);
        state->saveChanges();
        QCOMPARE(readDocuments(*file.bytes), state->documents());
    }

    void anOlderVersionInTheFileIsReplacedByTheOneInTheList()
    {
        edit();
        state->save();
        const QList<PelkoDocument> documents = state->documents();
        PelkoDocument older = documents.first();
        older.updatedAt = 1;
        file.bytes = dataFileText({older});
        state->adoptFile();
        QCOMPARE(state->documents(), documents);
        state->saveChanges();
        QCOMPARE(readDocuments(*file.bytes), documents);
    }

    void aFileOfTheSameDocumentsLeavesNothingToSave()
    {
        state->adoptFile();
        state->saveChanges();
        QCOMPARE(file.writes(), 0);
    }

    void aForeignFileThatCannotBeReadIsLeftUntilTheNextSave()
    {
        file.bytes = "what cannot be read"_ba;
        state->adoptFile();
        state->saveChanges();
        QCOMPARE(file.writes(), 0);
    }

    void aStoreWithoutChangesSavesNothing()
    {
        file.bytes = "what cannot be read"_ba;
        AppState unread(scheduler, clock, file);
        unread.saveChanges();
        QCOMPARE(file.bytes, "what cannot be read"_ba);
    }

    void changesThatCouldNotBeSavedAreTriedAgain()
    {
        file.writeError = u"No space left on device"_s;
        state->captureSpark(u"kept"_s);
        file.writeError.reset();
        state->saveChanges();
        QCOMPARE(file.writes(), 1);
        QCOMPARE(state->lastSaveError(), std::nullopt);
    }

    void aStoreThatDiesTakesItsPendingSaveAlong()
    {
        edit();
        state.reset();
        scheduler.advance(10s);
        QCOMPARE(file.writes(), 0);
    }

    void savingWritesEveryDocumentAtOnce()
    {
        state->createDocument(Space::ideas);
        state->save();
        QCOMPARE(file.writes(), 1);
        QCOMPARE(readDocuments(*file.bytes), state->documents());
    }

    void aPendingSaveStillComesAfterOneByHand()
    {
        edit();
        state->save();
        scheduler.advance(500ms);
        QCOMPARE(file.writes(), 2);
    }

    void theIndicatorShowsForOneAndAHalfSeconds()
    {
        QSignalSpy changed(state.get(), &AppState::showSavedIndicatorChanged);
        state->save();
        QVERIFY(state->showSavedIndicator());
        scheduler.advance(1499ms);
        QVERIFY(state->showSavedIndicator());
        scheduler.advance(1ms);
        QVERIFY(!state->showSavedIndicator());
        QCOMPARE(changed.size(), 2);
    }

    void twoSavesKeepTheIndicatorUntilOneAndAHalfSecondsAfterTheSecond()
    {
        QSignalSpy changed(state.get(), &AppState::showSavedIndicatorChanged);
        state->save();
        scheduler.advance(1s);
        state->save();
        scheduler.advance(1499ms);
        QVERIFY(state->showSavedIndicator());
        scheduler.advance(1ms);
        QVERIFY(!state->showSavedIndicator());
        QCOMPARE(changed.size(), 2);
    }

    void aFailedSaveTellsTheSystemsWordsAndKeepsTheDocuments()
    {
        file.writeError = u"No space left on device"_s;
        const QByteArray before = *file.bytes;
        edit();
        const QList<PelkoDocument> documents = state->documents();
        scheduler.advance(500ms);
        QCOMPARE(state->lastError(), u"Save failed: No space left on device"_s);
        QCOMPARE(state->documents(), documents);
        QCOMPARE(*file.bytes, before);
        QVERIFY(!state->showSavedIndicator());
        scheduler.advance(1h);
        QCOMPARE(*file.bytes, before); // nothing is tried again
    }

    void aSaveThatMayNotLastIsToldOnceTheIndicatorHasGone()
    {
        file.confirmError = u"Input/output error"_s;
        edit();
        scheduler.advance(500ms);
        QVERIFY(state->showSavedIndicator());
        QCOMPARE(state->lastError(), std::nullopt);
        scheduler.advance(1500ms);
        QCOMPARE(state->lastError(), u"Save failed: Input/output error"_s);
        QCOMPARE(state->lastSaveError(), state->lastError());
        QVERIFY(!state->showSavedIndicator());
        file.confirmError.reset();
        const int writes = file.writes();
        state->saveChanges();
        QCOMPARE(file.writes(), writes + 1);
        QCOMPARE(state->lastSaveError(), std::nullopt);
    }

    void aSaveThatMayNotLastIsToldByTheNext()
    {
        file.confirmError = u"Input/output error"_s;
        state->save();
        state->save();
        QCOMPARE(file.writes(), 2);
        QCOMPARE(state->lastError(), u"Save failed: Input/output error"_s);
        QCOMPARE(state->lastSaveError(), std::nullopt); // the second may still last
    }

    void aSaveThatLastsIsConfirmedInSilence()
    {
        state->save();
        state->confirmSave();
        QCOMPARE(state->lastError(), std::nullopt);
        QVERIFY(state->showSavedIndicator());
    }

    void aFailedSaveLeavesTheIndicatorOfTheLastAlone()
    {
        state->save();
        scheduler.advance(1s);
        file.writeError = u"No space left on device"_s;
        state->save();
        QVERIFY(state->showSavedIndicator());
        scheduler.advance(500ms);
        QVERIFY(!state->showSavedIndicator());
    }

    void aSaveThatSucceedsLeavesAnUnseenError()
    {
        file.writeError = u"No space left on device"_s;
        state->save();
        file.writeError.reset();
        state->save();
        QCOMPARE(file.writes(), 1);
        QCOMPARE(state->lastError(), u"Save failed: No space left on device"_s);
    }

    void aNewErrorReplacesAnUnseenOneUntilItIsDismissed()
    {
        QSignalSpy changed(state.get(), &AppState::lastErrorChanged);
        file.writeError = u"first"_s;
        state->save();
        file.writeError = u"second"_s;
        state->save();
        state->save();
        QCOMPARE(state->lastError(), u"Save failed: second"_s);
        QCOMPARE(changed.size(), 2);
        state->clearLastError();
        QCOMPARE(state->lastError(), std::nullopt);
        QCOMPARE(changed.size(), 3);
    }

    void aDateThatIsNotANumberCannotBeSaved()
    {
        clock.time = std::numeric_limits<double>::quiet_NaN();
        edit();
        const QByteArray before = *file.bytes;
        state->save();
        QCOMPARE(state->lastError(), u"Save failed: A document holds a date that is not a number."_s);
        QCOMPARE(*file.bytes, before);
        clock = {};
        edit();
        state->save();
        QCOMPARE(readDocuments(*file.bytes), state->documents());
    }
};

PELKO_TEST(TestAppStateSaving)
#include "tst_AppStateSaving.moc"
