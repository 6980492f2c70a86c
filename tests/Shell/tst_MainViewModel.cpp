#include "Shell/MainViewModel.h"
#include "StartedProgram.h"
#include "support/TestProgram.h"

#include "Editor/EditorViewModel.h"
#include "Theme/PelkoVoice.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

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

    void dismissingTheNavigationLowersItsFlag()
    {
        StartedProgram program;
        program.appState.setShowNav(true);
        QVERIFY(program.appState.showNav());
        program.main.dismissNav();

        QVERIFY(!program.appState.showNav());
        QVERIFY(!program.appState.showNav());
    }

    void theNavigationOpensAndClosesWithOneKey()
    {
        StartedProgram program;
        program.main.toggleNav();
        QVERIFY(program.appState.showNav());
        program.main.toggleNav();
        QVERIFY(!program.appState.showNav());
    }

    void aNewPageClosesTheNavigation()
    {
        StartedProgram program;
        program.appState.setShowNav(true);
        program.main.createDocument();

        QVERIFY(!program.appState.showNav());
    }

    void theNavigationStaysWhereASpaceIsFull()
    {
        StartedProgram program;
        program.createDocuments(5);
        program.appState.setShowNav(true);
        program.main.createDocument();

        QVERIFY(program.appState.showDocLimitNudge());
        QVERIFY(program.appState.showNav());
    }

    void theTickIsShownAfterASave()
    {
        StartedProgram program;
        QSignalSpy changes(&program.appState, &AppState::showSavedIndicatorChanged);
        program.appState.save();
        QVERIFY(program.appState.showSavedIndicator());
        program.scheduler.advance(1500ms);

        QVERIFY(!program.appState.showSavedIndicator());
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

    void theEmptyMessageStaysWhileItIsRead()
    {
        StartedProgram program;
        const QSignalSpy changes(&program.main, &MainViewModel::emptyMessageChanged);
        for (int i = 0; i < 5; ++i)
            program.appState.captureSpark(u"from a key binding"_s);
        QCOMPARE(changes.count(), 0);
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
        program.callOpenPage(u"First hour"_s);

        QCOMPARE(program.main.windowTitle(), u"First hour – Pelko"_s);
    }

    void editingAPageDoesNotReopenIt()
    {
        StartedProgram program;
        program.createDocuments(1);
        QSignalSpy opened(&program.main, &MainViewModel::openDocumentIDChanged);
        program.callOpenPage(u"First hour"_s);

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
