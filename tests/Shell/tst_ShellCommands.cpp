#include "Shell/ShellCommands.h"
#include "support/TestProgram.h"

#include "Navigation/NavigationViewModel.h"
#include "Store/AppState.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{
struct CommandedProgram {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    AppState appState{scheduler, clock, file};
    NavigationViewModel navigation{appState, clock};
    ShellCommands commands{appState, navigation};

    bool isTicked(const QString &id) { return commands.list()->isTicked(id); }
    bool isEnabled(const QString &id) { return commands.list()->isEnabled(id); }
};

/// Counts the effects of commands.
class Echo
{
public:
    explicit Echo(CommandedProgram &program)
    {
        for (const auto asked : {&ShellCommands::menuRequested, &ShellCommands::pomodoroRequested,
                                 &ShellCommands::fullScreenToggled, &ShellCommands::quitRequested,
                                 &ShellCommands::saveRequested, &ShellCommands::showShortcutsChanged})
            QObject::connect(&program.commands, asked, &m_context, [this] { ++count; });
        QObject::connect(&program.commands, &ShellCommands::editingRequested, &m_context,
                         [this] { ++count; });
        for (const auto changed :
             {&AppState::documentsChanged, &AppState::currentSpaceChanged, &AppState::focusModeChanged,
              &AppState::showAboutChanged, &AppState::showNavChanged, &AppState::showTasksPanelChanged})
            QObject::connect(&program.appState, changed, &m_context, [this] { ++count; });
    }

    int count = 0;

private:
    QObject m_context;
};
} // namespace

class TestShellCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEditingCommandIsForWhateverHasTheKeyboard()
    {
        CommandedProgram program;
        const QSignalSpy asked(&program.commands, &ShellCommands::editingRequested);

        program.commands.run(u"selectAll"_s);

        QCOMPARE(asked, (QList<QVariantList>{{u"selectAll"_s}}));
    }

    void everyCommandDoesOneThing_data()
    {
        QTest::addColumn<QString>("id");
        for (const MenuCommand &command : MenuCommand::all()) {
            if (command.group != CommandGroup::exports) // bound by ExportViewModel
                QTest::newRow(qPrintable(command.id)) << command.id;
        }
    }

    void everyCommandDoesOneThing()
    {
        QFETCH(QString, id);
        CommandedProgram program;
        program.appState.createDocument(Space::work);
        // The command of the current space has no effect.
        if (id == u"work"_s)
            program.commands.run(u"journal"_s);
        const Echo echo(program);
        program.commands.run(id);

        QCOMPARE(echo.count, 1);
    }

    void anUnknownCommandDoesNothing()
    {
        CommandedProgram program;
        const Echo echo(program);
        program.commands.run(u"paintItBlack"_s);

        QCOMPARE(echo.count, 0);
    }

    void tasksAreThereInTheWorkSpaceOnly()
    {
        CommandedProgram program;
        QVERIFY(program.isEnabled(u"tasks"_s) && !program.isTicked(u"tasks"_s));
        program.commands.run(u"tasks"_s);
        QVERIFY(program.appState.showTasksPanel() && program.isTicked(u"tasks"_s));
        program.commands.run(u"journal"_s);
        QVERIFY(!program.isEnabled(u"tasks"_s) && !program.isTicked(u"tasks"_s));
        program.commands.run(u"tasks"_s);
        QVERIFY(program.appState.showTasksPanel());
    }

    void theNavigationComesAndGoes()
    {
        CommandedProgram program;
        program.commands.run(u"goTo"_s);
        QVERIFY(program.appState.showNav());
        program.commands.run(u"goTo"_s);
        QVERIFY(!program.appState.showNav());
    }

    void newDocumentIsMadeInTheCurrentSpace()
    {
        CommandedProgram program;
        program.commands.run(u"journal"_s);
        program.commands.run(u"newDocument"_s);

        QCOMPARE(program.appState.documents().size(), 1);
        QCOMPARE(program.appState.documents().first().space, Space::journal);
    }

    void newDocumentAtFiveShowsTheLimitInsteadOfCreating()
    {
        CommandedProgram program;
        for (int i = 0; i < 6; ++i)
            program.commands.run(u"newDocument"_s);

        QCOMPARE(program.appState.documents().size(), 5);
        QVERIFY(program.appState.showDocLimitNudge());
    }

    void aNewDocumentEndsTheNavigationUnlessThereIsNoPlace()
    {
        CommandedProgram program;
        for (int i = 0; i < 5; ++i) {
            program.appState.setShowNav(true);
            program.commands.run(u"newDocument"_s);
            QVERIFY(!program.appState.showNav());
        }
        program.appState.setShowNav(true);
        program.commands.run(u"newDocument"_s);
        QVERIFY(program.appState.showNav());
    }

    void focusModeEndsTheNavigation()
    {
        CommandedProgram program;
        program.appState.createDocument(Space::work);
        program.appState.setShowNav(true);
        program.commands.run(u"focusMode"_s);
        QVERIFY(program.appState.focusMode());
        QVERIFY(!program.appState.showNav());
    }

    void aSpaceOpensItsNewestPage()
    {
        CommandedProgram program;
        program.appState.createDocument(Space::ideas);
        const auto idea = program.appState.openDocumentID();
        program.appState.createDocument(Space::work);
        program.commands.run(u"ideas"_s);

        QCOMPARE(program.appState.currentSpace(), Space::ideas);
        QCOMPARE(program.appState.openDocumentID(), idea);
    }

    void theCurrentSpaceIsTicked()
    {
        CommandedProgram program;
        for (const QString &current : {u"journal"_s, u"ideas"_s, u"work"_s}) {
            program.commands.run(current);
            for (const QString &space : {u"journal"_s, u"ideas"_s, u"work"_s})
                QCOMPARE(program.isTicked(space), space == current);
        }
    }

    void focusModeGoesOnAndOff()
    {
        CommandedProgram program;
        program.appState.createDocument(Space::work);
        for (const bool on : {true, false}) {
            program.commands.run(u"focusMode"_s);
            QCOMPARE(program.appState.focusMode(), on);
            QCOMPARE(program.isTicked(u"focusMode"_s), on);
        }
    }

    void noFocusModeWithoutAPage()
    {
        CommandedProgram program;
        QVERIFY(!program.isEnabled(u"focusMode"_s));
        program.commands.run(u"focusMode"_s);
        QVERIFY(!program.appState.focusMode());
        program.appState.createDocument(Space::work);
        QVERIFY(program.isEnabled(u"focusMode"_s));
        program.appState.setOpenDocumentID(std::nullopt);
        QVERIFY(!program.isEnabled(u"focusMode"_s));
    }

    void theSheetOfKeysIsShownUntilItIsDismissed()
    {
        CommandedProgram program;
        program.commands.run(u"shortcuts"_s);
        QVERIFY(program.commands.showShortcuts());
        program.commands.dismissShortcuts();
        QVERIFY(!program.commands.showShortcuts());
    }

    void aboutShowsTheAlert()
    {
        CommandedProgram program;
        program.commands.run(u"about"_s);

        QVERIFY(program.appState.showAbout());
    }

    void fullScreenIsTickedWhileTheWindowFillsTheScreen()
    {
        CommandedProgram program;
        QVERIFY(!program.isTicked(u"fullScreen"_s));
        program.commands.setFullScreen(true);
        QVERIFY(program.isTicked(u"fullScreen"_s));
        program.commands.setFullScreen(false);
        QVERIFY(!program.isTicked(u"fullScreen"_s));
    }
};

PELKO_TEST(TestShellCommands)
#include "tst_ShellCommands.moc"
