#include "Shell/CommandMenu.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{
/// Returns the titles of the rows, "-" for a separator.
QStringList rows(const CommandMenu &menu)
{
    QStringList rows;
    for (int row = 0; row < menu.rowCount(); ++row) {
        const QModelIndex index = menu.index(row, 0);
        const bool isSeparator = index.data(CommandListModel::KindRole) == u"separator"_s;
        rows << (isSeparator ? u"-"_s : index.data(CommandListModel::TitleRole).toString());
    }
    return rows;
}
} // namespace

class TestCommandMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsItsGroupsWithAHairlineBetweenThem_data()
    {
        QTest::addColumn<BarMenu>("menu");
        QTest::addColumn<QStringList>("wanted");
        QTest::newRow("File") << BarMenu::file << QStringList{u"New Document"_s,
                                                              u"Go to…"_s,
                                                              u"Save"_s,
                                                              u"-"_s,
                                                              u"Export…"_s,
                                                              u"Export everything…"_s,
                                                              u"Copy page as Markdown"_s};
        QTest::newRow("Spaces") << BarMenu::spaces << QStringList{u"Ideas"_s, u"Work"_s, u"Journal"_s};
        QTest::newRow("View") << BarMenu::view
                              << QStringList{u"Tasks"_s, u"Pomodoro"_s, u"Focus mode"_s, u"Full screen"_s};
        QTest::newRow("Help") << BarMenu::help
                              << QStringList{u"Keyboard Shortcuts"_s, u"About Pelko"_s, u"Quit"_s};
        QTest::newRow("Edit") << BarMenu::edit << QStringList{u"Undo"_s, u"Redo"_s,  u"Cut"_s,
                                                              u"Copy"_s, u"Paste"_s, u"Select All"_s};
    }

    void holdsItsGroupsWithAHairlineBetweenThem()
    {
        QFETCH(BarMenu, menu);
        QFETCH(QStringList, wanted);
        CommandListModel commands(MenuCommand::all());
        CommandMenu rowsOfMenu(commands, menu);
        const QAbstractItemModelTester tester(&rowsOfMenu,
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);

        QCOMPARE(rowsOfMenu.title(), QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(rows(rowsOfMenu), wanted);
    }

    void everyCommandOfTheMenuIsInOne()
    {
        CommandListModel commands(MenuCommand::all());
        QStringList found;
        for (const BarMenu menu : allBarMenus)
            found << rows(CommandMenu(commands, menu));
        found.removeAll(u"-"_s);
        QStringList wanted;
        for (const MenuCommand &command : MenuCommand::all()) {
            if (command.group != CommandGroup::none)
                wanted << command.title();
        }
        std::ranges::sort(found);
        std::ranges::sort(wanted);

        QCOMPARE(found, wanted);
    }

    void systemCommandsReportTheirRole()
    {
        CommandListModel commands(MenuCommand::all());
        const CommandMenu menu(commands, BarMenu::help);
        QStringList roles;
        for (int row = 0; row < menu.rowCount(); ++row)
            roles << menu.index(row, 0).data(CommandListModel::SystemRole).toString();

        QCOMPARE(roles, (QStringList{u""_s, u"about"_s, u"quit"_s}));
    }

    void followsTheCommands()
    {
        CommandListModel commands(MenuCommand::all());
        const CommandMenu menu(commands, BarMenu::spaces);
        QSignalSpy changes(&menu, &CommandMenu::dataChanged);
        commands.bind(u"work"_s, {.run = [] {}, .isTicked = [] { return true; }});

        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.first().first().toModelIndex().row(), 1);
        QVERIFY(menu.index(1, 0).data(CommandListModel::IsTickedRole).toBool());
    }
};

PELKO_TEST(TestCommandMenu)
#include "tst_CommandMenu.moc"
