#include "Navigation/HighlightedLine.h"
#include "Navigation/PageTexts.h"
#include "Navigation/SearchWords.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

namespace
{
/// Returns the line with the highlighted ranges in brackets.
QString bracketed(const QString &text, const QList<HighlightRange> &marks)
{
    QString result = text;
    for (auto mark = marks.rbegin(); mark != marks.rend(); ++mark) {
        result.insert(mark->start + mark->length, u']');
        result.insert(mark->start, u'[');
    }
    return result;
}
} // namespace

class TestHighlightedLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAreMarked_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("marked");
        QTest::newRow("a whole word") << u"hour"_s << u"The first [hour] decides"_s;
        QTest::newRow("the beginning of one") << u"hou"_s << u"nine [hou]rs"_s;
        QTest::newRow("within others, where nothing better is") << u"our"_s << u"h[our]s of y[our]s"_s;
        QTest::newRow("not within others, where something better is") << u"our"_s << u"[our] hours"_s;
        QTest::newRow("several words") << u"day hour"_s << u"an [hour] against a [day]"_s;
        QTest::newRow("words that overlap") << u"morn morning"_s << u"this [morning]"_s;
        QTest::newRow("accents and what they stand on") << u"zurich"_s << u"in [Zu\u0308rich]."_s;
        QTest::newRow("letters that come apart") << u"stras"_s << u"[Straß]e"_s;
        QTest::newRow("half of such a letter only") << u"s"_s << u"[ß]"_s;
        QTest::newRow("right to left") << u"שלום"_s << u"אמר [שָׁלוֹם] לכולם"_s;
        QTest::newRow("emoji") << u"👩‍🚀"_s << u"a [👩‍🚀] flies"_s;
        QTest::newRow("no word") << u" "_s << u"nothing"_s;
        QTest::newRow("words that are not there") << u"kettle"_s << u"tea"_s;
    }

    void wordsAreMarked()
    {
        QFETCH(QString, query);
        QFETCH(QString, marked);
        const QString text = QString(marked).remove(u'[').remove(u']');

        QCOMPARE(bracketed(text, highlightRanges(text, SearchWords(query))), marked);
    }

    void aShortTextIsShownWhole()
    {
        const HighlightedLine line = lineAround(u" One\nquiet\t hour ", 11, SearchWords(u"hour"));

        QCOMPARE(bracketed(line.text, line.marks), u"One quiet [hour]"_s);
    }

    void aLongTextIsCutBetweenWordsAroundTheHit()
    {
        const QString words = u"many words stand here "_s.repeated(20);
        const QString text = words + u"until the kettle boils and "_s + words;
        const HighlightedLine line = lineAround(text, text.indexOf(u"kettle"), SearchWords(u"kettle"));

        QCOMPARE(bracketed(line.text, line.marks),
                 u"…words stand here until the [kettle] boils and many words stand here many words stand "
                 u"here…"_s);
    }

    void aTextWithoutSpacesIsCutBetweenCharacters()
    {
        const QString text = u"👩"_s.repeated(200) + u"x"_s + u"👩"_s.repeated(200);
        const HighlightedLine line = lineAround(text, 400, SearchWords(u"x"));

        QVERIFY(line.text.startsWith(u"…👩"_s));
        QVERIFY(line.text.endsWith(u"👩…"_s));
        QVERIFY(line.text.size() < 140);
        QCOMPARE(line.marks.size(), 1);
    }

    void namesAreOneShortLine_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << u"The first hour"_s << u"The first hour"_s;
        QTest::newRow("line breaks") << u"\n The first\r\n\u2028 hour \n"_s << u"The first hour"_s;
        QTest::newRow("right to left") << u"שלום לכולם"_s << u"שלום לכולם"_s;
        QTest::newRow("emoji") << u"👩‍🚀"_s << u"👩‍🚀"_s;
        QTest::newRow("of 10,000 letters") << u"x"_s.repeated(10'000) << u"x"_s.repeated(120) + u"…"_s;
        QTest::newRow("of 10,000 emoji")
            << u"a"_s + u"👩"_s.repeated(5'000) << u"a"_s + u"👩"_s.repeated(59) + u"…"_s;
        QTest::newRow("far apart") << u"a"_s + u" "_s.repeated(10'000) + u"b"_s << u"a…"_s;
    }

    void namesAreOneShortLine()
    {
        QFETCH(QString, title);
        QFETCH(QString, name);
        PelkoDocument page(Space::work, 1);
        page.blocks[0].content = title;

        QCOMPARE(pageName(page), name);
    }

    void sparksGoByWhatTheySay()
    {
        PelkoDocument spark(Space::ideas, 1);
        spark.blocks = {Block(BlockType::textSmall, u" \n "_s),
                        Block(BlockType::textSmall, u"A lamp\nthat dims"_s)};
        QVERIFY(isSpark(spark));
        QCOMPARE(pageName(spark), u"A lamp that dims"_s);

        spark.blocks = {Block(BlockType::divider)};
        QCOMPARE(pageName(spark), u"Untitled"_s);
        spark.blocks = {Block(BlockType::textSmall, u"text"_s), Block(BlockType::textLarge, u"Title"_s)};
        QVERIFY(!isSpark(spark));
        QCOMPARE(pageName(spark), u"Title"_s);
    }

    void aPageOfAnotherSpaceIsNoSpark()
    {
        PelkoDocument page(Space::work, 1);
        page.blocks = {Block(BlockType::textSmall, u"text"_s)};

        QVERIFY(!isSpark(page));
        QCOMPARE(pageName(page), u"Untitled"_s);
    }
};

PELKO_TEST(TestHighlightedLine)
#include "tst_HighlightedLine.moc"
