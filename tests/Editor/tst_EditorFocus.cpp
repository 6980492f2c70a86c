#include "EditorTest.h"

using namespace PageText;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TestEditorFocus : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    // Focus

    void onOpeningTheFirstEmptyTextBlockGetsTheFocus()
    {
        edit({block('A', heading, u"Title"_s), image('B'), block('C', BlockType::code), block('D')});
        editor->appeared();
        QCOMPARE(focused, {});
        scheduler.advance(0ms);
        QCOMPARE(focused, {u"C@end"_s});
        QCOMPARE(editor->focusedBlockID(), id('C'));
    }

    void onOpeningAPageWithoutAnEmptyTextBlockNothingGetsTheFocus()
    {
        edit({block('A', heading, u"Title"_s), image('B'), block('C', body, u" "_s), sticky('D', {})});
        editor->appeared();
        scheduler.advance(2s);
        QCOMPARE(focused, {});
    }

    void focusRequestWaitsUntilTheNavigationCloses()
    {
        edit({block('A', heading, u"Title"_s), block('B')});
        state->setShowNav(true);
        editor->appeared();
        scheduler.advance(2s);
        QCOMPARE(focused, {});
        state->setShowNav(false);
        QCOMPARE(focused, {u"B@end"_s});
        takeFocused();
        state->setShowNav(true);
        state->setShowNav(false);
        QCOMPARE(focused, {});
    }

    void focusModeFocusesTheFirstTextBlock()
    {
        edit({image('A'), block('B', BlockType::quote, u"said"_s), block('C')});
        state->setFocusMode(true);
        QCOMPARE(focused, {u"B@end"_s});
        QCOMPARE(editor->focusedBlockID(), id('B'));
    }

    void focusModeLeavesAFocusWhereItIs()
    {
        edit({block('A'), block('B')});
        editor->focusGained(id('B'));
        state->setFocusMode(true);
        QCOMPARE(focused, {});
        QCOMPARE(editor->focusedBlockID(), id('B'));
    }

    void leavingFocusModeMovesNoFocus()
    {
        edit({block('A'), block('B')});
        state->setFocusMode(true);
        editor->focusLost(id('A'));
        takeFocused();
        state->setFocusMode(false);
        QCOMPARE(focused, {});
    }

    void focusModeFindsNothingToFocusAmongPictures()
    {
        edit({image('A'), block('B', BlockType::divider), sticky('C', {todo('x')})});
        state->setFocusMode(true);
        QCOMPARE(focused, {});
    }

    void focusModeFocusesAfterTheFocusedBlockIsGone()
    {
        edit({block('A'), block('B')});
        editor->focusGained(id('B'));
        editor->deleteBlock(id('B'));
        state->setFocusMode(true);
        QCOMPARE(focused, {u"A@end"_s});
    }

    void theFocusIsLostOnlyByTheBlockThatHasIt()
    {
        edit({block('A'), block('B')});
        editor->focusGained(id('A'));
        editor->focusGained(id('B'));
        editor->focusLost(id('A'));
        QCOMPARE(editor->focusedBlockID(), id('B'));
        editor->focusLost(id('B'));
        QCOMPARE(editor->focusedBlockID(), QString());
    }
};

PELKO_TEST(TestEditorFocus)
#include "tst_EditorFocus.moc"
