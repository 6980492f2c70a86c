#include "Models/PelkoDocument.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

namespace
{
PelkoDocument documentOf(const QList<Block> &blocks)
{
    PelkoDocument document(Space::work, 0);
    document.blocks = blocks;
    return document;
}

Block banner(const QString &title, std::optional<bool> isFullWidth = true)
{
    Block block(BlockType::image);
    block.bannerTitle = title;
    block.isFullWidth = isFullWidth;
    return block;
}

Block heading(const QString &text)
{
    return Block(BlockType::textLarge, text);
}
} // namespace

Q_DECLARE_METATYPE(QList<Block>)

class TestPelkoDocument : public QObject
{
    Q_OBJECT

    const QTimeZone utc = QTimeZone::utc();
    const QLocale english{QLocale::English, QLocale::UnitedStates};

private Q_SLOTS:
    void aNewDocumentHasAnEmptyHeadingAndAnEmptyBody()
    {
        const PelkoDocument document(Space::journal, 12.5);
        QCOMPARE(document.space, Space::journal);
        QCOMPARE(document.createdAt, 12.5);
        QVERIFY(!document.updatedAt && !document.isPinned && !document.isArchived);
        QCOMPARE(document.blocks.size(), 2);
        QCOMPARE(document.blocks[0].type, BlockType::textLarge);
        QCOMPARE(document.blocks[1].type, BlockType::textSmall);
        QVERIFY(document.blocks[0].id != document.blocks[1].id);
        for (const Block &block : document.blocks) {
            QCOMPARE(block.content, u""_s);
            QVERIFY(!block.imageData && !block.todos && !block.isFullWidth && !block.bannerTitle);
        }
        QVERIFY(PelkoDocument(Space::journal, 12.5).id != document.id);
    }

    void theTitleComesFromTheBannerOrTheHeading_data()
    {
        QTest::addColumn<QList<Block>>("blocks");
        QTest::addColumn<QString>("title");
        const QString untitled = u"Untitled"_s;
        QTest::newRow("no blocks") << QList<Block>{} << untitled;
        QTest::newRow("empty blocks") << PelkoDocument(Space::work, 0).blocks << untitled;
        QTest::newRow("heading") << QList{Block(BlockType::quote, u"q"_s), heading(u" My page "_s)}
                                 << u" My page "_s;
        QTest::newRow("only the first heading counts")
            << QList{heading(u"  \n"_s), heading(u"Later"_s)} << untitled;
        QTest::newRow("no heading") << QList{Block(BlockType::textSmall, u"text"_s)} << untitled;
        QTest::newRow("banner") << QList{heading(u"Heading"_s), banner(u" Banner "_s)} << u" Banner "_s;
        QTest::newRow("blank banner") << QList{banner(u" \u0085"_s), heading(u"Heading"_s)} << u"Heading"_s;
        QTest::newRow("second banner") << QList{banner(u" "_s), banner(u"Second"_s)} << u"Second"_s;
        QTest::newRow("not full width") << QList{banner(u"B"_s, false), heading(u"H"_s)} << u"H"_s;
        QTest::newRow("width absent") << QList{banner(u"B"_s, std::nullopt), heading(u"H"_s)} << u"H"_s;
        Block notAnImage = banner(u"B"_s);
        notAnImage.type = BlockType::textSmall;
        QTest::newRow("not an image") << QList{notAnImage, heading(u"H"_s)} << u"H"_s;
        Block untitledBanner = banner({});
        untitledBanner.bannerTitle.reset();
        QTest::newRow("no banner title") << QList{untitledBanner, heading(u"H"_s)} << u"H"_s;
        QTest::newRow("zero-width space is no white space") << QList{heading(u"\u200B"_s)} << u"\u200B"_s;
    }

    void theTitleComesFromTheBannerOrTheHeading()
    {
        QFETCH(QList<Block>, blocks);
        QTEST(documentOf(blocks).title(), "title");
    }

    void wordsAreRunsBetweenWhiteSpace_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<qint64>("words");
        QTest::newRow("empty") << u""_s << qint64(0);
        QTest::newRow("blank") << u" \t\n "_s << qint64(0);
        QTest::newRow("double space and line break") << u"one  two\nthree"_s << qint64(3);
        QTest::newRow("around") << u"  one "_s << qint64(1);
        QTest::newRow("every line break") << u"a\vb\fc\rd\u0085e\u2028f\u2029g"_s << qint64(7);
        QTest::newRow("every wide space") << u"a\u00A0b\u1680c\u2003d\u202Fe\u205Ff\u3000g"_s << qint64(7);
        QTest::newRow("joined by what only looks like a space")
            << u"a\u200Bb\uFEFFc\u180Ed\u2060e\u001Ff"_s << qint64(1);
        QTest::newRow("astral") << u"\U0001F525 \U0001F525\U0001F525"_s << qint64(2);
    }

    void wordsAreRunsBetweenWhiteSpace()
    {
        QFETCH(QString, content);
        QTEST(documentOf({Block(BlockType::code, content)}).wordCount(), "words");
    }

    void wordsOfEveryKindOfBlockCount()
    {
        Block unseen(BlockType::divider, u"still two"_s);
        unseen.bannerTitle = u"not counted"_s;
        unseen.todos = QList{TodoItem{.text = u"nor this"_s}};
        QCOMPARE(documentOf({heading(u"a b c"_s), unseen}).wordCount(), 5);
        QCOMPARE(documentOf({}).wordCount(), 0);
    }

    void timeAgoIsTold_data()
    {
        QTest::addColumn<double>("elapsed");
        QTest::addColumn<QString>("text");
        QTest::newRow("the future") << -1e6 << u"Just now"_s;
        QTest::newRow("now") << 0.0 << u"Just now"_s;
        QTest::newRow("59.9 s") << 59.9 << u"Just now"_s;
        QTest::newRow("60 s") << 60.0 << u"1m ago"_s;
        QTest::newRow("5 min") << 359.0 << u"5m ago"_s;
        QTest::newRow("3599 s") << 3599.0 << u"59m ago"_s;
        QTest::newRow("3600 s") << 3600.0 << u"1h ago"_s;
        QTest::newRow("86399 s") << 86399.0 << u"23h ago"_s;
        QTest::newRow("86400 s") << 86400.0 << u"Yesterday"_s;
        QTest::newRow("172799 s") << 172799.0 << u"Yesterday"_s;
        QTest::newRow("172800 s") << 172800.0 << u"2d ago"_s;
        QTest::newRow("604799 s") << 604799.0 << u"6d ago"_s;
        QTest::newRow("604800 s") << 604800.0 << u"May 1"_s;
    }

    void timeAgoIsTold()
    {
        QFETCH(double, elapsed);
        const Timestamp edited = 10'368'000; // 2001-05-01 00:00 UTC
        PelkoDocument document(Space::work, edited);
        QTEST(document.relativeDate(edited + elapsed, utc, english), "text");
        document.createdAt = 0;
        document.updatedAt = edited;
        QTEST(document.relativeDate(edited + elapsed, utc, english), "text");
    }

    void oldDatesAreWrittenInTheReadersZoneAndLanguage()
    {
        const Timestamp edited = 5'702'400 - 0.25; // a quarter of a second before 2001-03-08 00:00 UTC
        const PelkoDocument document(Space::work, edited);
        const auto dateIn = [&](const char *zone, const QLocale &locale) {
            return document.relativeDate(edited + 1e9, QTimeZone(zone), locale);
        };
        QCOMPARE(dateIn("UTC", english), u"Mar 7"_s);
        QCOMPARE(dateIn("Asia/Tokyo", english), u"Mar 8"_s);
        QCOMPARE(dateIn("UTC", QLocale(QLocale::German)), u"März 7"_s);
    }

    void absurdTimesAreNoCrash_data()
    {
        QTest::addColumn<double>("time");
        QTest::newRow("-1e300") << -1e300;
        QTest::newRow("-1e15") << -1e15;
        QTest::newRow("lowest") << std::numeric_limits<double>::lowest();
    }

    void absurdTimesAreNoCrash()
    {
        QFETCH(double, time);
        QVERIFY(!PelkoDocument(Space::work, time).relativeDate(0, utc, english).isEmpty());
    }
};

PELKO_TEST(TestPelkoDocument)
#include "tst_PelkoDocument.moc"
