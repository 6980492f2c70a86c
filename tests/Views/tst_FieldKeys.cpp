#include "Views/Editor/FieldKeys.h"

#include "Editor/EditorTest.h"
#include "PageOfFields.h"
#include "Views/Editor/EditorKeys.h"

using namespace PageText;
using namespace Qt::StringLiterals;

class TestFieldKeys : public EditorTest
{
    Q_OBJECT

    std::unique_ptr<PageOfFields> page;

    void open(const QList<Block> &blocks)
    {
        edit(blocks);
        page = std::make_unique<PageOfFields>(*editor);
    }

    /// Sends the key with this selection in the text of block A.
    bool press(EditorAction action, int anchor, int caret)
    {
        page->field('A').select(anchor, caret);
        return FieldKeys(page->field('A'), *editor).pressed({.action = action});
    }

private Q_SLOTS:
    void cleanup()
    {
        page.reset();
        close();
    }

    void backspaceDeletesACharacterAsTheWriterSeesIt()
    {
        open({block('A', body, u"a\U0001F469\u200D\U0001F4BB"_s)});
        QVERIFY(press(EditorAction::deleteBackward, 6, 6));
        QCOMPARE(page->shown('A'), u"a"_s);
    }

    void backspaceOverASelectionIsLeftToTheField()
    {
        open({block('A', body, u"one"_s)});
        QVERIFY(!press(EditorAction::deleteBackward, 0, 2));
    }

    void atTheEndsOfATextItJoinsOthers()
    {
        open({block('A', BlockType::quote, u"one"_s), block('B', body, u"two"_s)});
        QVERIFY(!press(EditorAction::deleteForward, 1, 1));
        QVERIFY(press(EditorAction::deleteForward, 3, 3));
        QCOMPARE(lines(stored()), {u"A quote \"onetwo\""_s});
        QVERIFY(press(EditorAction::deleteRangeBackward, 0, 0));
        QCOMPARE(lines(stored()), {u"A textSmall \"onetwo\""_s});
    }

    void theEndOfACutTextJoinsNothing()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        page->field('A').setProperty("isCut", true);
        QVERIFY(press(EditorAction::deleteForward, 3, 3));
        QCOMPARE(letters(stored()), u"AB"_s);
    }

    void copyAndCutTakeTheStoredText()
    {
        open({block('A', body, u"one\u2028two"_s)});
        QVERIFY(!press(EditorAction::copy, 1, 1));
        QVERIFY(press(EditorAction::copy, 2, 5));
        QCOMPARE(desktop.pasteboard.text(), u"e\u2028t"_s);
        QVERIFY(press(EditorAction::cut, 2, 5));
        QCOMPARE(stored().blocks.first().content, u"onwo"_s);
    }

    void pasteReplacesTheSelection()
    {
        open({block('A', body, u"one"_s)});
        QVERIFY(!press(EditorAction::paste, 0, 3));
        desktop.pasteboard.item.text = u"two"_s;
        QVERIFY(press(EditorAction::paste, 1, 2));
        QCOMPARE(stored().blocks.first().content, u"otwoe"_s);
    }

    void returnSplitsOnlyWhereTheFieldCannot()
    {
        open({block('A', body, u"one"_s)});
        QVERIFY(!press(EditorAction::newBlock, 1, 1));
        open({block('A', body, u"one\ntwo"_s)});
        QVERIFY(press(EditorAction::newBlock, 5, 5));
        QCOMPARE(lines(stored()), (QStringList{u"A textSmall \"one\nt\""_s, u"+ textSmall \"wo\""_s}));
    }

    void tabIndentsCodeOnly()
    {
        open({block('A', body, u"one"_s)});
        QVERIFY(!press(EditorAction::indent, 1, 1));
        QVERIFY(!press(EditorAction::unindent, 1, 1));
        open({block('A', BlockType::code, u"one"_s)});
        QVERIFY(press(EditorAction::indent, 1, 1));
        QCOMPARE(page->shown('A'), u"o\tne"_s);
        QVERIFY(press(EditorAction::unindent, 2, 2));
        QCOMPARE(page->shown('A'), u"one"_s);
        QVERIFY(!press(EditorAction::unindent, 1, 1));
    }

    void tabMovesSelectedLinesOfCode()
    {
        open({block('A', BlockType::code, u"one\ntwo\nthree"_s)});
        QVERIFY(press(EditorAction::indent, 1, 6));
        QCOMPARE(stored().blocks.first().content, u"\tone\n\ttwo\nthree"_s);
        QVERIFY(press(EditorAction::unindent, 1, 6));
        QCOMPARE(stored().blocks.first().content, u"one\ntwo\nthree"_s);
    }
};

PELKO_TEST(TestFieldKeys)
#include "tst_FieldKeys.moc"
