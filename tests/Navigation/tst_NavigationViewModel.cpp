#include "Navigation/NavigationViewModel.h"
#include "support/TestProgram.h"

#include "Store/AppState.h"
#include "support/DataFileText.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualScheduler.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{
PelkoDocument page(Space space, const QString &title, Timestamp createdAt)
{
    PelkoDocument document(space, createdAt);
    document.blocks[0].content = title;
    return document;
}

/// A store with these pages and its navigation.
struct Library {
    ManualScheduler scheduler;
    ManualClock clock;
    ManualDocumentFile file;
    AppState appState;
    NavigationViewModel navigation;

    explicit Library(const QList<PelkoDocument> &documents)
        : file(fileOf(documents))
        , appState(scheduler, clock, file)
        , navigation(appState, clock)
    {
    }

    static ManualDocumentFile fileOf(const QList<PelkoDocument> &documents)
    {
        ManualDocumentFile file;
        file.bytes = dataFileText(documents);
        return file;
    }

    QVariant value(int row, PageListModel::Role role)
    {
        auto *model = qobject_cast<PageListModel *>(navigation.pages());
        return model->data(model->index(row), role);
    }

    QString name(int row) { return value(row, PageListModel::NameRole).value<HighlightedLine>().text; }
    QString detail(int row) { return value(row, PageListModel::DetailRole).value<HighlightedLine>().text; }

    /// Returns the names of the pages, the open one in brackets, the selected row behind an arrow.
    QString list()
    {
        QStringList names;
        for (int row = 0; row < navigation.pageCount(); ++row)
            names.append(value(row, PageListModel::IsOpenRole).toBool() ? u"[%1]"_s.arg(name(row))
                                                                        : name(row));
        if (!navigation.isSearching())
            names.append(u"+"_s);
        if (navigation.chosenRow() >= 0)
            names[navigation.chosenRow()].prepend(u'>');
        return names.join(u' ');
    }

    /// Returns each space with its pages, the current one in brackets.
    QString spaces()
    {
        auto *model = qobject_cast<SpaceListModel *>(navigation.spaces());
        QStringList tabs;
        for (const SpaceTab &tab : model->rows()) {
            const QString text = displayName(tab.space) + QString::number(tab.pages);
            tabs.append(tab.isCurrent ? u"[%1]"_s.arg(text) : text);
        }
        return tabs.join(u' ');
    }
};

QList<PelkoDocument> many(int count)
{
    QList<PelkoDocument> pages;
    for (int number = 0; number < count; ++number)
        pages.append(page(Space::work, u"a"_s, number));
    return pages;
}

Library threePages()
{
    return Library(
        {page(Space::work, u"b"_s, 2), page(Space::work, u"a"_s, 1), page(Space::work, u"c"_s, 3)});
}
} // namespace

class TestNavigationViewModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePagesOfTheSpaceComeNewestFirstAndTheOpenOneIsChosen()
    {
        Library library = threePages();
        library.appState.setShowNav(true);

        QCOMPARE(library.list(), u"c >[b] a +"_s);
        QCOMPARE(library.navigation.summary(), QString());
        QCOMPARE(library.navigation.chosenPage(),
                 library.appState.openDocumentID()->toString(QUuid::WithoutBraces));
    }

    void ignoresChangesWhileClosed()
    {
        Library library = threePages();
        QSignalSpy changes(&library.navigation, &NavigationViewModel::pagesChanged);
        library.appState.createDocument(Space::work);

        QCOMPARE(changes.count(), 0);
        QCOMPARE(library.navigation.pageCount(), 0);
    }

    void eachSpaceTellsHowManyPagesItHas()
    {
        Library library = threePages();
        for (int i = 0; i < 7; ++i)
            library.appState.captureSpark(u"spark"_s);
        library.appState.setShowNav(true);

        QCOMPARE(library.spaces(), u"Ideas7 [Work3] Journal0"_s);
    }

    void placesAreCounted_data()
    {
        QTest::addColumn<int>("pages");
        QTest::addColumn<QString>("words");
        QTest::newRow("empty") << 0 << u"five places left in Work"_s;
        QTest::newRow("one left") << 4 << u"one place left in Work"_s;
        QTest::newRow("full") << 5 << u"no places left in Work"_s;
        QTest::newRow("more than full") << 7 << u"no places left in Work"_s;
    }

    void placesAreCounted()
    {
        QFETCH(int, pages);
        QFETCH(QString, words);
        Library library(many(pages));

        QCOMPARE(library.navigation.placesLeft(), words);
    }

    void aRowTellsAgeLengthAndMarks()
    {
        PelkoDocument document = page(Space::ideas, u"Two words"_s, 0);
        Library library({document});
        document.updatedAt = library.clock.time - 120;
        document.isPinned = true;
        document.isArchived = true;
        library.appState.captureSpark(u"one"_s);
        Library marked({document, library.appState.documents().last()});
        marked.appState.switchSpace(Space::ideas);
        marked.appState.setShowNav(true);

        QCOMPARE(marked.list(), u">[one] Two words +"_s);
        QCOMPARE(marked.detail(0), u"Just now · 1 word"_s);
        QCOMPARE(marked.detail(1), u"2m ago · 2 words"_s);
        QCOMPARE(marked.value(0, PageListModel::IsSparkRole).toBool(), true);
        QCOMPARE(marked.value(1, PageListModel::IsSparkRole).toBool(), false);
        QCOMPARE(marked.value(1, PageListModel::IsPinnedRole).toBool(), true);
        QCOMPARE(marked.value(1, PageListModel::IsArchivedRole).toBool(), true);
        QCOMPARE(marked.value(1, PageListModel::DescriptionRole).toString(),
                 u"Two words, 2m ago · 2 words, pinned, archived"_s);
        QCOMPARE(marked.value(0, PageListModel::DescriptionRole).toString(),
                 u"one, Just now · 1 word, open, spark"_s);
    }

    void agesAreThoseOfTheLastOpening()
    {
        Library library({page(Space::work, u"a"_s, ManualClock().time)});
        library.appState.setShowNav(true);
        QCOMPARE(library.detail(0), u"Just now · 1 word"_s);
        library.appState.setShowNav(false);
        library.clock.time += 3600;
        library.appState.setShowNav(true);

        QCOMPARE(library.detail(0), u"1h ago · 1 word"_s);
    }

    void theChoiceStopsAtBothEnds()
    {
        Library library = threePages();
        library.appState.setShowNav(true);
        library.navigation.choose(-1);
        QCOMPARE(library.list(), u">c [b] a +"_s);
        library.navigation.choose(99);
        QCOMPARE(library.list(), u"c [b] a >+"_s);
        QCOMPARE(library.navigation.chosenPage(), QString());
        QCOMPARE(library.navigation.chosenDescription(), u"New Document, two places left in Work"_s);
        library.navigation.moveChoice(-2);
        QCOMPARE(library.list(), u"c >[b] a +"_s);
        QVERIFY(library.navigation.chosenDescription().startsWith(u"b, "_s));
    }

    void openingAPageClosesTheNavigation()
    {
        Library library = threePages();
        library.appState.setShowNav(true);
        library.navigation.choose(0);
        library.navigation.openChosen();

        QCOMPARE(library.appState.openDocument()->title(), u"c"_s);
        QVERIFY(!library.appState.showNav());
    }

    void theLastRowMakesANewPage()
    {
        Library library = threePages();
        library.appState.setShowNav(true);
        library.navigation.choose(3);
        library.navigation.openChosen();

        QCOMPARE(library.appState.documents().size(), 4);
        QCOMPARE(library.appState.openDocument()->title(), u"Untitled"_s);
        QVERIFY(!library.appState.showNav());
    }

    void aFullSpaceTakesNoNewPage()
    {
        Library library(many(5));
        library.appState.setShowNav(true);
        library.navigation.createDocument();

        QCOMPARE(library.appState.documents().size(), 5);
        QVERIFY(library.appState.showDocLimitNudge());
        QVERIFY(library.appState.showNav());
    }

    void switchingTheSpaceShowsItsPages()
    {
        Library library({page(Space::work, u"w"_s, 1), page(Space::journal, u"old"_s, 1),
                         page(Space::journal, u"new"_s, 2)});
        library.appState.setShowNav(true);
        library.navigation.switchSpace(u"journal"_s);

        QCOMPARE(library.list(), u">[new] old +"_s);
        QCOMPARE(library.spaces(), u"Ideas0 Work1 [Journal2]"_s);
        QVERIFY(library.appState.showNav());
        library.navigation.switchSpace(u"attic"_s);
        QCOMPARE(library.appState.currentSpace(), Space::journal);
    }

    void anEmptySpaceSaysSoAndOffersANewPage()
    {
        Library library({page(Space::work, u"w"_s, 1)});
        library.appState.setShowNav(true);
        library.navigation.switchSpace(u"ideas"_s);

        QCOMPARE(library.navigation.summary(), u"No pages in Ideas yet"_s);
        QCOMPARE(library.list(), u">+"_s);
        library.navigation.openChosen();
        QCOMPARE(library.appState.openDocument()->space, Space::ideas);
    }

    void aSearchGoesOverAllSpaces()
    {
        Library library({page(Space::work, u"our"_s, 1), page(Space::journal, u"hour"_s, 1),
                         page(Space::ideas, u"else"_s, 1)});
        library.appState.setShowNav(true);
        library.navigation.search(u"our"_s);

        QCOMPARE(library.list(), u">[our] hour"_s);
        QCOMPARE(library.navigation.summary(), u"2 hits, all spaces"_s);
        QCOMPARE(library.value(1, PageListModel::SpaceRole).toString(), u"Journal"_s);
        QCOMPARE(library.value(1, PageListModel::DescriptionRole).toString(),
                 library.name(1) + u", "_s + library.detail(1) + u", Journal"_s);
        library.navigation.search(u"else"_s);
        QCOMPARE(library.navigation.summary(), u"1 hit, all spaces"_s);
    }

    void aHitOpensInItsSpace()
    {
        Library library({page(Space::work, u"w"_s, 1), page(Space::journal, u"hour"_s, 1)});
        library.appState.setShowNav(true);
        library.navigation.search(u"hour"_s);
        library.navigation.openChosen();

        QCOMPARE(library.appState.currentSpace(), Space::journal);
        QCOMPARE(library.appState.openDocument()->title(), u"hour"_s);
    }

    void noRowIsChosenWithoutHits()
    {
        Library library = threePages();
        library.appState.setShowNav(true);
        library.navigation.search(u"kettle"_s);

        QCOMPARE(library.navigation.chosenRow(), -1);
        QCOMPARE(library.navigation.summary(), u"No hits in any space"_s);
        library.navigation.openChosen();
        QCOMPARE(library.appState.documents().size(), 3);
        QVERIFY(library.appState.showNav());
    }

    void manyHitsAreCountedAndTheBestShown()
    {
        Library library(many(130));
        library.appState.setShowNav(true);
        library.navigation.search(u"a"_s);

        QCOMPARE(library.navigation.pageCount(), 100);
        QCOMPARE(library.navigation.summary(), u"The best 100 of 130 hits, all spaces"_s);
    }

    void anEmptySearchShowsTheSpaceAgain()
    {
        Library library = threePages();
        library.appState.setShowNav(true);
        library.navigation.search(u"kettle"_s);
        library.navigation.search(u" "_s);

        QCOMPARE(library.list(), u"c >[b] a +"_s);
    }

    void everyOpeningBeginsWithoutASearch()
    {
        Library library = threePages();
        library.appState.setShowNav(true);
        library.navigation.search(u"kettle"_s);
        library.appState.setShowNav(false);
        library.appState.setShowNav(true);

        QCOMPARE(library.navigation.query(), QString());
        QCOMPARE(library.list(), u"c >[b] a +"_s);
    }

    void aPageDeletedMeanwhileGoesAndTheNextIsChosen()
    {
        Library library = threePages();
        library.appState.setShowNav(true);
        library.appState.permanentlyDeleteDocument(*library.appState.openDocument());

        QCOMPARE(library.list(), u"[c] >a +"_s);
        library.appState.permanentlyDeleteDocument(library.appState.documents().first());
        QCOMPARE(library.list(), u">[c] +"_s);
        library.appState.permanentlyDeleteDocument(library.appState.documents().first());
        QCOMPARE(library.list(), u">+"_s);
    }

    void aPageDeletedElsewhereKeepsTheChoice()
    {
        Library library = threePages();
        library.appState.setShowNav(true);
        library.navigation.choose(2);
        library.appState.permanentlyDeleteDocument(library.appState.documents().last());

        QCOMPARE(library.list(), u"[b] >a +"_s);
    }

    void aHitDeletedMeanwhileGoes()
    {
        Library library = threePages();
        library.appState.setShowNav(true);
        library.navigation.search(u"b"_s);
        library.appState.permanentlyDeleteDocument(*library.appState.openDocument());

        QCOMPARE(library.list(), QString());
        QCOMPARE(library.navigation.summary(), u"No hits in any space"_s);
    }

    void aSparkCaughtMeanwhileAppears()
    {
        Library library = threePages();
        library.appState.switchSpace(Space::ideas);
        library.appState.setShowNav(true);
        library.appState.captureSpark(u"bright"_s);

        QCOMPARE(library.list(), u"bright >+"_s);
    }

    void openingAPageThatIsGoneOnlyClosesTheNavigation()
    {
        Library library = threePages();
        library.appState.setShowNav(true);
        library.navigation.open(QUuid::createUuid().toString());

        QCOMPARE(library.appState.openDocument()->title(), u"b"_s);
        QVERIFY(!library.appState.showNav());
    }
};

PELKO_TEST(TestNavigationViewModel)
#include "tst_NavigationViewModel.moc"
