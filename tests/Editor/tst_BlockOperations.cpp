#include "Editor/BlockOperations.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

Block imageWithoutData(char letter)
{
    return block(letter, BlockType::image);
}

} // namespace

class TestBlockOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Adding

    void aNewBlockGoesLast_data()
    {
        QTest::addColumn<BlockType>("type");
        QTest::addColumn<QString>("added");
        QTest::addColumn<QString>("focus");
        QTest::newRow("heading") << heading << u"+ textLarge \"\""_s << u"+@end"_s;
        QTest::newRow("body") << body << u"+ textSmall \"\""_s << u"+@end"_s;
        QTest::newRow("quote") << BlockType::quote << u"+ quote \"\""_s << u"+@end"_s;
        QTest::newRow("code") << BlockType::code << u"+ code \"\""_s << u"+@end"_s;
        QTest::newRow("divider") << BlockType::divider << u"+ divider \"\""_s << QString();
        QTest::newRow("image") << BlockType::image << u"+ image \"\""_s << QString();
        QTest::newRow("sticky") << BlockType::sticky << u"+ sticky \"\" todos(+[ ] \"\")"_s << QString();
    }

    void aNewBlockGoesLast()
    {
        QFETCH(const BlockType, type);
        QFETCH(const QString, added);
        QFETCH(const QString, focus);
        const PelkoDocument before = page({block('A', heading), block('B', body, u"text"_s)});

        const Edit edit = BlockOperations::addBlock(before, type);

        QCOMPARE(lines(edit.document), lines(before) + QStringList(added));
        QCOMPARE(PageText::focus(edit.focus), focus);
        QVERIFY(!edit.focus || edit.focus->address.blockID == edit.document.blocks.last().id);
    }

    void anEmptyPageGetsItsFirstBlock()
    {
        const Edit edit = BlockOperations::addBlock(page({}), body);
        QCOMPARE(lines(edit.document), {u"+ textSmall \"\""_s});
    }

    // Deleting

    void aBlockIsDeleted_data()
    {
        QTest::addColumn<QString>("deleted");
        QTest::addColumn<QString>("left");
        QTest::newRow("leading heading") << u"A"_s << u"BCD"_s;
        QTest::newRow("in the middle") << u"B"_s << u"ACD"_s;
        QTest::newRow("last") << u"D"_s << u"ABC"_s;
    }

    void aBlockIsDeleted()
    {
        QFETCH(const QString, deleted);
        QFETCH(const QString, left);
        const PelkoDocument before =
            page({block('A', heading), block('B'), block('C', BlockType::divider), image('D')});
        const auto edit = BlockOperations::deleteBlock(before, idOf(deleted[0].toLatin1()));
        QCOMPARE(letters(edit.value().document), left);
        QCOMPARE(edit->focus, std::nullopt);
    }

    void theOnlyBlockIsNotDeleted()
    {
        QVERIFY(!BlockOperations::deleteBlock(page({block('A')}), idOf('A')));
        QVERIFY(!BlockOperations::deleteBlock(page({}), idOf('A')));
    }

    void anUnknownBlockIsNotDeleted()
    {
        QVERIFY(!BlockOperations::deleteBlock(page({block('A'), block('B')}), idOf('C')));
    }

    void everyBlockOfTheIdIsDeleted()
    {
        const auto edit =
            BlockOperations::deleteBlock(page({block('A'), block('B'), block('A'), block('C')}), idOf('A'));
        QCOMPARE(letters(edit.value().document), u"BC"_s);
    }

    void theDeleteButtonSparesTheLastBlockAndALeadingHeading()
    {
        const PelkoDocument alone = page({block('A')});
        QVERIFY(!BlockOperations::canDelete(alone, 0));
        const PelkoDocument headed = page({block('A', heading), block('B', heading), block('C')});
        QVERIFY(!BlockOperations::canDelete(headed, 0));
        QVERIFY(BlockOperations::canDelete(headed, 1));
        QVERIFY(BlockOperations::canDelete(headed, 2));
        QVERIFY(BlockOperations::canDelete(page({block('A'), block('B', heading)}), 0));
    }

    void theMenuOffersToDeleteFromTwoBlocksOn()
    {
        QVERIFY(!BlockOperations::offersDelete(page({})));
        QVERIFY(!BlockOperations::offersDelete(page({block('A', heading)})));
        QVERIFY(BlockOperations::offersDelete(page({block('A', heading), block('B')})));
    }

    // Moving

    void aBlockIsMoved_data()
    {
        QTest::addColumn<QString>("moved");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QString>("order");
        QTest::newRow("down") << u"B"_s << 1 << u"ACBD"_s;
        QTest::newRow("up") << u"C"_s << -1 << u"ACBD"_s;
        QTest::newRow("to the top") << u"B"_s << -1 << u"BACD"_s;
        QTest::newRow("to the end") << u"C"_s << 1 << u"ABDC"_s;
        QTest::newRow("several rows") << u"A"_s << 2 << u"BCAD"_s;
        QTest::newRow("no further than the end") << u"B"_s << 9 << u"ACDB"_s;
        QTest::newRow("no further than the top") << u"C"_s << -9 << u"CABD"_s;
    }

    void aBlockIsMoved()
    {
        QFETCH(const QString, moved);
        QFETCH(const int, rows);
        QFETCH(const QString, order);
        const auto edit =
            BlockOperations::moveBlock(page({block('A', heading), block('B'), sticky('C', {}), image('D')}),
                                       idOf(moved[0].toLatin1()), rows);
        QCOMPARE(letters(edit.value().document), order);
        QCOMPARE(edit->focus, std::nullopt);
    }

    void aBlockThatCannotMoveChangesNothing()
    {
        const PelkoDocument before = page({block('A'), block('B')});
        QVERIFY(!BlockOperations::moveBlock(before, idOf('A'), -1));
        QVERIFY(!BlockOperations::moveBlock(before, idOf('B'), 1));
        QVERIFY(!BlockOperations::moveBlock(before, idOf('A'), 0));
        QVERIFY(!BlockOperations::moveBlock(before, idOf('X'), 1));
        QVERIFY(!BlockOperations::moveBlock(page({}), idOf('A'), 1));
    }

    // Banner

    void anImageBecomesTheBannerAndBack_data()
    {
        const QString banner = u"C image \"\" image(picture) full"_s;
        const QString noBanner = u"C image \"\" image(picture) not full"_s;
        QTest::addColumn<QList<Block>>("before");
        QTest::addColumn<QStringList>("after");
        QTest::addColumn<QString>("focus");
        const auto addRow = [](const char *name, const QList<Block> &before, const QStringList &after,
                               const QString &focus) { QTest::newRow(name) << before << after << focus; };

        addRow("on: takes the place of an empty heading", {block('A', heading), block('B'), image('C')},
               {banner, u"B textSmall \"\""_s}, u"C@end"_s);
        addRow("on: a heading of spaces and tabs counts as empty",
               {block('A', heading, u" \t "_s), image('C', false)}, {banner}, u"C@end"_s);
        addRow("on: a heading with text stays below",
               {block('A', heading, u" Title"_s), block('B'), image('C'), block('D')},
               {banner, u"A textLarge \" Title\""_s, u"B textSmall \"\""_s, u"D textSmall \"\""_s},
               u"C@end"_s);
        addRow("on: a heading of line feeds stays", {block('A', heading, u"\n"_s), image('C')},
               {banner, u"A textLarge \"\n\""_s}, u"C@end"_s);
        addRow("on: a heading of no-break spaces stays", {block('A', heading, u"\u00A0"_s), image('C')},
               {banner, u"A textLarge \"\u00A0\""_s}, u"C@end"_s);
        addRow("on: an empty first body block stays", {block('A'), image('C')},
               {banner, u"A textSmall \"\""_s}, u"C@end"_s);
        addRow("on: an empty heading further down stays", {block('A'), block('B', heading), image('C')},
               {banner, u"A textSmall \"\""_s, u"B textLarge \"\""_s}, u"C@end"_s);
        addRow("on: only the first of two empty headings goes",
               {block('A', heading), block('B', heading), image('C')}, {banner, u"B textLarge \"\""_s},
               u"C@end"_s);
        addRow("on: already first", {image('C'), block('A', heading)}, {banner, u"A textLarge \"\""_s},
               u"C@end"_s);
        addRow("on: the only block", {image('C')}, {banner}, u"C@end"_s);
        addRow("on: the banner before goes second", {image('A', true), block('B'), image('C')},
               {banner, u"A image \"\" image(picture) full"_s, u"B textSmall \"\""_s}, u"C@end"_s);

        addRow("off: the page gets a heading", {image('C', true), block('B')},
               {u"+ textLarge \"\""_s, noBanner, u"B textSmall \"\""_s}, {});
        addRow("off: the only block", {image('C', true)}, {u"+ textLarge \"\""_s, noBanner}, {});
        addRow("off: a leading heading is enough", {block('A', heading), block('B'), image('C', true)},
               {u"A textLarge \"\""_s, u"B textSmall \"\""_s, noBanner}, {});
        addRow("off: the image is not moved", {block('A'), block('B', heading), image('C', true)},
               {u"+ textLarge \"\""_s, u"A textSmall \"\""_s, u"B textLarge \"\""_s, noBanner}, {});
    }

    void anImageBecomesTheBannerAndBack()
    {
        QFETCH(const QList<Block>, before);
        QFETCH(const QStringList, after);
        QFETCH(const QString, focus);
        const auto edit = BlockOperations::toggleFullWidth(page(before), idOf('C'));
        QCOMPARE(lines(edit.value().document), after);
        QCOMPARE(PageText::focus(edit->focus), focus);
    }

    void anUnknownBlockIsNoBanner()
    {
        QVERIFY(!BlockOperations::toggleFullWidth(page({image('A')}), idOf('B')));
        QVERIFY(!BlockOperations::toggleFullWidth(page({}), idOf('B')));
    }

    void aBlankHeadingThatIsToggledItselfIsNotLost()
    {
        for (const QList<Block> &blocks :
             {QList{block('A', heading)}, QList{block('A', heading), block('B')}}) {
            const auto edit = BlockOperations::toggleFullWidth(page(blocks), idOf('A'));
            QCOMPARE(edit.value().document.blocks.size(), blocks.size());
            QCOMPARE(line(edit->document.blocks.first()), u"A textLarge \"\" full"_s);
        }
    }

    void theTitleOfABannerSurvivesTheWayThereAndBack()
    {
        Block titled = image('C');
        titled.bannerTitle = u"Summer"_s;
        const auto on = BlockOperations::toggleFullWidth(page({block('A', heading), titled}), idOf('C'));
        const auto off = BlockOperations::toggleFullWidth(on.value().document, idOf('C'));
        QCOMPARE(
            lines(off.value().document),
            (QStringList{u"+ textLarge \"\""_s, u"C image \"\" image(picture) not full title(Summer)"_s}));
    }

    void onlyAFullWidthImageWithDataOnTopIsTheBanner()
    {
        const auto isBanner = [](const QList<Block> &blocks) {
            return BlockOperations::firstBlockIsBanner(page(blocks));
        };
        Block empty = imageWithoutData('A');
        empty.isFullWidth = true;
        Block text = block('A', heading);
        text.isFullWidth = true;
        text.imageData = "picture"_ba;
        QVERIFY(isBanner({image('A', true)}));
        QVERIFY(isBanner({image('A', true), block('B', heading)}));
        QVERIFY(!isBanner({}));
        QVERIFY(!isBanner({image('A')}));
        QVERIFY(!isBanner({image('A', false)}));
        QVERIFY(!isBanner({block('B'), image('A', true)}));
        QVERIFY(!isBanner({empty}));
        QVERIFY(!isBanner({text}));
    }

    // Finding

    void theFirstTextBlockIsFoundWhateverItsKind()
    {
        const PelkoDocument none = page({block('A', BlockType::divider), image('B'), sticky('C', {})});
        QCOMPARE(BlockOperations::firstTextBlock(none), std::nullopt);
        QCOMPARE(BlockOperations::firstEmptyTextBlock(none), std::nullopt);
        for (const BlockType type : {heading, body, BlockType::quote, BlockType::code}) {
            const PelkoDocument some =
                page({image('A'), block('B', type, u"text"_s), block('C', type), block('D', type)});
            QCOMPARE(BlockOperations::firstTextBlock(some), idOf('B'));
            QCOMPARE(BlockOperations::firstEmptyTextBlock(some), idOf('C'));
        }
    }

    void aBlockOfSpacesIsNotEmpty()
    {
        QCOMPARE(BlockOperations::firstEmptyTextBlock(page({block('A', body, u" "_s)})), std::nullopt);
    }

    void aBlockIsFoundByItsId()
    {
        const PelkoDocument document = page({block('A'), block('B'), block('B')});
        QCOMPARE(BlockOperations::indexOf(document, idOf('A')), 0);
        QCOMPARE(BlockOperations::indexOf(document, idOf('B')), 1);
        QCOMPARE(BlockOperations::indexOf(document, idOf('C')), -1);
        QCOMPARE(BlockOperations::indexOf(document, QUuid()), -1);
    }
};

PELKO_TEST(TestBlockOperations)
#include "tst_BlockOperations.moc"
