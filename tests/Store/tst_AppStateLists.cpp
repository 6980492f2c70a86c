#include "Store/AppState.h"
#include "support/DataFileText.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Deleting, sparks, the lists of a space, and the flags.
class TestAppStateLists : public QObject
{
    Q_OBJECT

    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;

    std::unique_ptr<AppState> start(const QList<PelkoDocument> &documents)
    {
        file.bytes = dataFileText(documents);
        return std::make_unique<AppState>(scheduler, clock, file);
    }

    static PelkoDocument page(Space space, Timestamp createdAt) { return PelkoDocument(space, createdAt); }

private Q_SLOTS:
    void init()
    {
        scheduler = {};
        clock = {};
        file = {};
    }

    // Deleting

    void deletingTheOpenDocumentOpensTheNewestOfTheCurrentSpace()
    {
        const QList documents{page(Space::work, 1), page(Space::work, 9), page(Space::work, 5),
                              page(Space::ideas, 20)};
        const auto state = start(documents);
        state->permanentlyDeleteDocument(documents[0]);
        QCOMPARE(state->documents(), QList({documents[1], documents[2], documents[3]}));
        QCOMPARE(state->openDocumentID(), documents[1].id);
        scheduler.advance(500ms);
        QCOMPARE(file.writes(), 1);
    }

    void deletingADocumentOfAnotherSpaceThatIsOpenAlsoOpensOneOfTheCurrentSpace()
    {
        const QList documents{page(Space::work, 1), page(Space::journal, 9), page(Space::journal, 10)};
        const auto state = start(documents);
        state->setOpenDocumentID(documents[1].id);
        state->permanentlyDeleteDocument(documents[1]);
        QCOMPARE(state->openDocumentID(), documents[0].id);
    }

    void deletingTheLastDocumentOfTheCurrentSpaceOpensNothing()
    {
        const QList documents{page(Space::work, 1), page(Space::ideas, 1)};
        const auto state = start(documents);
        state->permanentlyDeleteDocument(documents[0]);
        QCOMPARE(state->openDocumentID(), std::nullopt);
        QCOMPARE(state->openDocument(), std::nullopt);
    }

    void deletingAClosedDocumentKeepsTheSelection()
    {
        const QList documents{page(Space::work, 1), page(Space::work, 9)};
        const auto state = start(documents);
        state->permanentlyDeleteDocument(documents[1]);
        QCOMPARE(state->openDocumentID(), documents[0].id);
    }

    void deletingRemovesEveryDocumentOfTheId()
    {
        const PelkoDocument twin = page(Space::work, 1), other = page(Space::work, 2);
        const auto state = start({twin, other, twin});
        state->permanentlyDeleteDocument(state->documents().first());
        QCOMPARE(state->documents(), QList{other});
    }

    void deletingAnUnknownDocumentSaves()
    {
        const auto state = start({page(Space::work, 1)});
        QSignalSpy changed(state.get(), &AppState::documentsChanged);
        state->permanentlyDeleteDocument(page(Space::work, 1));
        QCOMPARE(changed.size(), 0);
        scheduler.advance(500ms);
        QCOMPARE(file.writes(), 1);
    }

    // Spaces

    void switchingTheSpaceOpensItsNewestDocument()
    {
        const QList documents{page(Space::work, 1), page(Space::ideas, 5), page(Space::ideas, 9),
                              page(Space::ideas, 9)};
        const auto state = start(documents);
        state->switchSpace(Space::ideas);
        QCOMPARE(state->currentSpace(), Space::ideas);
        QCOMPARE(state->openDocumentID(), documents[2].id);
        scheduler.advance(10s);
        QCOMPARE(file.writes(), 0);
    }

    void switchingToAnEmptySpaceOpensNothing()
    {
        const auto state = start({page(Space::work, 1)});
        state->switchSpace(Space::journal);
        QCOMPARE(state->currentSpace(), Space::journal);
        QCOMPARE(state->openDocumentID(), std::nullopt);
    }

    void switchingToTheSpaceOfTheOpenDocumentLeavesItOpen()
    {
        const QList documents{page(Space::work, 1), page(Space::work, 9)};
        const auto state = start(documents);
        QSignalSpy about(state.get(), &AppState::openDocumentIDAboutToChange);
        state->switchSpace(Space::work);
        QCOMPARE(state->openDocumentID(), documents[0].id);
        QCOMPARE(about.size(), 0);
    }

    void theSpaceAndItsDocumentChangeTogether()
    {
        const QList documents{page(Space::work, 1), page(Space::journal, 1)};
        const auto state = start(documents);
        int heard = 0;
        const auto look = [&] {
            ++heard;
            QCOMPARE(state->currentSpace(), Space::journal);
            QCOMPARE(state->openDocumentID(), documents[1].id);
        };
        connect(state.get(), &AppState::currentSpaceChanged, this, look);
        connect(state.get(), &AppState::openDocumentIDChanged, this, look);
        QSignalSpy about(state.get(), &AppState::openDocumentIDAboutToChange);
        state->switchSpace(Space::journal);
        QCOMPARE(heard, 2);
        QCOMPARE(about.size(), 1);
    }

    void showingADocumentShowsItsSpace()
    {
        const QList documents{page(Space::work, 1), page(Space::journal, 1), page(Space::journal, 9)};
        const auto state = start(documents);
        state->showDocument(documents[1].id);
        QCOMPARE(state->currentSpace(), Space::journal);
        QCOMPARE(state->openDocumentID(), documents[1].id);
    }

    void showingAnUnknownDocumentChangesNothing()
    {
        const QList documents{page(Space::work, 1), page(Space::journal, 1)};
        const auto state = start(documents);
        state->showDocument(QUuid::createUuid());
        QCOMPARE(state->currentSpace(), Space::work);
        QCOMPARE(state->openDocumentID(), documents[0].id);
    }

    // Sparks

    void aSparkIsOneTrimmedLineInIdeasAndSavedAtOnce()
    {
        const auto state = start({page(Space::work, 1)});
        const auto open = state->openDocumentID();
        const auto spark = state->captureSpark(u" \t\n two words\u2003\u0085"_s);
        QVERIFY(spark);
        QCOMPARE(spark->space, Space::ideas);
        QCOMPARE(spark->createdAt, clock.time);
        QCOMPARE(spark->updatedAt, clock.time);
        QCOMPARE(spark->blocks.size(), 1);
        QCOMPARE(spark->blocks[0].type, BlockType::textSmall);
        QCOMPARE(spark->blocks[0].content, u"two words"_s);
        QCOMPARE(state->documents().last(), *spark);
        QCOMPARE(file.writes(), 1);
        QCOMPARE(readDocuments(*file.bytes), state->documents());
        QCOMPARE(state->openDocumentID(), open);
        QCOMPARE(state->currentSpace(), Space::work);
        scheduler.advance(10s);
        QCOMPARE(file.writes(), 1);
    }

    void rejectsBlankSpark_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << u""_s;
        QTest::newRow("spaces and line breaks") << u"  \n \r\n\u2028\u2029"_s;
        QTest::newRow("rare white space") << u"\u00A0\u0085\u1680\u3000\v\f"_s;
    }

    void rejectsBlankSpark()
    {
        QFETCH(QString, text);
        const auto state = start({});
        QCOMPARE(state->captureSpark(text), std::nullopt);
        QCOMPARE(state->documents(), {});
        QCOMPARE(file.writes(), 0);
    }

    void theLimitDoesNotHoldForSparks()
    {
        const auto state = start({});
        for (int count = 0; count < 5; ++count)
            state->createDocument(Space::ideas);
        for (int count = 0; count < 3; ++count)
            QVERIFY(state->captureSpark(u"spark"_s));
        state->createDocument(Space::ideas);
        QVERIFY(state->showDocLimitNudge());
        QVERIFY(state->captureSpark(u"one more"_s));
        QCOMPARE(state->sparks().size(), 9);
    }

    // Lists

    void listsShowTheNewestFirstAndKeepTheOrderOfEqualTimes()
    {
        PelkoDocument archived = page(Space::ideas, 5);
        archived.isArchived = true;
        PelkoDocument pinned = page(Space::ideas, 1);
        pinned.isPinned = true;
        const QList documents{pinned, page(Space::work, 7), archived, page(Space::ideas, 5),
                              page(Space::ideas, 9)};
        const auto state = start(documents);
        const QList expected{documents[4], documents[2], documents[3], documents[0]};
        QCOMPARE(state->sparks(), expected);
        QCOMPARE(state->currentSpaceDocuments(), QList{documents[1]});
        state->setCurrentSpace(Space::ideas);
        QCOMPARE(state->currentSpaceDocuments(), expected);
    }

    void theOpenDocumentIsFoundInAnySpace()
    {
        const QList documents{page(Space::work, 1), page(Space::journal, 2)};
        const auto state = start(documents);
        state->setOpenDocumentID(documents[1].id);
        QCOMPARE(state->openDocument(), documents[1]);
        state->setOpenDocumentID(QUuid::createUuid());
        QCOMPARE(state->openDocument(), std::nullopt);
    }

    // Moving a block while it is dragged

    void aDraggedBlockMovesInMemoryOnly()
    {
        PelkoDocument document = page(Space::work, 1);
        document.blocks = {Block(BlockType::quote, u"a"_s), Block(BlockType::quote, u"b"_s),
                           Block(BlockType::quote, u"c"_s)};
        const QList<Block> blocks = document.blocks;
        const auto state = start({document});
        QSignalSpy changed(state.get(), &AppState::documentsChanged);
        state->moveBlock(document.id, 0, 2);
        QCOMPARE(state->documents()[0].blocks, QList({blocks[1], blocks[2], blocks[0]}));
        QCOMPARE(state->documents()[0].updatedAt, std::nullopt);
        QCOMPARE(changed.size(), 1);
        scheduler.advance(10s);
        QCOMPARE(file.writes(), 0);
    }

    void ignoresMoveToInvalidRow()
    {
        const auto state = start({page(Space::work, 1)});
        const QList<PelkoDocument> before = state->documents();
        QSignalSpy changed(state.get(), &AppState::documentsChanged);
        state->moveBlock(before[0].id, 0, 2);
        state->moveBlock(before[0].id, -1, 0);
        state->moveBlock(before[0].id, 1, 1);
        state->moveBlock(QUuid::createUuid(), 0, 1);
        QCOMPARE(state->documents(), before);
        QCOMPARE(changed.size(), 0);
    }

    // Flags

    void aFlagIsAnnouncedOnlyWhenItChanges()
    {
        const auto state = start({});
        QSignalSpy focus(state.get(), &AppState::focusModeChanged);
        QSignalSpy nav(state.get(), &AppState::showNavChanged);
        QSignalSpy tasks(state.get(), &AppState::showTasksPanelChanged);
        QSignalSpy about(state.get(), &AppState::showAboutChanged);
        QSignalSpy nudge(state.get(), &AppState::showDocLimitNudgeChanged);
        QSignalSpy space(state.get(), &AppState::currentSpaceChanged);
        QSignalSpy open(state.get(), &AppState::openDocumentIDChanged);
        const QUuid id = QUuid::createUuid();
        for (int twice = 0; twice < 2; ++twice) {
            state->setFocusMode(true);
            state->setShowNav(true);
            state->setShowTasksPanel(true);
            state->setShowAbout(true);
            state->setShowDocLimitNudge(true);
            state->setCurrentSpace(Space::journal);
            state->setOpenDocumentID(id);
        }
        for (const QSignalSpy *spy : {&focus, &nav, &tasks, &about, &nudge, &space, &open})
            QCOMPARE(spy->size(), 1);
        QVERIFY(state->focusMode() && state->showNav() && state->showTasksPanel() && state->showAbout());
        QVERIFY(state->showDocLimitNudge());
        QCOMPARE(state->currentSpace(), Space::journal);
        QCOMPARE(state->openDocumentID(), id);
    }

    void whoHearsOfANewDocumentFindsItOpenAlready()
    {
        const auto state = start({});
        bool whole = false;
        connect(state.get(), &AppState::documentsChanged, this,
                [&] { whole = state->openDocumentID() == state->documents().last().id; });
        state->createDocument(Space::work);
        QVERIFY(whole);
    }
};

PELKO_TEST(TestAppStateLists)
#include "tst_AppStateLists.moc"
