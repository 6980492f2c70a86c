#include "Navigation/PageRow.h"
#include "Navigation/PageSearch.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

namespace
{
PelkoDocument page(const QString &title, const QStringList &texts = {}, Space space = Space::work)
{
    PelkoDocument document(space, 1);
    document.blocks = {Block(BlockType::textLarge, title)};
    for (const QString &text : texts)
        document.blocks.append(Block(BlockType::textSmall, text));
    return document;
}

PelkoDocument spark(const QString &text)
{
    PelkoDocument document(Space::ideas, 1);
    document.blocks = {Block(BlockType::textSmall, text)};
    return document;
}

/// Returns the rows of the best results as letters.
QString order(const PageHits &hits)
{
    QString letters;
    for (const PageHit &hit : hits.best)
        letters += QChar(u'A' + static_cast<char16_t>(hit.page));
    return letters;
}

QString found(const QList<PelkoDocument> &pages, const QString &query)
{
    return order(findPages(pages, SearchWords(query), 100));
}
} // namespace

class TestPageSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesAreFoundByTheirWords_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("pages");
        QTest::newRow("a word of a title") << u"printer"_s << u"A"_s;
        QTest::newRow("a word of a text") << u"kettle"_s << u"B"_s;
        QTest::newRow("case and accents, typed") << u"CRÈME"_s << u"B"_s;
        QTest::newRow("case and accents, written") << u"creme"_s << u"B"_s;
        QTest::newRow("every space") << u"lamp"_s << u"C"_s;
        QTest::newRow("all words, wherever they stand") << u"kettle hour"_s << u"B"_s;
        QTest::newRow("in any order, with space around") << u"  hour \t kettle "_s << u"B"_s;
        QTest::newRow("one word is missing") << u"kettle printer"_s << u""_s;
        QTest::newRow("the same word twice") << u"kettle kettle"_s << u"B"_s;
        QTest::newRow("a quote") << u"epigraph"_s << u"D"_s;
        QTest::newRow("an entry of a checklist") << u"milk"_s << u"D"_s;
        QTest::newRow("the title of a banner") << u"bannered"_s << u"D"_s;
        QTest::newRow("not what no reader sees") << u"hidden"_s << u""_s;
        QTest::newRow("a page without a title by what it is called") << u"untitled"_s << u"E"_s;
        QTest::newRow("right to left") << u"שלום"_s << u"E"_s;
        QTest::newRow("an emoji") << u"🚀"_s << u"E"_s;
        QTest::newRow("a script without spaces") << u"本語"_s << u"E"_s;
        QTest::newRow("nothing typed") << u"  "_s << u""_s;
        QTest::newRow("nothing but an accent") << u"\u0301"_s << u""_s;
    }

    void pagesAreFoundByTheirWords()
    {
        QFETCH(QString, query);
        QFETCH(QString, pages);
        PelkoDocument mixed(Space::journal, 1);
        Block banner(BlockType::image, u"hidden"_s), picture(BlockType::image),
            list(BlockType::sticky, u"hidden"_s);
        banner.isFullWidth = true;
        banner.bannerTitle = u"Bannered"_s;
        picture.bannerTitle = u"hidden"_s;
        list.todos = {TodoItem{QUuid::createUuid(), u"Milk"_s, true}};
        mixed.blocks = {banner, picture, list, Block(BlockType::quote, u"Epigraph"_s),
                        Block(BlockType::divider, u"hidden"_s)};
        const QList library{
            page(u"Letter to the printer"_s), page(u"The first hour"_s, {u"A kettle"_s, u"and crème"_s}),
            spark(u"A lamp that dims"_s), mixed, page(u" "_s, {u"שלום"_s, u"a 🚀 rises"_s, u"日本語"_s})};

        QCOMPARE(found(library, query), pages);
    }

    void theBestComeFirst_data()
    {
        QTest::addColumn<QStringList>("titles"); // the text follows the title behind a slash
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("order");
        QTest::newRow("titles before texts") << QStringList{u"a|hour"_s, u"hour|b"_s} << u"hour"_s << u"BA"_s;
        QTest::newRow("whole words before beginnings before the rest")
            << QStringList{u"ours"_s, u"yours"_s, u"our"_s} << u"our"_s << u"CAB"_s;
        QTest::newRow("the rest of a title before a whole word of a text")
            << QStringList{u"a|our"_s, u"yours"_s} << u"our"_s << u"BA"_s;
        QTest::newRow("the words together before apart")
            << QStringList{u"a|quiet is the hour"_s, u"b|a quiet hour"_s} << u"quiet hour"_s << u"BA"_s;
        QTest::newRow("both words in the title before one")
            << QStringList{u"quiet|hour"_s, u"hour, quiet"_s} << u"quiet hour"_s << u"BA"_s;
    }

    void theBestComeFirst()
    {
        QFETCH(QStringList, titles);
        QFETCH(QString, query);
        QFETCH(QString, order);
        QList<PelkoDocument> library;
        for (const QString &title : titles)
            library.append(page(title.section(u'|', 0, 0), {title.section(u'|', 1, 1)}));

        QCOMPARE(found(library, query), order);
    }

    void equalHitsSortLastWrittenFirst()
    {
        QList<PelkoDocument> library{page(u"hour"_s), page(u"hour"_s), page(u"hour"_s), page(u"hour"_s)};
        library[1].createdAt = 5;
        library[2].updatedAt = 9;

        QCOMPARE(found(library, u"hour"_s), u"CBAD"_s);
    }

    void onlySoManyAreShownButAllAreCounted()
    {
        const QList<PelkoDocument> library(50, page(u"hour"_s));
        const PageHits hits = findPages(library, SearchWords(u"hour"), 3);

        QCOMPARE(order(hits), u"ABC"_s);
        QCOMPARE(hits.total, 50);
    }

    void rowsShowWhereTheWordsWereFound_data()
    {
        QTest::addColumn<PelkoDocument>("document");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("context");
        const QString far = u"word "_s.repeated(40);
        QTest::newRow("in the title") << page(u"One hour"_s, {u"text"_s}) << u"One hour"_s << QString();
        QTest::newRow("in a text") << page(u"Title"_s, {u"other"_s, u"an hour"_s}) << u"Title"_s
                                   << u"an hour"_s;
        QTest::newRow("in both") << page(u"One hour"_s, {u"another hour"_s}) << u"One hour"_s
                                 << u"another hour"_s;
        QTest::newRow("where it fits best")
            << page(u"Title"_s, {u"yours"_s, u"hours"_s, u"this hour"_s, u"hour"_s}) << u"Title"_s
            << u"this hour"_s;
        QTest::newRow("in a spark") << spark(u"half an hour"_s) << u"half an hour"_s << QString();
        QTest::newRow("far on in a spark")
            << spark(far + u"hour"_s) << u"…word word word word word hour"_s << QString();
        QTest::newRow("far on in a title")
            << page(far + u"hour"_s) << u"…word word word word word hour"_s << QString();
    }

    void rowsShowWhereTheWordsWereFound()
    {
        QFETCH(PelkoDocument, document);
        QFETCH(QString, name);
        QFETCH(QString, context);
        const SearchWords words(u"hour");
        const PageHits hits = findPages({document}, words, 1);
        QCOMPARE(hits.total, 1);
        const PageRow row = hitRow(document, hits.best.first(), words);

        QCOMPARE(row.page, document);
        QCOMPARE(row.name->text, name);
        QCOMPARE(row.context.value_or(HighlightedLine()).text, context);
        QVERIFY(!row.context || !row.context->marks.isEmpty());
    }
};

PELKO_TEST(TestPageSearch)
#include "tst_PageSearch.moc"
