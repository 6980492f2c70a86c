#include "Shell/MainViewModel.h"
#include "StartedProgram.h"
#include "support/TestProgram.h"

#include "Theme/PelkoVoice.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
ManualDocumentFile brokenFile()
{
    ManualDocumentFile file;
    file.bytes = "not a library";
    return file;
}

ManualDocumentFile fullDisk()
{
    ManualDocumentFile file;
    file.writeError = u"No space left on device"_s;
    return file;
}
} // namespace

/// The alerts and questions of the main window.
class TestMainAlerts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDocumentAtFiveShowsTheLimitInsteadOfCreating()
    {
        StartedProgram program;
        program.createDocuments(5);
        QVERIFY(!program.appState.showDocLimitNudge());
        program.main.commands()->run(u"newDocument"_s);

        QCOMPARE(program.appState.documents().size(), 5);
        QVERIFY(program.appState.showDocLimitNudge());
        program.main.dismissDocLimitNudge();
        QVERIFY(!program.appState.showDocLimitNudge());
        QVERIFY(!program.appState.showDocLimitNudge());
    }

    void theLimitAlertComesBackWhenItIsDue()
    {
        StartedProgram program;
        program.createDocuments(6);
        program.main.dismissDocLimitNudge();
        program.main.createDocument();

        QVERIFY(program.appState.showDocLimitNudge());
    }

    void startWritingInAFullSpaceShowsTheLimit()
    {
        StartedProgram program;
        program.createDocuments(5);
        program.appState.setOpenDocumentID(std::nullopt);
        program.main.createDocument();

        QCOMPARE(program.main.openDocumentID(), QString());
        QVERIFY(program.appState.showDocLimitNudge());
    }

    void aLoadFailureShowsTheErrorAlertUntilItIsDismissed()
    {
        StartedProgram program(brokenFile());

        QVERIFY(program.main.showError());
        QVERIFY(PelkoVoice::errorPool().contains(program.main.errorTitle()));
        QCOMPARE(program.main.errorText(), u"Failed to load your documents."_s);
        program.main.dismissError();
        QVERIFY(!program.main.showError());
        QVERIFY(!program.appState.lastError());
    }

    void aFailureThatWasDismissedIsNotToldAgainByTheNextPause()
    {
        StartedProgram program(fullDisk());
        program.typeAndPause();
        QVERIFY(program.main.showError());
        program.main.dismissError();
        program.typeAndPause();
        QVERIFY(!program.main.showError());
        QVERIFY(!program.appState.lastError());
        QCOMPARE(program.main.saveError(), u"Save failed: No space left on device"_s);
    }

    void anotherFailureIsTold()
    {
        StartedProgram program(fullDisk());
        program.typeAndPause();
        program.main.dismissError();
        program.file.writeError = u"Input/output error"_s;
        program.typeAndPause();
        QVERIFY(program.main.showError());
        QCOMPARE(program.main.errorText(), u"Save failed: Input/output error"_s);
    }

    void theSameFailureIsToldAgainAfterASaveHasSucceeded()
    {
        StartedProgram program(fullDisk());
        program.typeAndPause();
        program.main.dismissError();
        program.file.writeError.reset();
        program.typeAndPause();
        QCOMPARE(program.main.saveError(), QString());
        program.file.writeError = u"No space left on device"_s;
        program.typeAndPause();
        QVERIFY(program.main.showError());
    }

    void theWriterWhoAsksForASaveIsToldAgain()
    {
        StartedProgram program(fullDisk());
        program.typeAndPause();
        program.main.dismissError();
        program.main.commands()->run(u"save"_s);
        QVERIFY(program.main.showError());
        program.file.writeError.reset();
        program.main.commands()->run(u"save"_s);
        QCOMPARE(program.file.writes(), 1);
        QCOMPARE(program.main.saveError(), QString());
    }

    void theSaveCommandSavesAtOnce()
    {
        StartedProgram program;
        program.createDocuments(1);
        program.main.commands()->run(u"save"_s);
        QCOMPARE(program.file.writes(), 1);
        program.scheduler.advance(10s);
        QCOMPARE(program.file.writes(), 1);
    }

    void theSaveCommandLeavesAFileThatCouldNotBeRead()
    {
        StartedProgram program(brokenFile());
        program.main.commands()->run(u"save"_s);
        QCOMPARE(program.file.writes(), 0);
    }

    void dismissingNoErrorChangesNothing()
    {
        StartedProgram program;
        QSignalSpy changes(&program.main, &MainViewModel::showErrorChanged);
        program.main.dismissError();

        QCOMPARE(changes.count(), 0);
    }

    void twoErrorsInARowHaveDifferentTitles()
    {
        StartedProgram program;
        QString previous;
        for (int i = 0; i < 30; ++i) {
            program.file.writeError = i % 2 == 0 ? u"No space left on device"_s : u"Input/output error"_s;
            program.appState.save();
            QCOMPARE(program.main.errorText(), u"Save failed: "_s + *program.file.writeError);
            QVERIFY(program.main.errorTitle() != previous);
            previous = program.main.errorTitle();
            program.main.dismissError();
        }
    }

    void theWordsOfAnErrorStayWhileItsAlertGoesAway()
    {
        StartedProgram program(brokenFile());
        const QString title = program.main.errorTitle();
        program.main.dismissError();

        QCOMPARE(program.main.errorTitle(), title);
        QCOMPARE(program.main.errorText(), u"Failed to load your documents."_s);
    }

    void aNewErrorReplacesOneNotYetSeen()
    {
        StartedProgram program(brokenFile());
        const QString title = program.main.errorTitle();
        program.file.writeError = u"Read-only file system"_s;
        program.appState.save();

        QVERIFY(program.main.showError());
        QVERIFY(program.main.errorTitle() != title);
        QCOMPARE(program.main.errorText(), u"Save failed: Read-only file system"_s);
    }

    void theAboutCommandShowsTheAboutAlert()
    {
        StartedProgram program;
        program.main.commands()->run(u"about"_s);
        QVERIFY(program.appState.showAbout());

        program.main.dismissAbout();
        QVERIFY(!program.appState.showAbout());
        QVERIFY(!program.appState.showAbout());
    }

    void deletingThroughTheAlertOpensTheNewestRemainingPage()
    {
        StartedProgram program;
        program.createDocuments(3);
        const auto documents = program.appState.documents();
        program.main.requestDelete(program.openID());
        QVERIFY(program.main.showDeleteConfirmation());
        program.main.confirmDelete();

        QVERIFY(!program.main.showDeleteConfirmation());
        QCOMPARE(program.appState.documents(), documents.mid(0, 2));
        QCOMPARE(program.main.openDocumentID(), documents[1].id.toString(QUuid::WithoutBraces));
    }

    void theAlertIsGoneBeforeTheNextPageOpens()
    {
        StartedProgram program;
        program.createDocuments(2);
        bool wasAsking = true;
        connect(&program.main, &MainViewModel::openDocumentIDChanged, this,
                [&] { wasAsking = program.main.showDeleteConfirmation(); });
        program.main.requestDelete(program.openID());
        program.main.confirmDelete();

        QVERIFY(!wasAsking);
    }

    void deletingTheLastPageShowsTheEmptyState()
    {
        StartedProgram program;
        program.createDocuments(1);
        program.main.requestDelete(program.openID());
        program.main.confirmDelete();

        QCOMPARE(program.main.openDocumentID(), QString());
        QVERIFY(PelkoVoice::emptyNotesPool().contains(program.main.emptyMessage()));
    }

    void nahLeavesTheListUnchangedAndForgetsThePage()
    {
        StartedProgram program;
        program.createDocuments(2);
        const auto documents = program.appState.documents();
        program.main.requestDelete(program.openID());
        program.main.cancelDelete();

        QCOMPARE(program.appState.documents(), documents);
        QVERIFY(!program.main.docToDelete());
        program.main.confirmDelete();
        QCOMPARE(program.appState.documents(), documents);
    }

    void theConfirmationNamesThePageAndKeepsItsWords()
    {
        StartedProgram program;
        program.createDocuments(1);
        program.callOpenPage(u"Letter to the printer"_s);
        program.main.requestDelete(program.openID());
        QCOMPARE(program.main.deleteConfirmText(), u"Delete “Letter to the printer” for good?"_s);

        program.main.cancelDelete();
        QCOMPARE(program.main.deleteConfirmText(), u"Delete “Letter to the printer” for good?"_s);
    }

    void theConfirmationNamesALongPageInAFewWords()
    {
        StartedProgram program;
        program.createDocuments(1);
        const QString title = u"x"_s.repeated(10'000) + u"\nmore"_s;
        program.callOpenPage(title);
        program.main.requestDelete(program.openID());

        QCOMPARE(program.main.deleteConfirmText(), u"Delete “%1…” for good?"_s.arg(title.left(120)));
    }

    void theConfirmationNamesASparkByWhatItSays()
    {
        StartedProgram program;
        const auto spark = program.appState.captureSpark(u"A lamp that dims"_s);
        program.main.requestDelete(spark->id.toString());

        QCOMPARE(program.main.deleteConfirmText(), u"Delete “A lamp that dims” for good?"_s);
    }

    void askingToDeleteAnUnknownPageAsksNothing()
    {
        StartedProgram program;
        program.createDocuments(1);
        program.main.requestDelete(QUuid::createUuid().toString());

        QVERIFY(!program.main.showDeleteConfirmation());
        QCOMPARE(program.main.deleteConfirmText(), QString());
    }
};

PELKO_TEST(TestMainAlerts)
#include "tst_MainAlerts.moc"
