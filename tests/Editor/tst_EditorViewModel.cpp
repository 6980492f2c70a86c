#include "Editor/EditorViewModel.h"
#include "Store/AppState.h"
#include "Store/DocumentReader.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"
#include "support/ModelLog.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSignalSpy>

using namespace PageText;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr BlockType body = BlockType::textSmall;
constexpr BlockType heading = BlockType::textLarge;

QString id(char letter)
{
    return idOf(letter).toString(QUuid::WithoutBraces);
}

} // namespace

class TestEditorViewModel : public QObject
{
    Q_OBJECT

    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    ManualDesktop desktop;
    std::unique_ptr<AppState> state;
    std::unique_ptr<EditorViewModel> editor;
    QUuid pageID;
    QStringList focused; // what focusRequested asked for, such as "B@3"

    /// Puts the pages into the store, which opens the first one of the work space.
    void store(const QList<PelkoDocument> &documents)
    {
        ManualDocumentFile before; // so that `file` counts only what the store writes
        const auto error =
            before.replace([&](ByteSink &sink) { return DocumentWriter().write(documents, sink); });
        QVERIFY(!error);
        file.bytes = before.bytes;
        state = std::make_unique<AppState>(scheduler, clock, file);
    }

    void edit(const QUuid &documentID)
    {
        editor = std::make_unique<EditorViewModel>(*state, desktop.services(scheduler), documentID);
        connect(editor.get(), &EditorViewModel::focusRequested, this,
                [this](const QString &blockID, const QString &todoID, int caret) {
                    FocusTarget target{.blockID = QUuid(blockID), .caret = caret};
                    if (!todoID.isEmpty())
                        target.todoID = QUuid(todoID);
                    focused << PageText::focus(target);
                });
    }

    /// One page, open, with an editor on it.
    void edit(const QList<Block> &blocks)
    {
        const PelkoDocument document = page(blocks);
        pageID = document.id;
        store({document});
        edit(pageID);
    }

    QAbstractItemModel &blocks() const { return *qobject_cast<QAbstractItemModel *>(editor->blocks()); }

    const PelkoDocument &stored() const { return *state->document(pageID); }

    QString blockID(int row) const
    {
        return blocks().index(row, 0).data(BlockListModel::BlockIDRole).toString();
    }

    QStringList takeFocused() { return std::exchange(focused, {}); }

private Q_SLOTS:
    void init()
    {
        scheduler = {};
        clock = {};
        file = {};
        desktop = {};
        focused.clear();
    }

    void cleanup()
    {
        editor.reset();
        state.reset();
    }

    // What is shown

    void thePageOfTheStoreIsShown()
    {
        edit({block('A', heading, u"Title"_s), block('B', body, u"text"_s)});
        QCOMPARE(editor->documentID(), pageID.toString(QUuid::WithoutBraces));
        QCOMPARE(blocks().rowCount(), 2);
        QCOMPARE(editor->title(), u"Title"_s);
        QCOMPARE(editor->firstBlockIsBanner(), false);
        QCOMPARE(editor->offersDelete(), true);
        QCOMPARE(editor->focusedBlockID(), QString());
        QCOMPARE(editor->scrollTarget(), QString());
        QCOMPARE(editor->rowOf(id('B')), 1);
        QCOMPARE(editor->rowOf(id('C')), -1);
    }

    void anUnknownDocumentShowsAnEmptyPage()
    {
        store({});
        edit(QUuid::createUuid());
        QCOMPARE(blocks().rowCount(), 0);
        QCOMPARE(editor->title(), u"Untitled"_s);
        QCOMPARE(editor->firstBlockIsBanner(), false);
        QCOMPARE(editor->offersDelete(), false);
        QCOMPARE(editor->rowOf(id('A')), -1);
    }

    void operationsOnAnUnknownDocumentDoNothing()
    {
        store({});
        edit(QUuid::createUuid());
        editor->addBlock(u"textSmall"_s);
        editor->deleteBlock(id('A'));
        editor->toggleFullWidth(id('A'));
        editor->typed(id('A'), u"text"_s, 4);
        editor->typedTodo(id('A'), id('x'), u"text"_s, 4);
        editor->toggleTodo(id('A'), id('x'));
        editor->appendTodo(id('A'));
        editor->removeTodo(id('A'), id('x'));
        editor->appeared();
        state->setFocusMode(true);
        scheduler.advance(2s);
        QCOMPARE(state->documents(), {});
        QCOMPARE(editor->scrollTarget(), QString());
        QCOMPARE(focused, {});
        QCOMPARE(file.writes(), 0);
    }

    void addBlockDoesNothingForAnUnknownDocumentThoughAnotherIsOpen()
    {
        const PelkoDocument open = page({block('A')});
        store({open});
        edit(QUuid::createUuid());
        editor->addBlock(u"textSmall"_s);
        QCOMPARE(state->documents(), {open});
        QCOMPARE(editor->scrollTarget(), QString());
    }

    void aDocumentThatIsDeletedLeavesAnEmptyPage()
    {
        edit({block('A', heading, u"Title"_s), block('B')});
        QSignalSpy titles(editor.get(), &EditorViewModel::titleChanged);
        state->permanentlyDeleteDocument(stored());
        QCOMPARE(blocks().rowCount(), 0);
        QCOMPARE(editor->title(), u"Untitled"_s);
        QCOMPARE(editor->offersDelete(), false);
        QCOMPARE(titles.count(), 1);
    }

    void theTitleFollowsTheHeading()
    {
        edit({block('A', heading), block('B')});
        QSignalSpy titles(editor.get(), &EditorViewModel::titleChanged);
        QCOMPARE(editor->title(), u"Untitled"_s);
        editor->typed(id('A'), u"T"_s, 1);
        QCOMPARE(editor->title(), u"T"_s);
        editor->typed(id('B'), u"text"_s, 4);
        QCOMPARE(titles.count(), 1);
    }

    void changesOfOtherDocumentsAnnounceNothing()
    {
        const PelkoDocument own = page({block('A')});
        PelkoDocument other = page({block('B')});
        store({own, other});
        edit(own.id);
        ModelLog log(blocks());
        other.blocks[0].content = u"text"_s;
        state->updateDocument(other);
        state->captureSpark(u"a thought"_s);
        QCOMPARE(log.take(), {});
    }

    void aLiveMoveOfTheStoreIsAMoveOfTheModel()
    {
        edit({block('H'), block('A'), block('B'), block('C')});
        ModelLog log(blocks());
        state->moveBlock(pageID, 1, 3);
        QCOMPARE(log.take(), {u"1>3"_s});
        scheduler.advance(2s);
        QCOMPARE(file.writes(), 0);
    }

    void aDragGoesThroughTheStoreAndKeepsTheFocus()
    {
        edit({block('A'), block('B'), block('C')});
        editor->focusGained(id('A'));
        ModelLog log(blocks());
        editor->drag()->begin(id('A'));
        editor->drag()->enter(id('C'));
        QCOMPARE(log.take().value(0), u"0>2"_s);
        editor->drag()->drop();
        scheduler.advance(500ms);
        QCOMPARE(letters(stored()), u"BCA"_s);
        QCOMPARE(file.writes(), 1);
        QCOMPARE(editor->focusedBlockID(), id('A'));
    }

    void aBlockMovedByKeysIsSavedOnceAndKeepsTheFocus()
    {
        edit({block('A'), block('B'), block('C')});
        editor->focusGained(id('B'));
        editor->moveBlock(id('B'), -1);
        QCOMPARE(letters(stored()), u"BAC"_s);
        QCOMPARE(editor->focusedBlockID(), id('B'));
        editor->moveBlock(id('B'), -1);
        QCOMPARE(letters(stored()), u"BAC"_s);
        scheduler.advance(500ms);
        QCOMPARE(file.writes(), 1);
    }

    // Typing

    void oneKeyIsOneChangedRowAndOneWriteHalfASecondLater()
    {
        edit({block('A', heading, u"Title"_s), block('B')});
        ModelLog log(blocks());
        editor->typed(id('B'), u"w"_s, 1);
        QCOMPARE(log.take(), {u"1: content"_s});
        QCOMPARE(stored().updatedAt, clock.time);
        QCOMPARE(focused, {});
        scheduler.advance(499ms);
        QCOMPARE(file.writes(), 0);
        scheduler.advance(1ms);
        QCOMPARE(file.writes(), 1);
        QCOMPARE(readDocuments(*file.bytes).value(), {stored()});
        scheduler.advance(10s);
        QCOMPARE(file.writes(), 1);
    }

    void keysInQuickSuccessionAreOneWriteAfterTheLast()
    {
        edit({block('A')});
        QString text;
        for (int key = 0; key < 20; ++key) {
            text += u'x';
            editor->typed(id('A'), text, int(text.size()));
            scheduler.advance(100ms);
        }
        QCOMPARE(file.writes(), 0);
        scheduler.advance(399ms);
        QCOMPARE(file.writes(), 0);
        scheduler.advance(1ms);
        QCOMPARE(file.writes(), 1);
        QCOMPARE(readDocuments(*file.bytes).value().first().blocks.first().content, text);
    }

    void returnHasMovedTextAndFocusBeforeItReturns()
    {
        edit({block('A', heading), block('B', body, u"onetwo"_s), block('C')});
        ModelLog log(blocks());
        QString shownAtFocus;
        connect(editor.get(), &EditorViewModel::focusRequested, editor.get(), [&](const QString &blockID) {
            const auto row = blocks().index(editor->rowOf(blockID), 0);
            shownAtFocus = row.data(BlockListModel::ContentRole).toString();
        });
        editor->typed(id('B'), u"one\ntwo"_s, 4);
        QCOMPARE(log.take(), (QStringList{u"+2..2"_s, u"1: content"_s}));
        QCOMPARE(focused, {u"+@0"_s});
        QCOMPARE(shownAtFocus, u"two"_s);
        QCOMPARE(editor->focusedBlockID(), blockID(2));
    }

    void aShortcutChangesTheKindAndKeepsTheRow()
    {
        edit({block('A', heading), block('B', body, u">"_s)});
        const QPersistentModelIndex row = blocks().index(1, 0);
        editor->typed(id('B'), u"> "_s, 2);
        QCOMPARE(lines(stored()).last(), u"B quote \"\""_s);
        QVERIFY(row.isValid());
        QCOMPARE(row.data(BlockListModel::KindRole), u"quote"_s);
        QCOMPARE(focused, {u"B@end"_s});
    }

    void aChecklistShortcutFocusesItsFirstEntry()
    {
        edit({block('A')});
        editor->typed(id('A'), u"[] "_s, 3);
        QCOMPARE(lines(stored()), {u"A sticky \"\" todos(+[ ] \"\")"_s});
        QCOMPARE(focused, {u"A.+@end"_s});
        QCOMPARE(editor->focusedBlockID(), id('A'));
    }

    void deletingAnEmptyBlockFocusesTheEndOfTheOneAbove()
    {
        edit({block('A', body, u"text"_s), block('B'), block('C')});
        editor->typed(id('B'), {}, 0);
        scheduler.advance(0ms);
        QCOMPARE(letters(stored()), u"AC"_s);
        QCOMPARE(focused, {u"A@end"_s});
        QCOMPARE(editor->focusedBlockID(), id('A'));
    }

    void typingInAnUnknownBlockDoesNothing()
    {
        edit({block('A')});
        const PelkoDocument before = stored();
        editor->typed(id('B'), u"text"_s, 4);
        editor->typed(u"no id"_s, u"text"_s, 4);
        editor->typed({}, u"text"_s, 4);
        scheduler.advance(2s);
        QCOMPARE(stored(), before);
        QCOMPARE(file.writes(), 0);
    }

    // The document to mutate

    void operationsReachTheOpenDocument()
    {
        const PelkoDocument own = page({block('A'), block('B')});
        const PelkoDocument open = page({block('C'), image('D')});
        store({own, open});
        edit(own.id);
        state->setOpenDocumentID(open.id);

        editor->typed(id('A'), u"lost"_s, 4);
        editor->deleteBlock(id('A'));
        QCOMPARE(*state->document(own.id), own);

        editor->typed(id('C'), u"text"_s, 4);
        editor->toggleFullWidth(id('D'));
        QCOMPARE(lines(*state->document(open.id)),
                 (QStringList{u"D image \"\" image(picture) full"_s, u"C textSmall \"text\""_s}));
        QCOMPARE(*state->document(own.id), own);
    }

    void addBlockReachesTheOwnDocument()
    {
        const PelkoDocument own = page({block('A')});
        const PelkoDocument open = page({block('B')});
        store({own, open});
        edit(own.id);
        state->setOpenDocumentID(open.id);
        editor->addBlock(u"quote"_s);
        QCOMPARE(letters(*state->document(own.id)), u"A+"_s);
        QCOMPARE(*state->document(open.id), open);
    }

    void withNothingOpenOperationsReachTheOwnDocument()
    {
        edit({block('A')});
        state->setOpenDocumentID(std::nullopt);
        editor->typed(id('A'), u"text"_s, 4);
        QCOMPARE(lines(stored()), {u"A textSmall \"text\""_s});
        state->setOpenDocumentID(QUuid::createUuid());
        editor->typed(id('A'), u"more"_s, 4);
        QCOMPARE(lines(stored()), {u"A textSmall \"more\""_s});
    }

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
        editor->typedBannerTitle(id('A'), u"Ridge"_s, 5);
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
        editor->typedTodo(id('B'), id('x'), u"milk"_s, 4);
        QCOMPARE(list(), u"B sticky \"\" todos(x[ ] \"milk\")"_s);
        editor->toggleTodo(id('B'), id('x'));
        QCOMPARE(list(), u"B sticky \"\" todos(x[x] \"milk\")"_s);
        editor->appendTodo(id('B'));
        QCOMPARE(list(), u"B sticky \"\" todos(x[x] \"milk\", +[ ] \"\")"_s);
        QCOMPARE(takeFocused(), {u"B.+@end"_s});
        editor->removeTodo(id('B'), id('x'));
        QCOMPARE(list(), u"B sticky \"\" todos(+[ ] \"\")"_s);
        QCOMPARE(takeFocused(), {u"B.+@end"_s});
        QCOMPARE(stored().updatedAt, clock.time);
        scheduler.advance(500ms);
        QCOMPARE(file.writes(), 1);
    }

    void returnInAnEntryMakesTheNext()
    {
        edit({sticky('A', {todo('x', u"milk"_s)})});
        editor->typedTodo(id('A'), id('x'), u"milk\n"_s, 5);
        QCOMPARE(lines(stored()), {u"A sticky \"\" todos(x[ ] \"milk\", +[ ] \"\")"_s});
        QCOMPARE(focused, {u"A.+@0"_s});
    }

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

    void whatWantsTheFocusWaitsUntilTheNavigationCloses()
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

    // The selection

    void whatIsSelectedIsReplacedAsOneEdit()
    {
        edit({block('A', heading, u"first"_s), block('B', body, u"second"_s), block('C')});
        QSignalSpy changed(state.get(), &AppState::documentsChanged);

        editor->selection()->select(
            {.anchor = {.passage = {idOf('A')}, .offset = 2}, .head = {.passage = {idOf('B')}, .offset = 4}});
        editor->selection()->replace(u"x"_s);

        QCOMPARE(lines(stored()), (QStringList{u"A textLarge \"fixnd\""_s, u"C textSmall \"\""_s}));
        QCOMPARE(focused, QStringList{u"A@3"_s});
        QCOMPARE(changed.count(), 1);
        QVERIFY(!editor->selection()->isCrossing());
    }

    void aPageThatChangesElsewhereIsNoLongerSelected()
    {
        edit({block('A', heading, u"first"_s), block('B', body, u"second"_s)});
        editor->selection()->select({.anchor = {.passage = {idOf('A')}}, .head = {.passage = {idOf('B')}}});
        PelkoDocument changed = stored();
        changed.blocks.removeLast();
        state->updateDocument(changed);
        QVERIFY(!editor->selection()->isCrossing());
    }

    // The end

    void aReleasedEditorFollowsNothing()
    {
        edit({block('A'), block('B')});
        const QPointer<EditorViewModel> released = editor.get();
        editor->addBlock(u"quote"_s);
        ModelLog log(blocks());

        editor.release()->release(); // from here on it owns itself
        state->updateDocument(page({}));
        PelkoDocument changed = stored();
        changed.blocks.removeFirst();
        state->updateDocument(changed);
        state->setFocusMode(true);
        scheduler.advance(180ms);

        QCOMPARE(log.take(), {});
        QCOMPARE(focused, {});
        QCoreApplication::sendPostedEvents(released, QEvent::DeferredDelete);
        QVERIFY(!released);
        scheduler.advance(320ms);
        QCOMPARE(file.writes(), 1); // what was typed last is saved all the same
    }
};

PELKO_TEST(TestEditorViewModel)
#include "tst_EditorViewModel.moc"
