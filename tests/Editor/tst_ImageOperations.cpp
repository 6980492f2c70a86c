#include "Editor/ImageOperations.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

class TestImageOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBlockIsFilledWithTheBytesAsTheyAre()
    {
        const QByteArray bytes("\0not \xff a picture", 17);
        const auto edit =
            ImageOperations::setImageData(page({block('A'), block('B', BlockType::image)}), idOf('B'), bytes);
        QCOMPARE(edit.value().document.blocks[1].imageData, bytes);
        QCOMPARE(edit->document.blocks[0], block('A'));
        QCOMPARE(edit->focus, std::nullopt);
    }

    void anEmptyFileCountsAsData()
    {
        const auto edit =
            ImageOperations::setImageData(page({block('A', BlockType::image)}), idOf('A'), QByteArray());
        QVERIFY(edit.value().document.blocks[0].imageData.has_value());
    }

    void aSecondPictureReplacesTheFirstAndNothingElse()
    {
        Block banner = image('A', true);
        banner.bannerTitle = u"Summer"_s;
        const auto edit = ImageOperations::setImageData(page({banner}), idOf('A'), "other"_ba);
        banner.imageData = "other"_ba;
        QCOMPARE(edit.value().document.blocks, QList{banner});
    }

    void aPictureIsInsertedAfterTheBlockAndScrolledTo()
    {
        const auto edit = ImageOperations::insertImage(page({block('A'), block('B')}), idOf('A'), "png"_ba);
        QCOMPARE(letters(edit.value().document), u"A+B"_s);
        const Block &picture = edit->document.blocks[1];
        QCOMPARE(picture.type, BlockType::image);
        QCOMPARE(picture.imageData, "png"_ba);
        QCOMPARE(edit->scrollTo, picture.id);
        QCOMPARE(edit->focus, std::nullopt);
    }

    void theTitleIsStored()
    {
        const auto edit =
            ImageOperations::setBannerTitle(page({image('A', true)}), idOf('A'), u"Summer"_s, 6);
        QCOMPARE(edit.value().document.blocks[0].bannerTitle, u"Summer"_s);
        QCOMPARE(edit->document.title(), u"Summer"_s);
    }

    void titleTextIsPutOnOneLine()
    {
        const auto edit = ImageOperations::setBannerTitle(page({image('A', true)}), idOf('A'),
                                                          u"a\nb\r\nc\u2028d\u2029e\tf"_s, 11);
        QCOMPARE(edit.value().document.blocks[0].bannerTitle, u"a b c d e f"_s);
    }

    void whatStandsInATitleStaysAsItIs()
    {
        PelkoDocument document = page({image('A', true)});
        document.blocks[0].bannerTitle = u"a\u2028b"_s;
        const auto edit = ImageOperations::setBannerTitle(document, idOf('A'), u"a\u2028\nb"_s, 3);
        QCOMPARE(edit.value().document.blocks[0].bannerTitle, u"a\u2028 b"_s);
    }

    void anUnknownBlockChangesNothing()
    {
        const PelkoDocument before = page({block('A')});
        QVERIFY(!ImageOperations::setImageData(before, idOf('X'), "png"_ba));
        QVERIFY(!ImageOperations::insertImage(before, idOf('X'), "png"_ba));
        QVERIFY(!ImageOperations::setBannerTitle(before, idOf('X'), u"t"_s, 1));
    }
};

PELKO_TEST(TestImageOperations)
#include "tst_ImageOperations.moc"
