#include "Store/DocumentReader.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace
{
// The files of these tests are written with ' for ", so that they can be read.
constexpr auto idA = "0A1B2C3D-4E5F-6789-ABCD-EF0123456789";

QByteArray inJson(QByteArray text)
{
    return text.replace('\'', '"');
}

/// A file of one document with these members beside the required ones.
QByteArray fileWith(const QByteArray &members, const QByteArray &blocks = "[]")
{
    const QByteArray required = QByteArray("'id':'") + idA + "','space':'work','blocks':" + blocks;
    return inJson("[{" + required + ",'createdAt':1" + (members.isEmpty() ? "" : ",") + members + "}]");
}

QByteArray fileWithBlock(const QByteArray &members)
{
    const QByteArray required = QByteArray("'id':'") + idA + "','type':'image','content':''";
    return fileWith("", "[{" + required + (members.isEmpty() ? "" : ",") + members + "}]");
}

QByteArray fileWithTodo(const QByteArray &members)
{
    return fileWithBlock(QByteArray("'todos':[{'id':'") + idA + "'," + members + "}]");
}

QByteArray fileWithContent(const QByteArray &json)
{
    return fileWith("", QByteArray("[{'id':'") + idA + "','type':'quote','content':" + json + "}]");
}

QByteArray nested(int depth)
{
    return QByteArray(depth, '[') + '1' + QByteArray(depth, ']');
}

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

    void whatIsHarmlessIsRead_data()
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

    void whatIsHarmlessIsRead()
    {
        QFETCH(QByteArray, json);
        QVERIFY(readDocuments(json));
    }

    void whatIsBrokenIsNothing_data()
    {
        QTest::addColumn<QByteArray>("json");
        const auto add = [](const char *name, const QByteArray &json) { QTest::newRow(name) << json; };
        // Not one JSON text
        add("empty", "");
        add("white space", " \n");
        add("NUL bytes", QByteArray(64, '\0'));
        add("only a mark", "\xEF\xBB\xBF");
        add("two marks", "\xEF\xBB\xBF\xEF\xBB\xBF[]");
        add("UTF-16", QByteArray("\xFF\xFE[\0]\0", 6));
        add("truncated", fileWith("").chopped(1));
        add("cut in a string", fileWithContent("'abc'").first(120));
        add("open bracket", "[");
        add("trailing comma", "[" + fileWith("").sliced(1).chopped(1) + ",]");
        add("trailing garbage", fileWith("") + "x");
        add("trailing document", fileWith("") + fileWith(""));
        add("trailing NUL", fileWith("") + QByteArray(1, '\0'));
        add("comment", "/* */[]");
        add("single quotes", "['']");
        add("NaN", fileWith("'updatedAt':NaN"));
        add("picture", "\x89PNG\r\n\x1A\n");
        add("too deep", fileWith("'x':" + nested(1022)));
        add("far too deep", QByteArray(1'000'000, '['));
        // Numbers that JSON does not know
        add("infinite", fileWith("'updatedAt':1e400"));
        add("leading zero", fileWith("'updatedAt':01"));
        add("plus sign", fileWith("'updatedAt':+1"));
        add("no digit before the point", fileWith("'updatedAt':.5"));
        add("no digit after the point", fileWith("'updatedAt':5."));
        add("hexadecimal", fileWith("'updatedAt':0x10"));
        // Strings that UTF-8 and JSON do not know
        add("raw control character", fileWithContent("'a\nb'"));
        add("raw NUL", fileWithContent(QByteArray("'a\0b'", 5)));
        add("Latin-1", fileWithContent("'\xE4'"));
        add("overlong", fileWithContent("'\xC0\xAF'"));
        add("surrogate in UTF-8", fileWithContent("'\xED\xA0\x80'"));
        add("beyond Unicode", fileWithContent("'\xF4\x90\x80\x80'"));
        add("cut UTF-8", fileWithContent("'\xE2\x82'"));
        add("lone high surrogate", fileWithContent("'\\ud83d'"));
        add("lone low surrogate", fileWithContent("'\\udd25'"));
        add("surrogates in the wrong order", fileWithContent("'\\udd25\\ud83d'"));
        add("high surrogate and a letter", fileWithContent("'\\ud83dabc'"));
        add("unknown escape", fileWithContent("'\\x41'"));
        add("short escape", fileWithContent("'\\u12'"));
        // Wrong types
        add("object at the top", "{}");
        add("null at the top", "null");
        add("array in the array", "[[]]");
        add("null in the array", "[null]");
        add("id is a number", fileWith("").replace(QByteArray("\"") + idA + "\"", "1"));
        add("id is null", fileWith("").replace(QByteArray("\"") + idA + "\"", "null"));
        add("createdAt is text", fileWith("").replace(":1}", ":\"2001-01-01\"}"));
        add("createdAt is null", fileWith("").replace(":1}", ":null}"));
        add("createdAt is true", fileWith("").replace(":1}", ":true}"));
        add("blocks is null", fileWith("", "null"));
        add("blocks is an object", fileWith("", "{}"));
        add("block is text", fileWith("", "['']"));
        add("updatedAt is text", fileWith("'updatedAt':'1'"));
        add("isPinned is a number", fileWith("'isPinned':1"));
        add("isArchived is text", fileWith("'isArchived':'true'"));
        add("content is null", fileWithContent("null"));
        add("content is a number", fileWithContent("1"));
        add("todos is an object", fileWithBlock("'todos':{}"));
        add("isFullWidth is null text", fileWithBlock("'isFullWidth':'null'"));
        add("bannerTitle is false", fileWithBlock("'bannerTitle':false"));
        add("imageData is an array", fileWithBlock("'imageData':[1]"));
        add("todo without done", fileWithTodo("'text':''"));
        add("todo done is null", fileWithTodo("'text':'','done':null"));
        // Missing members
        add("no members", "[{}]");
        add("block without members", fileWith("", "[{}]"));
        // Wrong values
        add("unknown space", fileWith("").replace("work", "archive"));
        add("space in capitals", fileWith("").replace("work", "Work"));
        add("unknown type", fileWithBlock("").replace("image", "video"));
        add("malformed UUID", fileWith("").replace("0A1B", "0A1G"));
        add("UUID in braces", fileWith("").replace(idA, QByteArray("{") + idA + "}"));
        add("base64 without padding", fileWithBlock("'imageData':'Zg'"));
        add("base64 with a line break", fileWithBlock("'imageData':'Zm9v\\nZm9v'"));
        add("base64 for addresses", fileWithBlock("'imageData':'Zm9-'"));
        add("base64 with a backslash", fileWithBlock("'imageData':'Zm\\\\v'"));
        // Repeated keys
        add("repeated with a wrong type at last", fileWith("'isPinned':true,'isPinned':1"));
    }

    void whatIsBrokenIsNothing()
    {
        QFETCH(QByteArray, json);
        QCOMPARE(readDocuments(json), std::nullopt);
    }

    void everyMissingRequiredKeyIsAnError_data()
    {
        QTest::addColumn<QByteArray>("json");
        const QByteArray whole = fileWithTodo("'text':'','done':true");
        QVERIFY(readDocuments(whole));
        for (const char *key : {"\"id\"", "\"space\"", "\"blocks\"", "\"createdAt\"", "\"type\"",
                                "\"content\"", "\"text\"", "\"done\""}) {
            int occurrence = 0;
            for (qsizetype at = whole.indexOf(key); at >= 0; at = whole.indexOf(key, at + 1)) {
                QByteArray json = whole;
                json[at + 1] = 'X'; // a key that nobody knows
                QTest::addRow("%s %d", key, ++occurrence) << json;
            }
        }
    }

    void everyMissingRequiredKeyIsAnError()
    {
        QFETCH(QByteArray, json);
        QCOMPARE(readDocuments(json), std::nullopt);
    }

    void everyTruncationIsAnError()
    {
        const QByteArray whole = fileWithTodo("'text':'ä','done':true");
        QVERIFY(readDocuments(whole));
        for (qsizetype length = 0; length < whole.size(); ++length)
            QCOMPARE(readDocuments(whole.first(length)), std::nullopt);
    }

    void oneBadDocumentLeavesNone()
    {
        const QByteArray good = fileWith("").sliced(1).chopped(1);
        QCOMPARE(readDocuments("[" + good + "," + good + "]").value().size(), 2);
        const QByteArray bad = QByteArray(good).replace("work", "play");
        QCOMPARE(readDocuments("[" + good + "," + bad + "]"), std::nullopt);
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

QTEST_GUILESS_MAIN(TestDocumentReader)
#include "tst_DocumentReader.moc"
