#include "Editor/BlockDropDelegate.h"
#include "Store/AppState.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

using namespace PageText;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TestBlockDropDelegate : public QObject
{
    Q_OBJECT

    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    std::unique_ptr<AppState> state;
    std::optional<QUuid> draggingBlockID;

    const PelkoDocument &stored() const { return state->documents().constFirst(); }

    /// Returns the delegate of the row with this block.
    BlockDropDelegate over(char letter)
    {
        return {block(letter), state->openDocument().value_or(PelkoDocument()), *state, draggingBlockID};
    }

private Q_SLOTS:
    /// Opens and saves a page with the blocks ABCD.
    void init()
    {
        scheduler = {};
        file = {};
        state = std::make_unique<AppState>(scheduler, clock, file);
        state->createDocument(Space::work);
        PelkoDocument page = *state->openDocument();
        page.blocks = {block('A'), block('B'), block('C'), block('D')};
        state->updateDocument(page);
        scheduler.advance(10s);
        draggingBlockID.reset();
    }

    void aBlockTakesThePlaceOfTheRowItIsDraggedOver_data()
    {
        QTest::addColumn<QString>("dragged");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("order");
        QTest::newRow("two down") << u"A"_s << u"C"_s << u"BCAD"_s;
        QTest::newRow("two up") << u"D"_s << u"B"_s << u"ADBC"_s;
        QTest::newRow("one down") << u"B"_s << u"C"_s << u"ACBD"_s;
        QTest::newRow("one up") << u"C"_s << u"B"_s << u"ACBD"_s;
        QTest::newRow("to the top") << u"D"_s << u"A"_s << u"DABC"_s;
        QTest::newRow("to the end") << u"A"_s << u"D"_s << u"BCDA"_s;
        QTest::newRow("its own row") << u"B"_s << u"B"_s << u"ABCD"_s;
        QTest::newRow("step by step") << u"A"_s << u"BCD"_s << u"BCDA"_s;
        QTest::newRow("there and back") << u"A"_s << u"BCB"_s << u"ABCD"_s;
        QTest::newRow("a row that is gone") << u"A"_s << u"X"_s << u"ABCD"_s;
        QTest::newRow("a block that is gone") << u"X"_s << u"B"_s << u"ABCD"_s;
    }

    void aBlockTakesThePlaceOfTheRowItIsDraggedOver()
    {
        QFETCH(const QString, dragged);
        QFETCH(const QString, path);
        QFETCH(const QString, order);
        draggingBlockID = idOf(dragged.at(0).toLatin1());

        for (const QChar row : path)
            over(row.toLatin1()).dropEntered();

        QCOMPARE(letters(stored()), order);
        QCOMPARE(draggingBlockID, idOf(dragged.at(0).toLatin1()));
    }

    void nothingMovesWithoutADrag()
    {
        QSignalSpy changed(state.get(), &AppState::documentsChanged);
        over('C').dropEntered();
        QCOMPARE(letters(stored()), u"ABCD"_s);
        QCOMPARE(changed.size(), 0);
    }

    void onlyTheDropSavesAndStamps()
    {
        const Timestamp before = stored().updatedAt.value();
        const qsizetype writes = file.writes();
        clock.time += 60;
        draggingBlockID = idOf('A');

        for (const char row : {'B', 'C', 'D'}) {
            over(row).dropEntered();
            scheduler.advance(10s);
        }
        QCOMPARE(letters(stored()), u"BCDA"_s);
        QCOMPARE(stored().updatedAt, before);
        QCOMPARE(file.writes(), writes);

        QVERIFY(over('D').performDrop());
        scheduler.advance(10s);
        QCOMPARE(letters(stored()), u"BCDA"_s);
        QCOMPARE(stored().updatedAt, before + 60);
        QCOMPARE(file.writes(), writes + 1);
        QCOMPARE(draggingBlockID, std::nullopt);
    }

    void anUnfinishedOrderIsSavedWithTheNextWriteOfThePage()
    {
        draggingBlockID = idOf('A');
        over('B').dropEntered();
        state->updateDocument(*state->openDocument());
        scheduler.advance(10s);
        const AppState reread(scheduler, clock, file);
        QCOMPARE(letters(reread.documents().constFirst()), u"BACD"_s);
    }

    void aDropAfterThePageWasClosedChangesNothing()
    {
        const BlockDropDelegate delegate = over('B');
        draggingBlockID = idOf('A');
        state->setOpenDocumentID(std::nullopt);
        QSignalSpy changed(state.get(), &AppState::documentsChanged);

        delegate.dropEntered();
        QVERIFY(delegate.performDrop());

        QCOMPARE(letters(stored()), u"ABCD"_s);
        QCOMPARE(changed.size(), 0);
        QCOMPARE(draggingBlockID, std::nullopt);
    }

    void theMoveGoesToTheOpenPageOnly()
    {
        draggingBlockID = idOf('A');
        state->createDocument(Space::work); // and opens it
        over('C').dropEntered();
        QCOMPARE(letters(stored()), u"ABCD"_s);
    }

    void thePointerShowsAMove() { QCOMPARE(over('B').dropUpdated(), DropProposal{DropOperation::move}); }
};

PELKO_TEST(TestBlockDropDelegate)
#include "tst_BlockDropDelegate.moc"
