#include "Models/BlockType.h"
#include "Models/Space.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestRawValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spacesHaveTheirNames()
    {
        const std::array names{u"ideas"_s, u"work"_s, u"journal"_s};
        for (std::size_t index = 0; index < names.size(); ++index) {
            QCOMPARE(rawValue(allSpaces[index]), names[index]);
            QCOMPARE(spaceFromRawValue(names[index]), allSpaces[index]);
        }
    }

    void blockTypesHaveTheirNamesInOrder()
    {
        const std::array names{u"textLarge"_s, u"textSmall"_s, u"quote"_s, u"code"_s,
                               u"divider"_s,   u"image"_s,     u"sticky"_s};
        for (std::size_t index = 0; index < names.size(); ++index) {
            const auto type = static_cast<BlockType>(index);
            QCOMPARE(rawValue(type), names[index]);
            QCOMPARE(blockTypeFromRawValue(names[index]), type);
            QCOMPARE(isTextLike(type), index < 4);
        }
    }

    void otherNamesAreRejected()
    {
        for (const QString &name : {u""_s, u"Work"_s, u"work "_s, u"archive"_s, u"textlarge"_s}) {
            QCOMPARE(spaceFromRawValue(name), std::nullopt);
            QCOMPARE(blockTypeFromRawValue(name), std::nullopt);
        }
    }
};

PELKO_TEST(TestRawValues)
#include "tst_RawValues.moc"
