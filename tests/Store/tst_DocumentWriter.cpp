#include "Store/DocumentWriter.h"
#include "support/DataFileText.h"
#include "support/TestProgram.h"
#include "support/WrittenPages.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>
#include <QRandomGenerator>

#include <bit>
#include <cmath>
#include <cstring>

using namespace Qt::StringLiterals;

namespace
{
PelkoDocument datedPage(double date)
{
    PelkoDocument document(Space::work, 0);
    document.updatedAt = date;
    return document;
}
} // namespace

class TestDocumentWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextIsCompactAndLeavesOutWhatIsAbsent()
    {
        PelkoDocument document(Space::ideas, 812345678.5);
        document.id = QUuid(u"{0a1b2c3d-4e5f-6789-abcd-ef0123456789}"_s);
        document.blocks = {Block(BlockType::textSmall, u"a/b"_s)};
        document.blocks[0].id = document.id;
        QCOMPARE(dataFileText({document}),
                 R"([{"id":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","space":"ideas","blocks":[)"
                 R"({"id":"0A1B2C3D-4E5F-6789-ABCD-EF0123456789","type":"textSmall","content":"a\/b"}],)"
                 R"("createdAt":812345678.5}])");
        QCOMPARE(dataFileText({}), "[]");
    }

    void everyKindOfBlockComesBack()
    {
        const auto kinds = QMetaEnum::fromType<BlockType>();
        PelkoDocument document(Space::work, 0);
        document.blocks.clear();
        for (int index = 0; index < kinds.keyCount(); ++index)
            document.blocks.append(Block(BlockType(kinds.value(index)), u"x"_s));
        QCOMPARE(readDocuments(dataFileText({document})), QList{document});
    }

    void everyCombinationOfOptionalFieldsComesBack()
    {
        QList<PelkoDocument> documents;
        for (unsigned bits = 0; bits < 128; ++bits) {
            PelkoDocument document = pageWith(u"x"_s);
            Block &block = document.blocks[0];
            const bool value = bits % 3 == 0;
            if (bits & 1)
                document.updatedAt = bits;
            if (bits & 2)
                document.isPinned = value;
            if (bits & 4)
                document.isArchived = value;
            if (bits & 8)
                block.imageData = value ? QByteArray("") : QByteArray("\0\xFF/", 3);
            if (bits & 16)
                block.todos =
                    value ? QList<TodoItem>() : QList{TodoItem(), TodoItem{.text = u"t"_s, .done = true}};
            if (bits & 32)
                block.isFullWidth = value;
            if (bits & 64)
                block.bannerTitle = value ? u""_s : u" T "_s;
            documents.append(document);
        }
        QCOMPARE(readDocuments(dataFileText(documents)), documents);
    }

    void anIndependentReaderSeesTheSame()
    {
        PelkoDocument document = pageWith(u"\"\\/\b\f\n\r\t\u0001\u007F\u2028ä\U0001F525"_s);
        document.blocks[0].imageData = QByteArray("\xFF\xEF\x00", 3);
        document.isPinned = false;
        const QJsonObject json = QJsonDocument::fromJson(dataFileText({document})).array().at(0).toObject();
        const QJsonObject block = json[u"blocks"].toArray().at(0).toObject();
        QCOMPARE(block[u"content"].toString(), document.blocks[0].content);
        QCOMPARE(block[u"imageData"].toString(), u"/+8A"_s);
        QCOMPARE(json[u"createdAt"].toDouble(), 1.0);
        QCOMPARE(json[u"isPinned"], QJsonValue(false));
        QCOMPARE(json[u"id"].toString(), document.id.toString(QUuid::WithoutBraces).toUpper());
        QVERIFY(!json.contains(u"updatedAt"_s) && !block.contains(u"todos"_s));
    }

    void textComesBackToTheLastCharacter_data()
    {
        QTest::addColumn<QString>("content");
        QString everyUnit;
        for (char32_t unit = 0; unit <= 0x10FFFF; unit += unit < 0x3000 ? 1 : 97) {
            if (unit < 0xD800 || unit > 0xDFFF)
                everyUnit += QString::fromUcs4(&unit, 1);
        }
        QTest::newRow("all of Unicode") << everyUnit;
        QTest::newRow("marks at the start") << u"\uFEFF\uFEFFx"_s;
        QTest::newRow("longer than the buffer") << QString(1'000'000, u'/');
        for (int shift = 12'280; shift < 12'296; ++shift) // a pair on every side of the writer's slices
            QTest::addRow("pair at %d", shift) << QString(shift, u'x') + u"\U0001F525\U0001F525"_s;
    }

    void textComesBackToTheLastCharacter()
    {
        QFETCH(QString, content);
        const PelkoDocument document = pageWith(content);
        QCOMPARE(readDocuments(dataFileText({document})), QList{document});
    }

    void halfACharacterIsReplaced_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("written");
        const QChar high(0xD83D), low(0xDD25);
        QTest::newRow("high") << QString(high) + u'x' << u"\uFFFDx"_s;
        QTest::newRow("low") << QString(low) << u"\uFFFD"_s;
        QTest::newRow("wrong order") << QString(low) + high << u"\uFFFD\uFFFD"_s;
        QTest::newRow("high and a pair") << QString(high) + high + low << u"\uFFFD\U0001F525"_s;
        QTest::newRow("high at the end") << u"x"_s + high << u"x\uFFFD"_s;
    }

    void halfACharacterIsReplaced()
    {
        QFETCH(QString, content);
        const auto documents = readDocuments(dataFileText({pageWith(content)}));
        QVERIFY(documents);
        QTEST(documents->first().blocks[0].content, "written");
    }

    void datesComeBackToTheLastDigit_data()
    {
        QTest::addColumn<double>("date");
        for (const double date :
             {0.0, -0.0, 0.1, 812345678.123457, 1e15, 9007199254740992.0, 9007199254740994.0, 1e19,
              18446744073709551616.0, 1.8446744073709556e19, -1e19, 1e22, 1e300, 5e-324,
              2.2250738585072014e-308, 1.7976931348623157e308, -812345678.000001})
            QTest::newRow(QByteArray::number(date, 'g', 17).constData()) << date;
    }

    void datesComeBackToTheLastDigit()
    {
        QFETCH(double, date);
        const auto documents = readDocuments(dataFileText({datedPage(date)}));
        QVERIFY(documents);
        const double read = documents->first().updatedAt.value();
        QCOMPARE(std::memcmp(&read, &date, sizeof read), 0); // tells -0 from 0
    }

    void randomDatesComeBackToTheLastDigit()
    {
        QRandomGenerator64 random(812345678);
        QList<PelkoDocument> documents;
        while (documents.size() < 20'000) {
            const auto date = std::bit_cast<double>(random.generate());
            if (std::isfinite(date))
                documents.append(datedPage(date));
        }
        QCOMPARE(readDocuments(dataFileText(documents)), documents);
    }

    void nanAndInfinityAreErrors_data()
    {
        QTest::addColumn<double>("date");
        QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("infinity") << std::numeric_limits<double>::infinity();
        QTest::newRow("-infinity") << -std::numeric_limits<double>::infinity();
    }

    void nanAndInfinityAreErrors()
    {
        QFETCH(double, date);
        QList<PelkoDocument> documents = pages(40);
        documents[20].updatedAt = date;
        DocumentWriter writer;
        for (int twice = 0; twice < 2; ++twice) {
            MemorySink sink;
            QVERIFY(writer.write(documents, sink));
        }
        documents[20].updatedAt.reset();
        QCOMPARE(readDocuments(dataFileText(writer, documents)), documents);
    }

    void picturesOfEveryLengthComeBack()
    {
        QList<PelkoDocument> documents;
        for (const qsizetype size : {0, 1, 2, 3, 12'287, 12'288, 12'289, 12'290, 1'000'000})
            documents.append(pageWithPicture(size));
        QCOMPARE(readDocuments(dataFileText(documents)), documents);
    }

    void aFullDiskIsToldAndEndsTheWriting()
    {
        MemorySink sink;
        sink.capacity = 1'000'000;
        const auto error = DocumentWriter().write({pageWithPicture(10'000'000)}, sink);
        QVERIFY(error);
        QCOMPARE(error->description(), u"No space left on device"_s);
        QVERIFY(sink.bytes.size() <= 1'000'000);
    }
};

PELKO_TEST(TestDocumentWriter)
#include "tst_DocumentWriter.moc"
