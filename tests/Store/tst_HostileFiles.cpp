#include "Store/DocumentReader.h"
#include "support/HandwrittenFile.h"
#include "support/TestProgram.h"

/// Files that must be rejected as a whole.
class TestHostileFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rejectsMalformedText_data()
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

    void rejectsMalformedText()
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
};

PELKO_TEST(TestHostileFiles)
#include "tst_HostileFiles.moc"
