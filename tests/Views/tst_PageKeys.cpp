#include "Views/Editor/PageKeys.h"

#include "Editor/EditorTest.h"
#include "PageOfFields.h"

#include <QKeyEvent>
#include <QSignalSpy>

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

QKeyEvent keyEvent(QKeyCombination keys, const QString &text = {})
{
    return {QEvent::KeyPress, keys.key(), keys.keyboardModifiers(), text};
}

} // namespace

class TestPageKeys : public EditorTest
{
    Q_OBJECT

    std::unique_ptr<PageOfFields> page;
    std::unique_ptr<PageKeys> keys;

    void open(const QList<Block> &blocks)
    {
        edit(blocks);
        page = std::make_unique<PageOfFields>(*editor);
        keys = std::make_unique<PageKeys>(page->fields);
        QVERIFY(page->isShown());
    }

    bool press(FieldCaret &field, QKeyCombination combination, const QString &text = {})
    {
        return keys->pressed(field, keyEvent(combination, text));
    }

private Q_SLOTS:
    void cleanup()
    {
        keys.reset();
        page.reset();
        close();
    }

    void aKeyInATextChangesThePage_data()
    {
        QTest::addColumn<QKeyCombination>("combination");
        QTest::addColumn<int>("caret");
        QTest::addColumn<QString>("becomes");
        const auto row = [](const char *name, QKeyCombination combination, int caret,
                            const QString &becomes) {
            QTest::newRow(name) << combination << caret << becomes;
        };
        row("join backward", Qt::Key_Backspace, 0, u"A \"onetwo\", C \"three\""_s);
        row("join forward", Qt::Key_Delete, 3, u"A \"one\", B \"twothree\""_s);
        row("line break", Qt::SHIFT | Qt::Key_Return, 1, u"A \"one\", B \"t\nwo\", C \"three\""_s);
        row("block up", Qt::ALT | Qt::Key_Up, 1, u"B \"two\", A \"one\", C \"three\""_s);
        row("block down", Qt::ALT | Qt::Key_Down, 1, u"A \"one\", C \"three\", B \"two\""_s);
    }
    void aKeyInATextChangesThePage()
    {
        QFETCH(QKeyCombination, combination);
        QFETCH(int, caret);
        QFETCH(QString, becomes);
        open({block('A', body, u"one"_s), block('B', body, u"two"_s), block('C', body, u"three"_s)});
        page->field('B').select(caret, caret);
        QVERIFY(press(page->field('B'), combination));
        QCOMPARE(lines(stored()).join(u", "_s).remove(u"textSmall "_s), becomes);
    }

    void undoAndRedoReachThePage()
    {
        open({block('A', body, u"one"_s)});
        type('A', u"ones"_s);
        QVERIFY(press(page->field('A'), Qt::CTRL | Qt::Key_Z));
        QCOMPARE(stored().blocks.first().content, u"one"_s);
        QVERIFY(press(page->field('A'), Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
        QCOMPARE(stored().blocks.first().content, u"ones"_s);
    }

    void whatAFieldCanDoItselfIsLeftToIt()
    {
        open({block('A', body, u"one two"_s)});
        page->field('A').select(1, 1);
        for (const QKeyCombination combination :
             {QKeyCombination(Qt::Key_Left), QKeyCombination(Qt::SHIFT | Qt::Key_Right),
              QKeyCombination(Qt::CTRL | Qt::Key_Right), QKeyCombination(Qt::Key_Delete),
              QKeyCombination(Qt::CTRL | Qt::Key_A)})
            QVERIFY2(!press(page->field('A'), combination), qPrintable(QKeySequence(combination).toString()));
        QVERIFY(!press(page->field('A'), Qt::Key_X, u"x"_s));
    }

    void aCaretLeavesItsFieldAtItsEnd()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        page->field('A').select(3, 3);
        QVERIFY(press(page->field('A'), Qt::Key_Right));
        QCOMPARE(page->focused(), &page->field('B').field());
        QCOMPARE(page->field('B').caret(), 0);
    }

    void selectAllGoesFromTheTextToThePage()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        page->field('A').select(0, 3);
        QVERIFY(press(page->field('A'), Qt::CTRL | Qt::Key_A));
        QCOMPARE(editor->selection()->parts().all().size(), 2);
    }

    void keysChangeASelectionOverSeveralTexts_data()
    {
        QTest::addColumn<QKeyCombination>("combination");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("becomes");
        QTest::newRow("delete") << QKeyCombination(Qt::Key_Delete) << u""_s << u"A \"oo\""_s;
        QTest::newRow("backspace") << QKeyCombination(Qt::Key_Backspace) << u""_s << u"A \"oo\""_s;
        QTest::newRow("letter") << QKeyCombination(Qt::Key_X) << u"x"_s << u"A \"oxo\""_s;
        QTest::newRow("return") << QKeyCombination(Qt::Key_Return) << u"\r"_s << u"A \"o\", + \"o\""_s;
        QTest::newRow("line break") << QKeyCombination(Qt::SHIFT | Qt::Key_Return) << u"\r"_s
                                    << u"A \"o\no\""_s;
        QTest::newRow("cut") << QKeyCombination(Qt::CTRL | Qt::Key_X) << u""_s << u"A \"oo\""_s;
        QTest::newRow("copy") << QKeyCombination(Qt::CTRL | Qt::Key_C) << u""_s << u"A \"one\", B \"two\""_s;
    }
    void keysChangeASelectionOverSeveralTexts()
    {
        QFETCH(QKeyCombination, combination);
        QFETCH(QString, text);
        QFETCH(QString, becomes);
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        page->fields.select(between('A', 1, 'B', 2));
        QVERIFY(press(page->field('B'), combination, text));
        QCOMPARE(lines(stored()).join(u", "_s).remove(u"textSmall "_s), becomes);
    }

    void leftAndRightCollapseASelectionToItsEnds()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        page->fields.select(between('A', 1, 'B', 2));
        QVERIFY(press(page->field('B'), Qt::Key_Left));
        QVERIFY(!editor->selection()->isCrossing());
        QCOMPARE(page->focused(), &page->field('A').field());
        QCOMPARE(page->field('A').caret(), 1);
        page->fields.select(between('A', 1, 'B', 2));
        QVERIFY(press(page->field('B'), Qt::Key_Right));
        QCOMPARE(page->field('B').caret(), 2);
    }

    void tabGivesASelectionUpAndWalksOn()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        page->fields.select(between('A', 1, 'B', 2));
        const QSignalSpy walks(keys.get(), &PageKeys::walkRequested);
        QVERIFY(press(page->field('B'), Qt::Key_Tab));
        QVERIFY(press(page->field('B'), Qt::SHIFT | Qt::Key_Backtab));
        QVERIFY(!editor->selection()->isCrossing());
        QCOMPARE(walks, (QList<QVariantList>{{true}, {false}}));
    }

    void aModifierAloneIsNotAKeyOfTheWriter()
    {
        open({block('A', body, u"one"_s)});
        const QSignalSpy presses(keys.get(), &PageKeys::keyPressed);
        QVERIFY(!press(page->field('A'), Qt::SHIFT | Qt::Key_Shift));
        QCOMPARE(presses.size(), 0);
        press(page->field('A'), Qt::Key_X, u"x"_s);
        QCOMPARE(presses.size(), 1);
    }

    void theMenuKeyAsksForTheMenuOfTheBlock()
    {
        open({block('A', body, u"one"_s)});
        const QSignalSpy menus(keys.get(), &PageKeys::menuRequested);
        QVERIFY(press(page->field('A'), Qt::Key_Menu));
        QCOMPARE(menus.size(), 1);
    }

    void returnDoesNothingMoreThanEndAComposition()
    {
        open({block('A', body, u"one"_s)});
        FieldCaret &field = page->field('A');
        field.takeFocus();
        QInputMethodEvent preedit(u"ka"_s, {});
        QCoreApplication::sendEvent(&field.field(), &preedit);
        QVERIFY(field.isComposing());
        QVERIFY(press(field, Qt::Key_Return, u"\r"_s));
        QVERIFY(!field.isComposing());
        QVERIFY(page->shown('A').contains(u"ka"_s));
        QCOMPARE(letters(stored()), u"A"_s);
    }

    void aCompositionReplacesASelectionOverSeveralTexts()
    {
        open({block('A', body, u"one"_s), block('B', body, u"two"_s)});
        page->fields.select(between('A', 1, 'B', 2));
        QInputMethodEvent preedit(u"ka"_s, {});
        QVERIFY(keys->composed(preedit));
        QCOMPARE(lines(stored()), {u"A textSmall \"oo\""_s});
        QVERIFY(!keys->composed(preedit));
    }

    void keysOnABlockWithoutText_data()
    {
        QTest::addColumn<QKeyCombination>("combination");
        QTest::addColumn<QString>("becomes");
        QTest::newRow("delete") << QKeyCombination(Qt::Key_Delete) << u"AC"_s;
        QTest::newRow("backspace") << QKeyCombination(Qt::Key_Backspace) << u"AC"_s;
        QTest::newRow("cut") << QKeyCombination(Qt::CTRL | Qt::Key_X) << u"A+C"_s;
        QTest::newRow("block up") << QKeyCombination(Qt::ALT | Qt::Key_Up) << u"BAC"_s;
        QTest::newRow("down") << QKeyCombination(Qt::Key_Down) << u"ABC"_s;
    }
    void keysOnABlockWithoutText()
    {
        QFETCH(QKeyCombination, combination);
        QFETCH(QString, becomes);
        open({block('A', body, u"one"_s), block('B', BlockType::divider), block('C', body, u"two"_s)});
        page->block('B').item()->forceActiveFocus();
        QVERIFY(keys->pressed(page->block('B'), keyEvent(combination)));
        QCOMPARE(letters(stored()), becomes);
    }

    void whatNobodyUsesIsWrittenAtTheEndOfThePage()
    {
        open({block('A', body, u"one"_s), block('B', BlockType::divider)});
        QVERIFY(!keys->unused(keyEvent(Qt::Key_F5)));
        QCOMPARE(letters(stored()), u"AB"_s);
        QVERIFY(keys->unused(keyEvent(Qt::Key_X, u"x"_s)));
        QCOMPARE(letters(stored()), u"AB+"_s);
    }
};

PELKO_TEST(TestPageKeys)
#include "tst_PageKeys.moc"
