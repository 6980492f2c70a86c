#include "Editor/Passages.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

QString name(const Passage *passage)
{
    if (!passage)
        return u"-"_s;
    const auto &todo = passage->id.partID;
    return nameOf(passage->id.blockID) + (todo ? u'.' + nameOf(*todo) : QString()) + u':' +
           passage->text.value_or(u"(none)"_s);
}

QString all(const PelkoDocument &document)
{
    const Passages passages(document);
    QStringList names;
    for (qsizetype index = 0; index < passages.size(); ++index)
        names << name(&passages.at(index));
    return names.join(u' ');
}

} // namespace

class TestPassages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextAndEveryBlockWithoutTextIsAPassage()
    {
        QCOMPARE(all(page({block('A', BlockType::textLarge, u"a"_s), block('B', BlockType::divider),
                           image('C'), sticky('D', {todo('x', u"milk"_s), todo('y')}), sticky('E', {}),
                           block('F', BlockType::code, u"f"_s)})),
                 u"A:a B:(none) C:(none) D.x:milk D.y: E:(none) F:f"_s);
    }

    void theTitleOfABannerIsATextOnlyAtTheTop()
    {
        Block banner = image('A', true);
        banner.bannerTitle = u"Sea"_s;
        QCOMPARE(all(page({banner, block('B')})), u"A:Sea B:"_s);
        QCOMPARE(all(page({block('B'), banner})), u"B: A:(none)"_s);
        banner.imageData.reset();
        QCOMPARE(all(page({banner})), u"A:(none)"_s);
    }

    void ofBlocksThatShareAnIdTheFirstCounts()
    {
        QCOMPARE(all(page({block('A', BlockType::quote, u"one"_s), block('A', BlockType::quote, u"two"_s)})),
                 u"A:one"_s);
    }

    void neighboursAreFoundInBothDirections()
    {
        const Passages passages(page({block('A'), block('B', BlockType::divider), block('C')}));
        QCOMPARE(name(passages.neighbour({idOf('A')}, true)), u"B:(none)"_s);
        QCOMPARE(name(passages.textNeighbour({idOf('A')}, true)), u"C:"_s);
        QCOMPARE(name(passages.textNeighbour({idOf('C')}, false)), u"A:"_s);
        QCOMPARE(name(passages.neighbour({idOf('C')}, true)), u"-"_s);
        QCOMPARE(name(passages.textNeighbour({idOf('A')}, false)), u"-"_s);
        QCOMPARE(name(passages.neighbour({idOf('Z')}, true)), u"-"_s);
    }

    void aPageBeginsAndEndsWithItsOutermostPassages()
    {
        const Passages passages(
            page({block('A', BlockType::quote, u"abc"_s), block('B', BlockType::divider)}));
        QCOMPARE(passages.start(), (PagePosition{.passage = {idOf('A')}, .offset = 0}));
        QCOMPARE(passages.end(), (PagePosition{.passage = {idOf('B')}, .offset = 1}));
        QCOMPARE(Passages(page({})).start(), std::nullopt);
        QCOMPARE(Passages(page({})).end(), std::nullopt);
    }
};

PELKO_TEST(TestPassages)
#include "tst_Passages.moc"
