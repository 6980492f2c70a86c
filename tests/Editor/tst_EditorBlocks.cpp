#include "EditorTest.h"
#include "support/ModelLog.h"

#include <QSignalSpy>

using namespace PageText;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TestEditorBlocks : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    // Adding

    void aNewTextBlockIsScrolledToAndFocusedAfterItSlidIn_data()
    {
        QTest::addColumn<QString>("kind");
        for (const BlockType type : {heading, body, BlockType::quote, BlockType::code})
            QTest::newRow(qPrintable(rawValue(type))) << rawValue(type);
    }

    void aNewTextBlockIsScrolledToAndFocusedAfterItSlidIn()
    {
        QFETCH(const QString, kind);
        edit({block('A'), block('B', body, u"text"_s)});
        editor->focusGained(id('A'));
        ModelLog log(blocks());
        editor->addBlock(kind);
        QCOMPARE(log.take(), {u"+2..2"_s});
        QCOMPARE(lines(stored()).last(), u"+ %1 \"\""_s.arg(kind));
        QCOMPARE(editor->scrollTarget(), blockID(2));
        scheduler.advance(179ms);
        QCOMPARE(focused, {});
        QCOMPARE(editor->focusedBlockID(), id('A'));
        scheduler.advance(1ms);
        QCOMPARE(focused, {u"+@end"_s});
        QCOMPARE(editor->focusedBlockID(), blockID(2));
    }

    void otherNewBlocksAreScrolledToButNotFocused_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("added");
        QTest::newRow("divider") << u"divider"_s << u"+ divider \"\""_s;
        QTest::newRow("image") << u"image"_s << u"+ image \"\""_s;
        QTest::newRow("sticky") << u"sticky"_s << u"+ sticky \"\" todos(+[ ] \"\")"_s;
    }

    void otherNewBlocksAreScrolledToButNotFocused()
    {
        QFETCH(const QString, kind);
        QFETCH(const QString, added);
        edit({block('A')});
        editor->focusGained(id('A'));
        editor->addBlock(kind);
        scheduler.advance(2s);
        QCOMPARE(lines(stored()).last(), added);
        QCOMPARE(editor->scrollTarget(), blockID(1));
        QCOMPARE(focused, {});
        QCOMPARE(editor->focusedBlockID(), id('A'));
    }

    void anUnknownKindAddsNothing()
    {
        edit({block('A')});
        for (const QString &kind : {u"Quote"_s, u"quote "_s, QString()})
            editor->addBlock(kind);
        QCOMPARE(letters(stored()), u"A"_s);
        QCOMPARE(editor->scrollTarget(), QString());
    }

    void theScrollTargetIsClearedOnceScrolled()
    {
        edit({block('A')});
        QSignalSpy targets(editor.get(), &EditorViewModel::scrollTargetChanged);
        editor->addBlock(u"divider"_s);
        editor->scrolled();
        QCOMPARE(editor->scrollTarget(), QString());
        QCOMPARE(targets.count(), 2);
    }

    void aNewBlockThatIsDeletedAtOnceIsNotFocused()
    {
        edit({block('A')});
        editor->addBlock(u"quote"_s);
        editor->deleteBlock(blockID(1));
        scheduler.advance(2s);
        QCOMPARE(focused, {});
        QCOMPARE(editor->focusedBlockID(), QString());
    }

    // Deleting

    void aBlockIsDeletedDownToTheLast()
    {
        edit({block('A', heading), block('B')});
        QSignalSpy offers(editor.get(), &EditorViewModel::offersDeleteChanged);
        editor->deleteBlock(id('A'));
        QCOMPARE(letters(stored()), u"B"_s);
        QCOMPARE(editor->offersDelete(), false);
        QCOMPARE(offers.count(), 1);
        const PelkoDocument before = stored();
        clock.time += 1;
        editor->deleteBlock(id('B'));
        QCOMPARE(stored(), before);
    }

    void aDeletedBlockHasNoFocus()
    {
        edit({block('A'), block('B')});
        editor->focusGained(id('B'));
        QSignalSpy changes(editor.get(), &EditorViewModel::focusedBlockIDChanged);
        editor->deleteBlock(id('B'));
        QCOMPARE(editor->focusedBlockID(), QString());
        QCOMPARE(changes.count(), 1);
    }

    void theFocusStaysWhenAnotherBlockIsDeleted()
    {
        edit({block('A'), block('B')});
        editor->focusGained(id('A'));
        editor->deleteBlock(id('B'));
        QCOMPARE(editor->focusedBlockID(), id('A'));
    }

    // Banner

    void aBannerIsFocusedATenthOfASecondAfterItWasSwitchedOn()
    {
        edit({block('A', heading), block('B', body, u"text"_s), image('C')});
        QSignalSpy banners(editor.get(), &EditorViewModel::firstBlockIsBannerChanged);
        editor->toggleFullWidth(id('C'));
        QCOMPARE(letters(stored()), u"CB"_s);
        QCOMPARE(editor->firstBlockIsBanner(), true);
        QCOMPARE(banners.count(), 1);
        QCOMPARE(editor->scrollTarget(), QString());
        scheduler.advance(99ms);
        QCOMPARE(focused, {});
        scheduler.advance(1ms);
        QCOMPARE(focused, {u"C@end"_s});
    }

    void aBannerThatIsSwitchedOffMovesNoFocus()
    {
        edit({image('A', true), block('B', body, u"text"_s)});
        editor->toggleFullWidth(id('A'));
        scheduler.advance(2s);
        QCOMPARE(letters(stored()), u"+AB"_s);
        QCOMPARE(editor->firstBlockIsBanner(), false);
        QCOMPARE(focused, {});
    }

    // Checklists

    void aBannerTitleIsTypedAndTakenBack()
    {
        edit({image('A', true)});
        editor->typed(address('A'), u"Ridge"_s, 5);
        QCOMPARE(stored().blocks[0].bannerTitle, u"Ridge"_s);
        QCOMPARE(editor->title(), u"Ridge"_s);
        editor->undo();
        QVERIFY(stored().blocks[0].bannerTitle.value_or(QString()).isEmpty());
    }

    void aChosenPictureFillsItsBlockAndIsTakenBackInOneStep()
    {
        edit({block('A', heading), block('B', BlockType::image)});
        desktop.pictureFiles.files["/photo"] = "bytes";
        editor->imageImport()->addImage(id('B'));
        desktop.fileChooser.answer(QList<std::filesystem::path>{"/photo"});
        QCOMPARE(stored().blocks[1].imageData, "bytes"_ba);
        editor->undo();
        QCOMPARE(stored().blocks[1].imageData, std::nullopt);
        editor->redo();
        QCOMPARE(stored().blocks[1].imageData, "bytes"_ba);
    }

    void aPictureForABlockThatIsGoneChangesNothing()
    {
        edit({block('A', heading), block('B', BlockType::image)});
        desktop.pictureFiles.files["/photo"] = "bytes";
        editor->imageImport()->addImage(id('B'));
        editor->deleteBlock(id('B'));
        desktop.fileChooser.answer(QList<std::filesystem::path>{"/photo"});
        QCOMPARE(lines(stored()), QStringList{line(block('A', heading))});
    }

    void aReleasedEditorClosesTheChooser()
    {
        edit({block('B', BlockType::image)});
        editor->imageImport()->addImage(id('B'));
        editor.release()->release();
        QVERIFY(!desktop.fileChooser.isOpen());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void aCopiedPictureIsPastedAfterTheBlock()
    {
        edit({block('A'), block('B')});
        desktop.pasteboard.png = "png"_ba;
        QVERIFY(editor->pastePicture(id('A')));
        QCOMPARE(letters(stored()), u"A+B"_s);
        QCOMPARE(stored().blocks[1].imageData, "png"_ba);
        QCOMPARE(editor->scrollTarget(), blockID(1));
        editor->undo();
        QCOMPARE(letters(stored()), u"AB"_s);
    }

    void withTextOrNothingOnThePasteboardNoPictureIsPasted()
    {
        edit({block('A')});
        QVERIFY(!editor->pastePicture(id('A')));
        desktop.pasteboard.png = "png"_ba;
        desktop.pasteboard.item.text = u"words"_s;
        QVERIFY(!editor->pastePicture(id('A')));
        QCOMPARE(letters(stored()), u"A"_s);
    }

    void aChecklistIsEdited()
    {
        edit({block('A', heading), sticky('B', {todo('x')})});
        const auto list = [this] { return lines(stored()).last(); };
        editor->typed(address('B', 'x'), u"milk"_s, 4);
        QCOMPARE(list(), u"B sticky \"\" todos(x[ ] \"milk\")"_s);
        editor->toggleTodo(address('B', 'x'));
        QCOMPARE(list(), u"B sticky \"\" todos(x[x] \"milk\")"_s);
        editor->appendTodo(id('B'));
        QCOMPARE(list(), u"B sticky \"\" todos(x[x] \"milk\", +[ ] \"\")"_s);
        QCOMPARE(takeFocused(), {u"B.+@end"_s});
        editor->removeTodo(address('B', 'x'));
        QCOMPARE(list(), u"B sticky \"\" todos(+[ ] \"\")"_s);
        QCOMPARE(takeFocused(), QStringList()); // the caret is in the other entry already
        QCOMPARE(stored().updatedAt, clock.time);
        scheduler.advance(500ms);
        QCOMPARE(file.writes(), 1);
    }

    void returnInAnEntryMakesTheNext()
    {
        edit({sticky('A', {todo('x', u"milk"_s)})});
        editor->typed(address('A', 'x'), u"milk\n"_s, 5);
        QCOMPARE(lines(stored()), {u"A sticky \"\" todos(x[ ] \"milk\", +[ ] \"\")"_s});
        QCOMPARE(focused, {u"A.+@0"_s});
    }
};

PELKO_TEST(TestEditorBlocks)
#include "tst_EditorBlocks.moc"
