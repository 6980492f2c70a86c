#include "Shell/CommandListModel.h"
#include "support/TestProgram.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{
using Model = CommandListModel;

/// Returns rows as "id", or "-" for a separator, with "?" if it is disabled, "+" if it is ticked and "*" if
/// it has only a shortcut.
QStringList rows(const CommandListModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const auto is = [&model, row](int role) { return model.data(model.index(row), role).toBool(); };
        if (model.data(model.index(row), Model::KindRole) == u"separator"_s) {
            rows << u"-"_s;
            continue;
        }
        rows << model.data(model.index(row), Model::CommandIDRole).toString() +
                    (is(Model::IsEnabledRole) ? u""_s : u"?"_s) + (is(Model::IsTickedRole) ? u"+"_s : u""_s) +
                    (is(Model::IsInMenuRole) ? u""_s : u"*"_s);
    }
    return rows;
}

const QList<MenuCommand> table{
    {u"a"_s, "A", u"plus"_s, u"Ctrl+A"_s, CommandGroup::documents},
    {u"b"_s, "B", u"minus"_s, {}, CommandGroup::views},
    {u"c"_s, "C", u"minus"_s, {}, CommandGroup::views},
    {u"d"_s, "D", {}, u"F1"_s, CommandGroup::none},
};
} // namespace

class TestCommandListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupsAreParted()
    {
        Model model(table);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);

        QCOMPARE(rows(model), (QStringList{u"a?"_s, u"-"_s, u"b?"_s, u"c?"_s, u"d?*"_s}));
    }

    void aRowSaysWhatTheTableSays()
    {
        const Model model(table);
        const QModelIndex first = model.index(0);

        QCOMPARE(model.data(first, Model::TitleRole), u"A"_s);
        QCOMPARE(model.data(first, Model::SymbolRole), u"plus"_s);
        QCOMPARE(model.data(first, Model::ShortcutRole), u"Ctrl+A"_s);
    }

    void aBoundCommandRuns()
    {
        Model model(table);
        int runs = 0;
        QSignalSpy changes(&model, &Model::dataChanged);
        model.bind(u"b"_s, {.run = [&] { ++runs; }});
        QCOMPARE(changes.count(), 1);
        QCOMPARE(rows(model), (QStringList{u"a?"_s, u"-"_s, u"b"_s, u"c?"_s, u"d?*"_s}));
        model.run(u"b"_s);

        QCOMPARE(runs, 1);
    }

    void unboundUnknownAndSeparatorRowsDoNothing()
    {
        Model model(table);
        model.run(u"a"_s);
        model.run(u"paintItBlack"_s);
        model.run({});

        QVERIFY(!model.isEnabled({}));
        QVERIFY(!model.isTicked(u"paintItBlack"_s));
    }

    void oneThatIsDisabledDoesNotRun()
    {
        Model model(table);
        bool possible = false;
        int runs = 0;
        model.bind(u"a"_s, {.run = [&] { ++runs; }, .isEnabled = [&] { return possible; }});
        model.run(u"a"_s);
        QCOMPARE(runs, 0);
        possible = true;
        model.refresh();
        model.run(u"a"_s);
        QCOMPARE(runs, 1);
    }

    void onlyRowsThatDifferAreAnnounced()
    {
        Model model(table);
        bool on = false;
        model.bind(u"a"_s, {.run = [] {}});
        model.bind(u"c"_s, {.run = [] {}, .isTicked = [&] { return on; }});
        QSignalSpy changes(&model, &Model::dataChanged);
        model.refresh();
        QCOMPARE(changes.count(), 0);
        on = true;
        model.refresh();

        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.first().first().toModelIndex().row(), 3);
        QCOMPARE(rows(model), (QStringList{u"a"_s, u"-"_s, u"b?"_s, u"c+"_s, u"d?*"_s}));
        QVERIFY(model.isTicked(u"c"_s));
    }

    void actionMayRebindItsCommand()
    {
        Model model(table);
        int later = 0;
        model.bind(u"a"_s, {.run = [&] { model.bind(u"a"_s, {.run = [&] { ++later; }}); }});
        model.run(u"a"_s);
        model.run(u"a"_s);

        QCOMPARE(later, 1);
    }
};

PELKO_TEST(TestCommandListModel)
#include "tst_CommandListModel.moc"
