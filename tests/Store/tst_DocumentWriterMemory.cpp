#include "support/DataFileText.h"
#include "support/TestProgram.h"
#include "support/WrittenPages.h"

#include <functional>

using namespace Qt::StringLiterals;

using Change = std::function<void(QList<PelkoDocument> &)>;

Q_DECLARE_METATYPE(Change)

/// Which texts the writer keeps.
class TestDocumentWriterMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneChangedPageAmongManyIsEncodedWithFewOthers()
    {
        QList<PelkoDocument> documents = pages(10'000);
        DocumentWriter writer;
        dataFileText(writer, documents);
        QCOMPARE(writer.encodedDocuments(), 10'000);
        documents[5'000].blocks[0].content = u"changed"_s;
        QCOMPARE(dataFileText(writer, documents), dataFileText(documents));
        QVERIFY(writer.encodedDocuments() <= 16);
        dataFileText(writer, documents);
        QCOMPARE(writer.encodedDocuments(), 0);
    }

    void everyKindOfChangeIsSeen_data()
    {
        QTest::addColumn<Change>("change");
        const auto add = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
        add("content", [](auto &documents) { documents[17].blocks[0].content += u'x'; });
        add("todo", [](auto &documents) { documents[17].blocks[0].todos = QList{TodoItem()}; });
        add("block type", [](auto &documents) { documents[17].blocks[0].type = BlockType::quote; });
        add("new block", [](auto &documents) { documents[17].blocks.append(Block(BlockType::code)); });
        add("no blocks", [](auto &documents) { documents[17].blocks.clear(); });
        add("id", [](auto &documents) { documents[17].id = QUuid::createUuid(); });
        add("space", [](auto &documents) { documents[17].space = Space::journal; });
        add("createdAt", [](auto &documents) { documents[17].createdAt = 2; });
        add("updatedAt", [](auto &documents) { documents[17].updatedAt = 2; });
        add("isPinned", [](auto &documents) { documents[17].isPinned = false; });
        add("isArchived", [](auto &documents) { documents[17].isArchived = false; });
        add("picture", [](auto &documents) { documents[17].blocks[0].imageData = "p"; });
        add("appended", [](auto &documents) { documents.append(pageWith(u"new"_s)); });
        add("removed first", [](auto &documents) { documents.removeFirst(); });
        add("removed last", [](auto &documents) { documents.removeLast(); });
        add("removed all", [](auto &documents) { documents.clear(); });
        add("moved", [](auto &documents) { documents.move(3, 30); });
        add("blocks of another page", [](auto &documents) { documents[3].blocks = documents[30].blocks; });
    }

    void everyKindOfChangeIsSeen()
    {
        QFETCH(Change, change);
        QList<PelkoDocument> documents = pages(40);
        DocumentWriter writer;
        dataFileText(writer, documents);
        change(documents);
        QCOMPARE(dataFileText(writer, documents), dataFileText(documents));
        change(documents = pages(40));
        QCOMPARE(dataFileText(writer, documents), dataFileText(documents));
    }

    void pagesWithPicturesAreNotRemembered()
    {
        const QList documents{pageWithPicture(100)};
        DocumentWriter writer;
        dataFileText(writer, documents);
        dataFileText(writer, documents);
        QCOMPARE(writer.encodedDocuments(), 1);
    }

    void noMoreIsRememberedThanTheLimit()
    {
        QList<PelkoDocument> documents;
        for (int index = 0; index < 64; ++index)
            documents.append(pageWith(QString(DocumentWriter::memoryLimit / 32, u'x')));
        DocumentWriter writer;
        dataFileText(writer, documents);
        QCOMPARE(dataFileText(writer, documents), dataFileText(documents));
        QVERIFY(writer.encodedDocuments() >= 32);
        QVERIFY(writer.encodedDocuments() <= 48);
    }
};

PELKO_TEST(TestDocumentWriterMemory)
#include "tst_DocumentWriterMemory.moc"
