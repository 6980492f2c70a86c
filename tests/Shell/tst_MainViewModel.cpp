#include "Shell/MainViewModel.h"
#include "support/TestProgram.h"

#include "Editor/EditorViewModel.h"
#include "Store/AppState.h"
#include "Theme/PelkoVoice.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
/// A program that has started on a given data file.
struct StartedProgram {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    ManualDesktop desktop;
    AppState appState;
    MainViewModel main;

    explicit StartedProgram(const ManualDocumentFile &start = {})
        : file(start)
        , appState(scheduler, clock, file)
        , main(appState, clock, desktop.services(scheduler))
    {
    }

    /// Creates pages one second apart, so that the order of their ages is plain.
    void createDocuments(int count)
    {
        for (int i = 0; i < count; ++i) {
            clock.time += 1;
            main.createDocument();
        }
    }

    QString openID() const { return appState.openDocumentID()->toString(QUuid::WithoutBraces); }
};

ManualDocumentFile brokenFile()
{
    ManualDocumentFile file;
    file.bytes = "not a library";
    return file;
}

PelkoDocument titled(PelkoDocument document, const QString &title)
{
    document.blocks.first().content = title;
    return document;
}
} // namespace

class TestMainViewModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheEmptyStateWhenThereAreNoDocuments()
    {
        const StartedProgram program;

        QCOMPARE(program.main.openDocumentID(), QString());
        QCOMPARE(program.main.windowTitle(), u"Pelko"_s);
        QVERIFY(PelkoVoice::emptyNotesPool().contains(program.main.emptyMessage()));
    }

    void startWritingCreatesAPageInWorkAndOpensIt()
    {
        StartedProgram program;
        program.main.createDocument();

        QCOMPARE(program.appState.documents().size(), 1);
        QCOMPARE(program.appState.documents().first().space, Space::work);
        QCOMPARE(program.main.openDocumentID(), program.openID());
    }

    void newDocumentAtFiveShowsTheLimitInsteadOfCreating()
    {
        StartedProgram program;
        program.createDocuments(5);
        QVERIFY(!program.main.showDocLimitNudge());
        program.main.commands()->run(u"newDocument"_s);

        QCOMPARE(program.appState.documents().size(), 5);
        QVERIFY(program.main.showDocLimitNudge());
        program.main.dismissDocLimitNudge();
        QVERIFY(!program.main.showDocLimitNudge());
        QVERIFY(!program.appState.showDocLimitNudge());
    }

    void theLimitAlertComesBackWhenItIsDue()
    {
        StartedProgram program;
        program.createDocuments(6);
        program.main.dismissDocLimitNudge();
        program.main.createDocument();

        QVERIFY(program.main.showDocLimitNudge());
    }

    void startWritingInAFullSpaceShowsTheLimit()
    {
        StartedProgram program;
        program.createDocuments(5);
        program.appState.setOpenDocumentID(std::nullopt);
        program.main.createDocument();

        QCOMPARE(program.main.openDocumentID(), QString());
        QVERIFY(program.main.showDocLimitNudge());
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
        program.file.writeError = u"No space left on device"_s;
        QString previous;
        for (int i = 0; i < 30; ++i) {
            program.appState.save();
            QCOMPARE(program.main.errorText(), u"Save failed: No space left on device"_s);
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
        QVERIFY(program.main.showAbout());

        program.main.dismissAbout();
        QVERIFY(!program.main.showAbout());
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
        program.appState.updateDocument(titled(*program.appState.openDocument(), u"Letter to the printer"_s));
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
        program.appState.updateDocument(titled(*program.appState.openDocument(), title));
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

    void dismissingTheNavigationLowersItsFlag()
    {
        StartedProgram program;
        program.appState.setShowNav(true);
        QVERIFY(program.main.showNav());
        program.main.dismissNav();

        QVERIFY(!program.main.showNav());
        QVERIFY(!program.appState.showNav());
    }

    void theNavigationOpensAndClosesWithOneKey()
    {
        StartedProgram program;
        program.main.toggleNav();
        QVERIFY(program.main.showNav());
        program.main.toggleNav();
        QVERIFY(!program.main.showNav());
    }

    void aNewPageClosesTheNavigation()
    {
        StartedProgram program;
        program.appState.setShowNav(true);
        program.main.createDocument();

        QVERIFY(!program.main.showNav());
    }

    void theNavigationStaysWhereASpaceIsFull()
    {
        StartedProgram program;
        program.createDocuments(5);
        program.appState.setShowNav(true);
        program.main.createDocument();

        QVERIFY(program.main.showDocLimitNudge());
        QVERIFY(program.main.showNav());
    }

    void theTickIsShownAfterASave()
    {
        StartedProgram program;
        QSignalSpy changes(&program.main, &MainViewModel::showSavedIndicatorChanged);
        program.appState.save();
        QVERIFY(program.main.showSavedIndicator());
        program.scheduler.advance(1500ms);

        QVERIFY(!program.main.showSavedIndicator());
        QCOMPARE(changes.count(), 2);
    }

    void focusModeShowsNothingButThePage()
    {
        StartedProgram program;
        program.createDocuments(1);
        program.appState.setFocusMode(true);
        QVERIFY(program.main.isFocused());
        QVERIFY(program.main.leaveFocusMode());
        QVERIFY(!program.main.isFocused());
        QVERIFY(!program.appState.focusMode());
        QVERIFY(!program.main.leaveFocusMode());
    }

    void withoutAPageFocusModeWaits()
    {
        StartedProgram program;
        program.appState.setFocusMode(true);
        QVERIFY(!program.main.isFocused());
        program.createDocuments(1);
        QVERIFY(program.main.isFocused());
        program.appState.setOpenDocumentID(std::nullopt);
        QVERIFY(!program.main.isFocused());
        program.createDocuments(1);
        QVERIFY(program.main.isFocused());
    }

    void theGreetingIsOneLineForAsLongAsTheWindowIsOpen()
    {
        StartedProgram program;
        const QString greeting = program.main.topMessage();
        program.createDocuments(2);

        QVERIFY(PelkoVoice::greetingPool().contains(greeting));
        QCOMPARE(program.main.topMessage(), greeting);
    }

    void aSecondWindowNeverStartsWithTheGreetingBeforeIt()
    {
        StartedProgram program;
        QString previous = program.main.topMessage();
        for (int i = 0; i < 50; ++i) {
            const MainViewModel next(program.appState, program.clock,
                                     program.desktop.services(program.scheduler));
            QVERIFY(next.topMessage() != previous);
            previous = next.topMessage();
        }
    }

    void aWindowThatIsOpenedAgainGreetsWithAnotherLine()
    {
        StartedProgram program;
        QSignalSpy changes(&program.main, &MainViewModel::topMessageChanged);
        for (int i = 1; i <= 30; ++i) {
            const QString before = program.main.topMessage();
            program.main.greet();
            QVERIFY(program.main.topMessage() != before);
            QVERIFY(PelkoVoice::greetingPool().contains(program.main.topMessage()));
            QCOMPARE(changes.count(), i);
        }
    }

    void theEmptyMessageIsPickedAnewEachTimeTheEmptyStateComesUp()
    {
        StartedProgram program;
        program.createDocuments(1);
        const std::optional<QUuid> page = program.appState.openDocumentID();
        QString previous = program.main.emptyMessage();
        for (int i = 0; i < 30; ++i) {
            program.appState.setOpenDocumentID(std::nullopt);
            QVERIFY(program.main.emptyMessage() != previous);
            previous = program.main.emptyMessage();
            program.appState.setOpenDocumentID(page);
            QCOMPARE(program.main.emptyMessage(), previous);
        }
    }

    void theNewMessageIsThereBeforeTheEmptyStateIsShown()
    {
        StartedProgram program;
        program.createDocuments(1);
        const QString before = program.main.emptyMessage();
        QString seen;
        connect(&program.main, &MainViewModel::openDocumentIDChanged, this,
                [&] { seen = program.main.emptyMessage(); });
        program.appState.setOpenDocumentID(std::nullopt);

        QVERIFY(!seen.isEmpty());
        QVERIFY(seen != before);
    }

    void anOpenIdWithoutItsDocumentIsTheEmptyState()
    {
        StartedProgram program;
        program.createDocuments(1);
        program.appState.setOpenDocumentID(QUuid::createUuid());

        QCOMPARE(program.main.openDocumentID(), QString());
    }

    void theWindowIsNamedAfterThePage()
    {
        StartedProgram program;
        program.createDocuments(1);
        QCOMPARE(program.main.windowTitle(), u"Untitled – Pelko"_s);
        program.appState.updateDocument(titled(*program.appState.openDocument(), u"First hour"_s));

        QCOMPARE(program.main.windowTitle(), u"First hour – Pelko"_s);
    }

    void editingAPageDoesNotReopenIt()
    {
        StartedProgram program;
        program.createDocuments(1);
        QSignalSpy opened(&program.main, &MainViewModel::openDocumentIDChanged);
        program.appState.updateDocument(titled(*program.appState.openDocument(), u"First hour"_s));

        QCOMPARE(opened.count(), 0);
    }

    void anEditorBelongsToTheDocumentItWasOpenedFor()
    {
        StartedProgram program;
        program.createDocuments(2);
        const std::unique_ptr<EditorViewModel> editor(program.main.openEditor(program.openID()));

        QCOMPARE(editor->documentID(), program.openID());
    }
};

PELKO_TEST(TestMainViewModel)
#include "tst_MainViewModel.moc"
