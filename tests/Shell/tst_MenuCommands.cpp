#include "Shell/MenuCommands.h"
#include "support/TestProgram.h"

#include <QKeySequence>
#include <QSet>

using namespace Qt::StringLiterals;

class TestMenuCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheCommandsInMenuOrder()
    {
        QStringList titles;
        for (const MenuCommand &command : MenuCommand::all())
            titles << command.title();

        QCOMPARE(titles, (QStringList{u"New Document"_s,
                                      u"Go to…"_s,
                                      u"Save"_s,
                                      u"Undo"_s,
                                      u"Redo"_s,
                                      u"Cut"_s,
                                      u"Copy"_s,
                                      u"Paste"_s,
                                      u"Select All"_s,
                                      u"Ideas"_s,
                                      u"Work"_s,
                                      u"Journal"_s,
                                      u"Tasks"_s,
                                      u"Pomodoro"_s,
                                      u"Focus mode"_s,
                                      u"Full screen"_s,
                                      u"Export…"_s,
                                      u"Export everything…"_s,
                                      u"Copy page as Markdown"_s,
                                      u"Keyboard Shortcuts"_s,
                                      u"About Pelko"_s,
                                      u"Quit"_s,
                                      u"App menu"_s}));
    }

    void newDocumentHasThePlatformsNewShortcut()
    {
        const QKeySequence shortcut(MenuCommand::all().first().shortcut, QKeySequence::PortableText);

        QVERIFY(QKeySequence::keyBindings(QKeySequence::New).contains(shortcut));
    }

    void everyShortcutIsAKeyAndNoneIsTakenTwice()
    {
        QSet<QString> seen;
        for (const MenuCommand &command : MenuCommand::all()) {
            if (command.shortcut.isEmpty())
                continue;
            const QKeySequence keys(command.shortcut, QKeySequence::PortableText);
            QCOMPARE(keys.toString(QKeySequence::PortableText), command.shortcut);
            QCOMPARE(keys.count(), 1);
            QVERIFY2(!seen.contains(command.shortcut), qPrintable(command.shortcut));
            seen.insert(command.shortcut);
        }
    }

    void everyCommandHasItsOwnIdAndTitle()
    {
        QSet<QString> seen;
        for (const MenuCommand &command : MenuCommand::all()) {
            for (const QString &word : {command.id, command.title()}) {
                QVERIFY2(!word.isEmpty() && !seen.contains(word), qPrintable(word));
                seen.insert(word);
            }
        }
    }

    void everyCommandOfTheMenuHasASymbolAndEveryOtherAKey()
    {
        for (const MenuCommand &command : MenuCommand::all())
            QVERIFY2(command.group == CommandGroup::none ? !command.shortcut.isEmpty()
                                                         : !command.symbol.isEmpty(),
                     qPrintable(command.id));
    }

    void aMenuBarNeedsNoCommandThatOpensTheMenu()
    {
        QStringList wanted;
        for (const MenuCommand &command : menuCommands(MenuLocation::window))
            wanted << command.id;
        QCOMPARE(wanted.size(), MenuCommand::all().size());
        wanted.removeOne(u"appMenu"_s);
        QStringList offered;
        for (const MenuCommand &command : menuCommands(MenuLocation::menuBar))
            offered << command.id;

        QCOMPARE(offered, wanted);
    }

    void theMenusOfABarHaveTitles()
    {
        QStringList titles;
        for (const BarMenu menu : allBarMenus)
            titles << menuTitle(menu);

        QCOMPARE(titles, (QStringList{u"File"_s, u"Edit"_s, u"Spaces"_s, u"View"_s, u"Help"_s}));
        QCOMPARE(barMenu(CommandGroup::none), std::nullopt);
    }

    void theCommandsOfAGroupStandTogether()
    {
        QList<CommandGroup> groups;
        for (const MenuCommand &command : MenuCommand::all()) {
            if (groups.isEmpty() || groups.last() != command.group)
                groups << command.group;
        }
        QList<CommandGroup> sorted = groups;
        std::sort(sorted.begin(), sorted.end());

        QCOMPARE(groups, sorted);
    }
};

PELKO_TEST(TestMenuCommands)
#include "tst_MenuCommands.moc"
