#include "Editor/PageChange.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

/// Returns body blocks named by these letters.
QList<Block> bodyBlocks(const char *letters)
{
    QList<Block> blocks;
    for (const char *letter = letters; *letter; ++letter)
        blocks.append(block(*letter, BlockType::textSmall, QString(QLatin1Char(*letter))));
    return blocks;
}

} // namespace

class TestPageChange : public QObject
{
    Q_OBJECT

    static void leadsBothWays(const QList<Block> &before, const QList<Block> &after)
    {
        const PageChange change = PageChange::between(before, after);
        QCOMPARE(lines(page(change.applied(before))), lines(page(after)));
        QCOMPARE(lines(page(change.reverted(after))), lines(page(before)));
    }

private Q_SLOTS:
    void aChangeLeadsFromOneVersionToTheOtherAndBack_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<qsizetype>("row");
        QTest::addColumn<qsizetype>("rowsBefore");
        QTest::addColumn<qsizetype>("rowsAfter");
        const auto row = [](const char *before, const char *after, int at, int removed, int added) {
            QTest::addRow("%s to %s", before, after)
                << QByteArray(before) << QByteArray(after) << qsizetype(at) << qsizetype(removed)
                << qsizetype(added);
        };
        row("ABC", "ABC", 3, 0, 0);
        row("ABC", "AXBC", 1, 0, 1);
        row("ABC", "ABCX", 3, 0, 1);
        row("ABC", "AC", 1, 1, 0);
        row("ABC", "C", 0, 2, 0);
        row("ABC", "BCA", 0, 3, 3);
        row("ABCD", "ACBD", 1, 2, 2);
        row("ABC", "AXYZC", 1, 1, 3);
        row("AXYZC", "ABC", 1, 3, 1);
        row("ABC", "", 0, 3, 0);
        row("", "ABC", 0, 0, 3);
        row("AA", "AAA", 2, 0, 1);
    }

    void aChangeLeadsFromOneVersionToTheOtherAndBack()
    {
        QFETCH(const QByteArray, before);
        QFETCH(const QByteArray, after);
        const PageChange change = PageChange::between(bodyBlocks(before), bodyBlocks(after));
        QTEST(change.row(), "row");
        QTEST(change.rowsBefore(), "rowsBefore");
        QTEST(change.rowsAfter(), "rowsAfter");
        QCOMPARE(change.isEmpty(), before == after);
        leadsBothWays(bodyBlocks(before), bodyBlocks(after));
    }

    void everyFieldOfABlockIsTakenBack_data()
    {
        QTest::addColumn<Block>("changed");
        const Block plain = block('B');
        const auto row = [&](const char *field, const auto &change) {
            Block changed = plain;
            change(changed);
            QTest::newRow(field) << changed;
        };
        row("id", [](Block &block) { block.id = idOf('X'); });
        row("type", [](Block &block) { block.type = BlockType::quote; });
        row("content", [](Block &block) { block.content = u"text"_s; });
        row("image", [](Block &block) { block.imageData = "picture"_ba; });
        row("empty image", [](Block &block) { block.imageData = QByteArray(); });
        row("todos", [](Block &block) { block.todos = QList{todo('x', u"milk"_s, true)}; });
        row("no todos", [](Block &block) { block.todos.emplace(); });
        row("full width", [](Block &block) { block.isFullWidth = true; });
        row("not full width", [](Block &block) { block.isFullWidth = false; });
        row("banner title", [](Block &block) { block.bannerTitle = u"title"_s; });
        row("empty banner title", [](Block &block) { block.bannerTitle = QString(); });
        row("content and type", [](Block &block) {
            block.content = u"text"_s;
            block.type = BlockType::code;
        });
    }

    void everyFieldOfABlockIsTakenBack()
    {
        QFETCH(const Block, changed);
        const QList<Block> before{block('A'), block('B'), block('C')};
        const QList<Block> after{block('A'), changed, block('C')};
        const PageChange change = PageChange::between(before, after);
        QVERIFY(!change.isEmpty());
        QCOMPARE(change.row(), 1);
        leadsBothWays(before, after);
    }

    void ofALongTextOnlyTheStretchThatChangedIsKept()
    {
        const QString text(100'000, u'x');
        const PageChange change = PageChange::between({block('A', BlockType::textSmall, text)},
                                                      {block('A', BlockType::textSmall, text + u'y')});
        QCOMPARE(change.size().text, 2);
    }

    void aSplitOrAJoinKeepsOnlyTheTextThatMoved()
    {
        const QString text(100'000, u'x');
        const QList<Block> joined{block('A', BlockType::textSmall, text + u"end"_s)};
        const QList<Block> split{block('A', BlockType::textSmall, text),
                                 block('B', BlockType::textSmall, u"end"_s)};
        QCOMPARE_LT(PageChange::between(joined, split).size().text, 1000);
        QCOMPARE_LT(PageChange::between(split, joined).size().text, 1000);
        leadsBothWays(joined, split);
        leadsBothWays(split, joined);
    }

    void movedPictureCountsNoMemory()
    {
        const QList<Block> before{image('A'), block('B')};
        const QList<Block> after{block('B'), image('A')};
        const PageChange::Size moved = PageChange::between(before, after).size();
        const PageChange::Size removed = PageChange::between(before, {block('B')}).size();
        QCOMPARE(moved.pictures, 0);
        QCOMPARE(removed.pictures, 7);
    }

    void picturesAreSharedNotCopied()
    {
        const QList<Block> before{image('A'), block('B')};
        const PageChange change = PageChange::between(before, {block('B')});
        const QList<Block> restored = change.reverted({block('B')});
        QCOMPARE(restored.first().imageData->constData(), before.first().imageData->constData());
    }
};

PELKO_TEST(TestPageChange)
#include "tst_PageChange.moc"
