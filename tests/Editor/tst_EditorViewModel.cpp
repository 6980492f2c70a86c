#include "EditorTest.h"
#include "support/ModelLog.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSignalSpy>

using namespace PageText;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TestEditorViewModel : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
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
        editor->typed(address('A'), u"text"_s, 4);
        editor->typed(address('A', 'x'), u"text"_s, 4);
        editor->toggleTodo(address('A', 'x'));
        editor->appendTodo(id('A'));
        editor->removeTodo(address('A', 'x'));
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
        editor->typed(address('A'), u"T"_s, 1);
        QCOMPARE(editor->title(), u"T"_s);
        editor->typed(address('B'), u"text"_s, 4);
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
        editor->typed(address('B'), u"w"_s, 1);
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
        for (int key = 0; key < 15; ++key) {
            text += u'x';
            editor->typed(address('A'), text, int(text.size()));
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
        connect(editor.get(), &EditorViewModel::focusRequested, editor.get(),
                [&](const TextAddress &address) {
                    const auto row = blocks().index(editor->rowOf(address.blockName()), 0);
                    shownAtFocus = row.data(BlockListModel::ContentRole).toString();
                });
        editor->typed(address('B'), u"one\ntwo"_s, 4);
        QCOMPARE(log.take(), (QStringList{u"+2..2"_s, u"1: content"_s}));
        QCOMPARE(focused, {u"+@0"_s});
        QCOMPARE(shownAtFocus, u"two"_s);
        QCOMPARE(editor->focusedBlockID(), blockID(2));
    }

    void aShortcutChangesTheKindAndKeepsTheRow()
    {
        edit({block('A', heading), block('B', body, u">"_s)});
        const QPersistentModelIndex row = blocks().index(1, 0);
        editor->typed(address('B'), u"> "_s, 2);
        QCOMPARE(lines(stored()).last(), u"B quote \"\""_s);
        QVERIFY(row.isValid());
        QCOMPARE(row.data(BlockListModel::KindRole), u"quote"_s);
        QCOMPARE(focused, {u"B@end"_s});
    }

    void aChecklistShortcutFocusesItsFirstEntry()
    {
        edit({block('A')});
        editor->typed(address('A'), u"[] "_s, 3);
        QCOMPARE(lines(stored()), {u"A sticky \"\" todos(+[ ] \"\")"_s});
        QCOMPARE(focused, {u"A.+@end"_s});
        QCOMPARE(editor->focusedBlockID(), id('A'));
    }

    void deletingAnEmptyBlockFocusesTheEndOfTheOneAbove()
    {
        edit({block('A', body, u"text"_s), block('B'), block('C')});
        editor->typed(address('B'), {}, 0);
        scheduler.advance(0ms);
        QCOMPARE(letters(stored()), u"AC"_s);
        QCOMPARE(focused, {u"A@end"_s});
        QCOMPARE(editor->focusedBlockID(), id('A'));
    }

    void typingInAnUnknownBlockDoesNothing()
    {
        edit({block('A')});
        const PelkoDocument before = stored();
        editor->typed(address('B'), u"text"_s, 4);
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

        editor->typed(address('A'), u"lost"_s, 4);
        editor->deleteBlock(id('A'));
        QCOMPARE(*state->document(own.id), own);

        editor->typed(address('C'), u"text"_s, 4);
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
        editor->typed(address('A'), u"text"_s, 4);
        QCOMPARE(lines(stored()), {u"A textSmall \"text\""_s});
        state->setOpenDocumentID(QUuid::createUuid());
        editor->typed(address('A'), u"more"_s, 4);
        QCOMPARE(lines(stored()), {u"A textSmall \"more\""_s});
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

        editor.release()->release(); // it deletes itself then
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
        QCOMPARE(file.writes(), 1); // what was typed before is saved nevertheless
    }
};

PELKO_TEST(TestEditorViewModel)
#include "tst_EditorViewModel.moc"
