#include "Store/AppState.h"
#include "support/DataFileText.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
PelkoDocument page(Space space, Timestamp createdAt)
{
    return PelkoDocument(space, createdAt);
}
} // namespace

class TestAppState : public QObject
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

    QList<PelkoDocument> saved() const { return readDocuments(*file.bytes).value(); }

    /// Calls `open` and returns how often the change was announced while the old page was still open.
    static int announcements(AppState &state, const std::function<void()> &open)
    {
        const auto before = state.openDocumentID();
        int count = 0;
        QObject context;
        connect(&state, &AppState::openDocumentIDAboutToChange, &context,
                [&] { count += state.openDocumentID() == before ? 1 : 100; });
        open();
        return count;
    }

private Q_SLOTS:
    void init()
    {
        scheduler = {};
        clock = {};
        file = {};
    }

    // Which row differs

    void aReplacedDocumentIsToldByItsRow()
    {
        const auto state = start({page(Space::work, 1), page(Space::work, 2), page(Space::work, 3)});
        QVERIFY(!state->replacedRow());
        std::optional<qsizetype> told;
        quint64 count = state->changeCount();
        connect(state.get(), &AppState::documentsChanged, state.get(), [&] {
            told = state->replacedRow();
            QCOMPARE(state->changeCount(), ++count);
        });

        state->updateDocument(state->documents()[1]);
        QCOMPARE(told, 1);
        state->moveBlock(state->documents()[2].id, 0, 1);
        QCOMPARE(told, 2);
        state->createDocument(Space::ideas);
        QVERIFY(!told);
        state->updateDocument(state->documents()[3]);
        QCOMPARE(told, 3);
        state->permanentlyDeleteDocument(state->documents()[0]);
        QVERIFY(!told);
    }

    void aChangeInsideAChangeHidesWhichRowDiffers()
    {
        const auto state = start({page(Space::work, 1), page(Space::work, 2)});
        connect(state.get(), &AppState::documentsChanged, state.get(), [&] {
            if (state->documents().size() == 2)
                state->createDocument(Space::ideas);
        });
        QList<bool> told;
        connect(state.get(), &AppState::documentsChanged, state.get(),
                [&] { told.append(state->replacedRow().has_value()); });

        state->updateDocument(state->documents()[1]);
        QCOMPARE(told, QList<bool>({false, false}));
    }

    // Announcing

    void itIsSaidBeforeAnotherDocumentIsOpened()
    {
        const PelkoDocument one = page(Space::work, 1);
        const PelkoDocument other = page(Space::ideas, 2);
        const auto state = start({one, other});
        QCOMPARE(announcements(*state, [&] { state->setOpenDocumentID(other.id); }), 1);
        QCOMPARE(announcements(*state, [&] { state->setOpenDocumentID(other.id); }), 0);
        QCOMPARE(announcements(*state, [&] { state->setOpenDocumentID(std::nullopt); }), 1);
        QCOMPARE(announcements(*state, [&] { state->createDocument(Space::work); }), 1);
        for (int count = 2; count < 5; ++count)
            state->createDocument(Space::work);
        QCOMPARE(announcements(*state, [&] { state->createDocument(Space::work); }), 0);
    }

    // Construction

    void aFirstStartHasNoDocumentsAndShowsWork()
    {
        const AppState state(scheduler, clock, file);
        QCOMPARE(state.documents(), {});
        QCOMPARE(state.currentSpace(), Space::work);
        QCOMPARE(state.openDocumentID(), std::nullopt);
        QCOMPARE(state.lastError(), std::nullopt);
        QVERIFY(!state.showDocLimitNudge() && !state.showSavedIndicator() && !state.focusMode());
        QVERIFY(!state.showNav() && !state.showTasksPanel() && !state.showAbout());
        QCOMPARE(file.writes(), 0);
    }

    void theFirstWorkDocumentOfTheFileIsOpenedNotTheNewest()
    {
        const QList documents{page(Space::ideas, 9), page(Space::work, 1), page(Space::work, 5)};
        const auto state = start(documents);
        QCOMPARE(state->documents(), documents);
        QCOMPARE(state->openDocumentID(), documents[1].id);
        QCOMPARE(state->openDocument(), documents[1]);
    }

    void aFileWithoutWorkOpensNothing()
    {
        QCOMPARE(start({page(Space::ideas, 1)})->openDocumentID(), std::nullopt);
    }

    void aCorruptFileIsReportedAndOverwrittenByTheNextSave()
    {
        file.bytes = "[{\"id\":";
        AppState state(scheduler, clock, file);
        QCOMPARE(state.documents(), {});
        QCOMPARE(state.lastError(), u"Failed to load your documents."_s);
        QCOMPARE(*file.bytes, "[{\"id\":");
        state.createDocument(Space::work);
        scheduler.advance(500ms);
        QCOMPARE(saved(), state.documents());
        QCOMPARE(state.lastError(), u"Failed to load your documents."_s);
    }

    void anUnreadableFileIsReported()
    {
        file.readError = u"Input/output error"_s;
        QCOMPARE(AppState(scheduler, clock, file).lastError(), u"Failed to load your documents."_s);
    }

    // Creating

    void aNewDocumentIsAnEmptyPageThatIsOpenedAndSaved()
    {
        AppState state(scheduler, clock, file);
        state.createDocument(Space::journal);
        const PelkoDocument document = state.documents().value(0);
        QCOMPARE(state.documents().size(), 1);
        QCOMPARE(document.space, Space::journal);
        QCOMPARE(document.createdAt, clock.time);
        QCOMPARE(document.updatedAt, std::nullopt);
        QCOMPARE(document.blocks.size(), 2);
        QCOMPARE(state.openDocumentID(), document.id);
        QCOMPARE(state.currentSpace(), Space::work);
        QCOMPARE(file.writes(), 0);
        scheduler.advance(500ms);
        QCOMPARE(saved(), state.documents());
    }

    void theSixthDocumentOfASpaceOnlyRaisesTheNudge()
    {
        const auto state = start({page(Space::journal, 1)});
        for (int created = 0; created < 4; ++created)
            state->createDocument(Space::journal);
        QCOMPARE(state->documents().size(), 5);
        QVERIFY(!state->showDocLimitNudge());
        scheduler.advance(1s);
        const auto open = state->openDocumentID();
        const int writes = file.writes();

        state->createDocument(Space::journal);
        QVERIFY(state->showDocLimitNudge());
        QCOMPARE(state->documents().size(), 5);
        QCOMPARE(state->openDocumentID(), open);
        scheduler.advance(1s);
        QCOMPARE(file.writes(), writes);
    }

    void otherSpacesDoNotCountTowardsTheLimit()
    {
        const auto state = start(QList<PelkoDocument>(5, page(Space::ideas, 1)));
        state->createDocument(Space::work);
        QCOMPARE(state->documents().size(), 6);
    }

    void archivedAndPinnedDocumentsCountTowardsTheLimit()
    {
        PelkoDocument archived = page(Space::work, 1);
        archived.isArchived = true;
        archived.isPinned = true;
        const auto state = start(QList<PelkoDocument>(5, archived));
        state->createDocument(Space::work);
        QVERIFY(state->showDocLimitNudge());
    }

    // Updating

    void anUpdateReplacesTheDocumentAndStampsIt()
    {
        const auto state = start({page(Space::work, 1), page(Space::work, 2)});
        PelkoDocument edited = state->documents()[1];
        edited.blocks[0].content = u"New"_s;
        edited.updatedAt = 3;
        edited.isPinned = true;
        clock.time = 800'000'123.25;
        state->updateDocument(edited);
        edited.updatedAt = 800'000'123.25;
        QCOMPARE(state->documents()[1], edited);
        QCOMPARE(state->documents()[0].updatedAt, std::nullopt);
    }

    void ofTwoDocumentsWithOneIdTheFirstIsUpdated()
    {
        const PelkoDocument twin = page(Space::work, 1);
        const auto state = start({twin, twin});
        state->updateDocument(twin);
        QVERIFY(state->documents()[0].updatedAt);
        QVERIFY(!state->documents()[1].updatedAt);
    }

    void anUpdateOfAnUnknownDocumentDoesNothing()
    {
        const auto state = start({page(Space::work, 1)});
        QSignalSpy changed(state.get(), &AppState::documentsChanged);
        state->updateDocument(page(Space::work, 1));
        scheduler.advance(10s);
        QCOMPARE(changed.size(), 0);
        QCOMPARE(file.writes(), 0);
    }

    void anUpdateThatChangesNothingIsNotAnnouncedButSaved()
    {
        PelkoDocument document = page(Space::work, 1);
        document.updatedAt = clock.time;
        const auto state = start({document});
        QSignalSpy changed(state.get(), &AppState::documentsChanged);
        state->updateDocument(document);
        QCOMPARE(changed.size(), 0);
        scheduler.advance(500ms);
        QCOMPARE(file.writes(), 1);
        clock.time += 1;
        state->updateDocument(document);
        QCOMPARE(changed.size(), 1);
    }
};

PELKO_TEST(TestAppState)
#include "tst_AppState.moc"
