#include "Editor/BlockDrag.h"
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

class TestBlockDrag : public QObject
{
    Q_OBJECT

    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    std::unique_ptr<AppState> state;
    std::unique_ptr<BlockDrag> drag;

    QString order() const { return letters(*state->openDocument()); }

    void pass(const char *rows)
    {
        for (; *rows; ++rows)
            drag->enter(id(*rows));
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
        drag = std::make_unique<BlockDrag>(*state);
    }

    void cleanup()
    {
        drag.reset();
        state.reset();
    }

    void aDropKeepsTheOrderOfTheWay()
    {
        const qsizetype writes = file.writes();
        drag->begin(id('A'));
        QCOMPARE(drag->draggingBlockID(), id('A'));
        pass("BC");
        drag->drop();
        QCOMPARE(drag->draggingBlockID(), QString());
        QCOMPARE(order(), u"BCAD"_s);
        scheduler.advance(10s);
        QCOMPARE(file.writes(), writes + 1);
    }

    void aDropMayLieManyRowsAway()
    {
        drag->begin(id('D'));
        pass("CBA");
        drag->drop();
        QCOMPARE(order(), u"DABC"_s);
    }

    void aDropWhereTheBlockCameFromIsNoReorder()
    {
        drag->begin(id('B'));
        pass("CC"); // over a row downwards and upwards again
        QCOMPARE(order(), u"ABCD"_s);
        drag->drop();
        QCOMPARE(order(), u"ABCD"_s);
    }

    void aCancelledDragPutsTheBlockBackUnsaved()
    {
        const PelkoDocument before = *state->openDocument();
        const qsizetype writes = file.writes();
        drag->begin(id('A'));
        pass("BCD");
        drag->cancel();
        scheduler.advance(10s);
        QCOMPARE(drag->draggingBlockID(), QString());
        QCOMPARE(*state->openDocument(), before);
        QCOMPARE(file.writes(), writes);
    }

    void textWrittenMeanwhileSurvivesACancel()
    {
        drag->begin(id('A'));
        pass("B");
        PelkoDocument page = *state->openDocument();
        page.blocks[0].content = u"typed"_s;
        page.blocks.removeLast();
        state->updateDocument(page);
        drag->cancel();
        QCOMPARE(lines(*state->openDocument()),
                 QStringList({u"A textSmall \"\""_s, u"B textSmall \"typed\""_s, u"C textSmall \"\""_s}));
    }

    void aBlockThatGoesWhileItIsDraggedIsLeftAlone_data()
    {
        QTest::addColumn<bool>("dropped");
        QTest::newRow("dropped") << true;
        QTest::newRow("cancelled") << false;
    }

    void aBlockThatGoesWhileItIsDraggedIsLeftAlone()
    {
        QFETCH(const bool, dropped);
        drag->begin(id('D'));
        PelkoDocument page = *state->openDocument();
        page.blocks.removeLast();
        state->updateDocument(page);
        pass("A");
        dropped ? drag->drop() : drag->cancel();
        QCOMPARE(order(), u"ABC"_s);
        QCOMPARE(drag->draggingBlockID(), QString());
    }

    void aPageThatIsClosedMeanwhileStaysAsItIs()
    {
        drag->begin(id('A'));
        pass("B");
        state->setOpenDocumentID(std::nullopt);
        drag->drop();
        QCOMPARE(letters(state->documents().constFirst()), u"BACD"_s);
        QCOMPARE(drag->draggingBlockID(), QString());
    }

    void nothingHappensWithoutADrag()
    {
        QSignalSpy changed(state.get(), &AppState::documentsChanged);
        QSignalSpy dragging(drag.get(), &BlockDrag::draggingBlockIDChanged);
        drag->begin(id('X'));
        pass("BC");
        drag->drop();
        drag->cancel();
        QCOMPARE(changed.size(), 0);
        QCOMPARE(dragging.size(), 0);
    }
};

PELKO_TEST(TestBlockDrag)
#include "tst_BlockDrag.moc"
