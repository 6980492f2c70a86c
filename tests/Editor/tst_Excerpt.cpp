#include "Editor/ClipboardFormats.h"
#include "Editor/Excerpt.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

PelkoDocument pageToCopy()
{
    return page({block('A', BlockType::textLarge, u"Head"_s),
                 block('B', BlockType::textSmall, u"Body\n& soul"_s), block('C', BlockType::divider),
                 block('Q', BlockType::quote, u"so\nsaid"_s), image('E'),
                 sticky('D', {todo('x', u"milk"_s), todo('y', u"rye"_s, true)}),
                 block('F', BlockType::code, u"a<b\n```"_s)});
}

} // namespace

class TestExcerpt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAtTheEndsAreCut()
    {
        PelkoDocument cut = pageToCopy();
        cut.blocks = excerpt(pageToCopy(), between('A', 2, 'B', 2));
        QCOMPARE(lines(cut), (QStringList{u"A textLarge \"ad\""_s, u"B textSmall \"Bo\""_s}));
    }

    void entriesAtTheEndsAreCut()
    {
        PelkoDocument cut = pageToCopy();
        cut.blocks = excerpt(pageToCopy(), {.anchor = {.passage = {idOf('D'), idOf('y')}, .offset = 1},
                                            .head = {.passage = {idOf('F')}, .offset = 1}});
        QCOMPARE(lines(cut), (QStringList{u"D sticky \"\" todos(y[x] \"ye\")"_s, u"F code \"a\""_s}));
    }

    void blocksOnlyTouchedAreExcluded()
    {
        PelkoDocument cut = pageToCopy();
        cut.blocks = excerpt(pageToCopy(), between('B', 0, 'C', 0));
        QCOMPARE(letters(cut), u"B"_s);
    }

    void aTitleOfABannerIsCut()
    {
        Block banner = image('A', true);
        banner.bannerTitle = u"Sea"_s;
        const QList<Block> cut = excerpt(page({banner, block('B')}), between('A', 1, 'B', 0));
        QCOMPARE(cut.first().bannerTitle, u"ea"_s);
        QCOMPARE(ClipboardFormats::plainText(cut), u"ea\n"_s);
        QCOMPARE(ClipboardFormats::markdown(cut), u"# ea"_s);
        QCOMPARE(ClipboardFormats::html(cut), u"<h1>ea</h1>"_s);
    }

    void nothingIsCutFromAnotherPage()
    {
        QCOMPARE(excerpt(pageToCopy(), between('A', 0, 'Z', 0)), QList<Block>{});
    }

    void plainTextContainsTheTextOfAllBlocks()
    {
        QCOMPARE(ClipboardFormats::plainText(pageToCopy().blocks),
                 u"Head\nBody\n& soul\n---\nso\nsaid\nmilk\nrye\na<b\n```"_s);
    }

    void markdownMarksTheKinds()
    {
        QCOMPARE(ClipboardFormats::markdown(pageToCopy().blocks),
                 u"# Head\n\nBody  \n& soul\n\n---\n\n> so  \n> said\n\n- [ ] milk\n- [x] rye\n\n"
                 "````\na<b\n```\n````"_s);
    }

    void htmlContainsOnlyElements()
    {
        QCOMPARE(
            ClipboardFormats::html(pageToCopy().blocks),
            u"<h1>Head</h1>\n<p>Body<br>&amp; soul</p>\n<hr>\n<blockquote><p>so<br>said</p></blockquote>\n"
            "<ul><li>☐ milk</li>\n<li>☑ rye</li></ul>\n<pre><code>a&lt;b\n```</code></pre>"_s);
    }

    void emptyBlocksAreLinesOfPlainTextOnly()
    {
        const QList<Block> blocks{block('A', BlockType::textLarge), block('B', BlockType::quote, u"q"_s),
                                  image('C')};
        QCOMPARE(ClipboardFormats::plainText(blocks), u"\nq"_s);
        QCOMPARE(ClipboardFormats::markdown(blocks), u"> q"_s);
        QCOMPARE(ClipboardFormats::html(blocks), u"<blockquote><p>q</p></blockquote>"_s);
    }
};

PELKO_TEST(TestExcerpt)
#include "tst_Excerpt.moc"
