#include "Store/DocumentReader.h"
#include "support/HandwrittenFile.h"
#include "support/TestProgram.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace
{
PelkoDocument onlyDocument(const QByteArray &json)
{
    return readDocuments(json).value_or(QList<PelkoDocument>{}).value(0);
}

Block onlyBlock(const QByteArray &json)
{
    return onlyDocument(json).blocks.value(0);
}
} // namespace

class TestDocumentReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldIsRead()
    {
        const auto documents = readDocuments(R"([ {
            "isArchived": false, "isPinned": true, "updatedAt": -0.125, "createdAt": 7e8,
            "blocks": [ { "bannerTitle": "T", "isFullWidth": true, "todos": [
                    { "done": true, "text": "milk", "id": "0a1b2c3d-4e5f-6789-abcd-ef0123456789" } ],
                "imageData": "Zm9v", "content": "c", "type": "sticky",
                "id": "0A1B2C3D-4E5F-6789-ABCD-EF012345678A" } ],
            "space": "journal", "id": "0A1B2C3D-4E5F-6789-ABCD-EF0123456789" } ])");
        PelkoDocument expected;
        expected.id = QUuid(QString::fromLatin1(idA));
        expected.space = Space::journal;
        expected.createdAt = 700'000'000;
        expected.updatedAt = -0.125;
        expected.isPinned = true;
        expected.isArchived = false;
        Block block(BlockType::sticky, u"c"_s);
        block.id = QUuid(u"{0a1b2c3d-4e5f-6789-abcd-ef012345678a}"_s);
        block.imageData = "foo";
        block.isFullWidth = true;
        block.bannerTitle = u"T"_s;
        block.todos = QList{TodoItem{.id = expected.id, .text = u"milk"_s, .done = true}};
        expected.blocks = {block};
        QCOMPARE(documents, QList{expected});
    }

    void readsHarmlessFiles_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("no documents") << QByteArray("[]");
        QTest::newRow("white space") << QByteArray(" \t\r\n[ ]\n");
        QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF[]");
        QTest::newRow("required members only") << fileWith("");
        QTest::newRow("unknown keys") << fileWith("'color':{'r':[1,null,{}]},'':0");
        QTest::newRow("unknown keys of a block") << fileWithBlock("'x':[[[[]]]]");
        QTest::newRow("as deep as allowed") << fileWith("'x':" + nested(1021));
        QTest::newRow("integer date") << fileWith("'updatedAt':800000000");
        QTest::newRow("largest integer date") << fileWith("'updatedAt':18446744073709551615");
        QTest::newRow("tiny date") << fileWith("'updatedAt':1e-400");
        QTest::newRow("empty picture") << fileWithBlock("'imageData':''");
        QTest::newRow("escaped key") << fileWith("'is\\u0050inned':true");
    }

    void readsHarmlessFiles()
    {
        QFETCH(QByteArray, json);
        QVERIFY(readDocuments(json));
    }

    /// Longer than the part of the text that is freed at once.
    void aLongFileIsReadToItsFirstDocument()
    {
        QByteArrayList pages;
        for (int number = 0; number < 9; ++number) {
            const QByteArray date = "'createdAt':" + QByteArray::number(number);
            pages += fileWith(date + ",'x':'" + QByteArray(200'000, '{') + "'").sliced(1).chopped(1);
        }
        const QByteArray json = "\xEF\xBB\xBF[" + pages.join(" ,\n") + "]";
        const auto documents = readDocuments(json).value();
        QCOMPARE(documents.size(), 9);
        for (int number = 0; number < 9; ++number)
            QCOMPARE(documents[number].createdAt, double(number));
    }

    void absentAndNullAreTheSameAndDifferFromEmpty()
    {
        const PelkoDocument absent = onlyDocument(fileWith(""));
        QVERIFY(!absent.updatedAt && !absent.isPinned && !absent.isArchived);
        QCOMPARE(onlyDocument(fileWith("'updatedAt':null,'isPinned':null,'isArchived':null")), absent);
        QCOMPARE(onlyDocument(fileWith("'isPinned':false")).isPinned, false);

        const Block block = onlyBlock(fileWithBlock(""));
        QVERIFY(!block.imageData && !block.todos && !block.isFullWidth && !block.bannerTitle);
        QCOMPARE(
            onlyBlock(fileWithBlock("'imageData':null,'todos':null,'isFullWidth':null,'bannerTitle':null")),
            block);
        const Block empty = onlyBlock(fileWithBlock("'imageData':'','todos':[],'bannerTitle':''"));
        QCOMPARE(empty.imageData, QByteArray(""));
        QCOMPARE(empty.todos, QList<TodoItem>());
        QCOMPARE(empty.bannerTitle, u""_s);
    }

    void ofARepeatedKeyTheLastCounts()
    {
        QCOMPARE(onlyDocument(fileWith("'isPinned':true,'isPinned':false")).isPinned, false);
        QCOMPARE(onlyDocument(fileWith("'isPinned':true,'isPinned':null")).isPinned, std::nullopt);
        QCOMPARE(onlyDocument(fileWith("'isPinned':7,'isPinned':true")).isPinned, true);
        QCOMPARE(onlyDocument(fileWith("'createdAt':2")).createdAt, 2.0);
    }

    void slashesMayBeEscapedInBase64AndText()
    {
        QCOMPARE(onlyBlock(fileWithBlock("'imageData':'\\/\\/\\/\\/'")).imageData, "\xFF\xFF\xFF");
        QCOMPARE(onlyBlock(fileWithBlock("'imageData':'////'")).imageData, "\xFF\xFF\xFF");
        QCOMPARE(onlyBlock(fileWithBlock("'imageData':'\\u002f///'")).imageData, "\xFF\xFF\xFF");
        QCOMPARE(onlyBlock(fileWithContent("'a\\/b/c'")).content, u"a/b/c"_s);
    }

    void textIsReadToTheLastCharacter_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("content");
        QTest::newRow("escapes") << QByteArray("'\\'\\\\\\/\\b\\f\\n\\r\\t'") << u"\"\\/\b\f\n\r\t"_s;
        QTest::newRow("NUL") << QByteArray("'a\\u0000b'") << QString(u"a\0b"_s);
        QTest::newRow("pair") << QByteArray("'\\ud83d\\udd25'") << u"\U0001F525"_s;
        QTest::newRow("UTF-8") << QByteArray("\"\xF0\x9F\x94\xA5\xC3\xA4\"") << u"\U0001F525ä"_s;
        QTest::newRow("mark at the start")
            << QByteArray("\"\xEF\xBB\xBF\xEF\xBB\xBFx\"") << u"\uFEFF\uFEFFx"_s;
        QTest::newRow("no character") << QByteArray("'\\uffff'") << QString(QChar(0xFFFF));
    }

    void textIsReadToTheLastCharacter()
    {
        QFETCH(QByteArray, json);
        QTEST(onlyBlock(fileWithContent(json)).content, "content");
    }

    void textTakesNoMoreRoomThanItNeeds()
    {
        const QString chinese(10'000, u'\u4E66');
        const QString content = onlyBlock(fileWithContent('"' + chinese.toUtf8() + '"')).content;
        QCOMPARE(content, chinese);
        QVERIFY(content.capacity() < 12'500);
    }

    void datesAreReadToTheLastDigit_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<double>("date");
        QTest::newRow("microseconds") << QByteArray("812345678.123457") << 812345678.123457;
        QTest::newRow("17 digits") << QByteArray("0.30000000000000004") << 0.30000000000000004;
        QTest::newRow("halfway") << QByteArray("9007199254740993") << 9007199254740992.0;
        QTest::newRow("smallest") << QByteArray("5e-324") << 5e-324;
        QTest::newRow("largest") << QByteArray("1.7976931348623157e308") << 1.7976931348623157e308;
        QTest::newRow("capital E") << QByteArray("-1E+2") << -100.0;
    }

    void datesAreReadToTheLastDigit()
    {
        QFETCH(QByteArray, json);
        QTEST(onlyDocument(fileWith("'updatedAt':" + json)).updatedAt.value_or(0), "date");
    }
};

PELKO_TEST(TestDocumentReader)
#include "tst_DocumentReader.moc"
