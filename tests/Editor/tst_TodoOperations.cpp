#include "Editor/TodoOperations.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

/// A heading A and the checklist B: x "milk", y "bread" (done), z "".
PelkoDocument shopping()
{
    return page({block('A', BlockType::textLarge, u"List"_s),
                 sticky('B', {todo('x', u"milk"_s), todo('y', u"bread"_s, true), todo('z')})});
}

PelkoDocument listOf(const QList<TodoItem> &todos)
{
    return page({sticky('B', todos)});
}

QString checklist(const std::optional<Edit> &edit)
{
    return line(edit.value().document.blocks.last());
}

} // namespace

class TestTodoOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextOfAnEntryIsStored()
    {
        const auto edit = TodoOperations::setText(shopping(), address('B', 'y'), u"rye"_s, 3);
        QCOMPARE(lines(edit.value().document),
                 (QStringList{u"A textLarge \"List\""_s,
                              u"B sticky \"\" todos(x[ ] \"milk\", y[x] \"rye\", z[ ] \"\")"_s}));
        QCOMPARE(edit->focus, std::nullopt);
    }

    void shortcutsOfBlocksMeanNothingInAnEntry()
    {
        const auto edit = TodoOperations::setText(listOf({todo('x')}), address('B', 'x'), u"# "_s, 2);
        QCOMPARE(checklist(edit), u"B sticky \"\" todos(x[ ] \"# \")"_s);
    }

    void anEmptyTextKeepsTheEntry()
    {
        const auto edit = TodoOperations::setText(listOf({todo('x')}), address('B', 'x'), {}, 0);
        QCOMPARE(checklist(edit), u"B sticky \"\" todos(x[ ] \"\")"_s);
        QCOMPARE(edit->focus, std::nullopt);
    }

    void aLineFeedBreaksAnEntryUp_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("caret");
        QTest::addColumn<QString>("becomes");
        QTest::addColumn<QString>("focus");
        QTest::newRow("at the end") << u"milk"_s << u"milk\n"_s << 5 << u"y[x] \"milk\", +[ ] \"\""_s
                                    << u"B.+@0"_s;
        QTest::newRow("at the start")
            << u"milk"_s << u"\nmilk"_s << 1 << u"y[x] \"\", +[ ] \"milk\""_s << u"B.+@0"_s;
        QTest::newRow("in the middle")
            << u"milktea"_s << u"milk\ntea"_s << 5 << u"y[x] \"milk\", +[ ] \"tea\""_s << u"B.+@0"_s;
        QTest::newRow("pasted lines") << u"<>"_s << u"<milk\n\ntea>"_s << 10
                                      << u"y[x] \"<milk\", +[ ] \"\", +[ ] \"tea>\""_s << u"B.+@3"_s;
        QTest::newRow("caret in an earlier line")
            << u""_s << u"milk\ntea"_s << 2 << u"y[x] \"milk\", +[ ] \"tea\""_s << u"B.+@0"_s;
        QTest::newRow("already of two lines")
            << u"milk\n"_s << u"milk\ntea\n"_s << 9 << u"y[x] \"milk\ntea\n\""_s << QString();
    }

    void aLineFeedBreaksAnEntryUp()
    {
        QFETCH(const QString, stored);
        QFETCH(const QString, typed);
        QFETCH(const int, caret);
        QFETCH(const QString, becomes);
        QFETCH(const QString, focus);
        const PelkoDocument before = listOf({todo('x'), todo('y', stored, true), todo('z')});
        const auto edit = TodoOperations::setText(before, address('B', 'y'), typed, caret);
        QCOMPARE(checklist(edit), u"B sticky \"\" todos(x[ ] \"\", %1, z[ ] \"\")"_s.arg(becomes));
        QCOMPARE(PageText::focus(edit->focus), focus);
    }

    void theFocusNamesTheLastOfThePastedLines()
    {
        const auto edit = TodoOperations::setText(listOf({todo('x')}), address('B', 'x'), u"a\nb\nc"_s, 5);
        QCOMPARE(edit.value().focus->address.partID, edit->document.blocks.first().todos->last().id);
    }

    void anEntryIsTickedAndUnticked()
    {
        const PelkoDocument before = shopping();
        const auto ticked = TodoOperations::toggle(before, address('B', 'x'));
        QCOMPARE(checklist(ticked), u"B sticky \"\" todos(x[x] \"milk\", y[x] \"bread\", z[ ] \"\")"_s);
        QCOMPARE(ticked->focus, std::nullopt);
        const auto unticked = TodoOperations::toggle(ticked->document, address('B', 'x'));
        QCOMPARE(unticked.value().document, before);
    }

    void aNewEntryGoesLastAndGetsTheFocus()
    {
        const auto edit = TodoOperations::append(listOf({todo('x', u"milk"_s)}), idOf('B'));
        QCOMPARE(checklist(edit), u"B sticky \"\" todos(x[ ] \"milk\", +[ ] \"\")"_s);
        QCOMPARE(PageText::focus(edit->focus), u"B.+@end"_s);
        QCOMPARE(edit->focus->address.partID, edit->document.blocks.first().todos->last().id);
    }

    void aChecklistWithoutAListGetsOne()
    {
        const auto edit = TodoOperations::append(page({block('B', BlockType::sticky)}), idOf('B'));
        QCOMPARE(checklist(edit), u"B sticky \"\" todos(+[ ] \"\")"_s);
    }

    void otherBlocksGetNoEntries()
    {
        QVERIFY(!TodoOperations::append(shopping(), idOf('A')));
        QVERIFY(!TodoOperations::append(shopping(), idOf('C')));
    }

    void anEntryIsRemoved_data()
    {
        QTest::addColumn<QString>("removed");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("focus");
        QTest::newRow("first") << u"x"_s << u"y[x] \"bread\", z[ ] \"\""_s << u"B.y@end"_s;
        QTest::newRow("second") << u"y"_s << u"x[ ] \"milk\", z[ ] \"\""_s << u"B.x@end"_s;
        QTest::newRow("last") << u"z"_s << u"x[ ] \"milk\", y[x] \"bread\""_s << u"B.y@end"_s;
    }

    void anEntryIsRemoved()
    {
        QFETCH(const QString, removed);
        QFETCH(const QString, left);
        QFETCH(const QString, focus);
        const auto edit = TodoOperations::remove(shopping(), address('B', removed[0].toLatin1()));
        QCOMPARE(checklist(edit), u"B sticky \"\" todos(%1)"_s.arg(left));
        QCOMPARE(PageText::focus(edit->focus), focus);
    }

    void aCaretElsewhereStays()
    {
        const FocusTarget inEntry{.address = {.blockID = idOf('B'), .partID = idOf('x')}};
        const FocusTarget inBody{.address = {.blockID = idOf('A')}};
        for (const FocusTarget &caret : {inEntry, inBody})
            QCOMPARE(TodoOperations::remove(shopping(), address('B', 'y'), caret)->focus, std::nullopt);
        QVERIFY(TodoOperations::remove(shopping(), address('B', 'x'), inEntry)->focus);
    }

    void theOnlyEntryCanBeRemovedAndTheListStays()
    {
        const auto edit = TodoOperations::remove(listOf({todo('x')}), address('B', 'x'));
        QCOMPARE(checklist(edit), u"B sticky \"\" todos()"_s);
        QCOMPARE(edit->focus, std::nullopt);
    }

    void unknownIdsChangeNothing()
    {
        for (const TextAddress &unknown :
             {address('C', 'x'), address('B', 'w'), address('B'), address('A', 'x'), TextAddress()}) {
            QVERIFY(!TodoOperations::setText(shopping(), unknown, u"text"_s, 0));
            QVERIFY(!TodoOperations::toggle(shopping(), unknown));
            QVERIFY(!TodoOperations::remove(shopping(), unknown));
        }
    }
};

PELKO_TEST(TestTodoOperations)
#include "tst_TodoOperations.moc"
