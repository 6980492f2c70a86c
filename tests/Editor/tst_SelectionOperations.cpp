#include "Editor/SelectionOperations.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

/// A heading, a body, a divider, a checklist, a picture and a code block.
PelkoDocument pageToSelectIn()
{
    return page({block('A', BlockType::textLarge, u"Head"_s), block('B', BlockType::textSmall, u"Body"_s),
                 block('C', BlockType::divider),
                 sticky('D', {todo('x', u"milk"_s), todo('y', u"rye"_s, true)}), image('E'),
                 block('F', BlockType::code, u"code"_s)});
}

/// "B@2", or "D.x@3" in an entry of a checklist.
PagePosition at(const QString &place)
{
    const bool isEntry = place.at(1) == u'.';
    PagePosition position{.passage = {.blockID = idOf(place.at(0).toLatin1())},
                          .offset = place.section(u'@', 1).toInt()};
    if (isEntry)
        position.passage.partID = idOf(place.at(2).toLatin1());
    return position;
}

BlockSelection selection(const QString &from, const QString &to)
{
    return {.anchor = at(from), .head = at(to)};
}

QString shortLines(const PelkoDocument &document)
{
    return lines(document).join(u" | "_s);
}

} // namespace

class TestSelectionOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsSelectedIsRemoved_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("caret");
        const QString a = u"A textLarge \"Head\" | "_s;
        const QString b = u"B textSmall \"Body\" | "_s;
        const QString c = u"C divider \"\" | "_s;
        const QString d = u"D sticky \"\" todos(x[ ] \"milk\", y[x] \"rye\") | "_s;
        const QString e = u"E image \"\" image(picture) | "_s;
        const QString f = u"F code \"code\""_s;
        QTest::newRow("within one text")
            << "B@1" << "B@3" << a + u"B textSmall \"By\" | "_s + c + d + e + f << "B@1";
        QTest::newRow("two texts join")
            << "A@2" << "B@2" << u"A textLarge \"Hedy\" | "_s + c + d + e + f << "A@2";
        QTest::newRow("backwards") << "B@2" << "A@2" << u"A textLarge \"Hedy\" | "_s + c + d + e + f << "A@2";
        QTest::newRow("only the seam")
            << "A@4" << "B@0" << u"A textLarge \"HeadBody\" | "_s + c + d + e + f << "A@4";
        QTest::newRow("all of two texts")
            << "A@0" << "B@4" << u"A textLarge \"\" | "_s + c + d + e + f << "A@0";
        QTest::newRow("a divider alone")
            << "C@0" << "C@1" << a + b + u"+ textSmall \"\" | "_s + d + e + f << "+@0";
        QTest::newRow("a text up to behind a divider")
            << "B@1" << "C@1" << a + u"B textSmall \"B\" | "_s + d + e + f << "B@1";
        QTest::newRow("a text up to before a divider")
            << "B@1" << "C@0" << a + u"B textSmall \"B\" | "_s + c + d + e + f << "B@1";
        QTest::newRow("a divider and half an entry")
            << "C@0" << "D.x@2" << a + b + u"D sticky \"\" todos(x[ ] \"lk\", y[x] \"rye\") | "_s + e + f
            << "D.x@0";
        QTest::newRow("text into an entry")
            << "B@2" << "D.x@2"
            << a + u"B textSmall \"Bolk\" | D sticky \"\" todos(y[x] \"rye\") | "_s + e + f << "B@2";
        QTest::newRow("text into the last entry")
            << "B@2" << "D.y@2" << a + u"B textSmall \"Boe\" | "_s + e + f << "B@2";
        QTest::newRow("a whole checklist from outside") << "B@4" << "D.y@3" << a + b + e + f << "B@4";
        QTest::newRow("entries join")
            << "D.x@1" << "D.y@1" << a + b + c + u"D sticky \"\" todos(x[ ] \"mye\") | "_s + e + f << "D.x@1";
        QTest::newRow("all entries from inside")
            << "D.x@0" << "D.y@3" << a + b + c + u"D sticky \"\" todos(x[ ] \"\") | "_s + e + f << "D.x@0";
        QTest::newRow("an entry into text")
            << "D.x@2" << "F@2" << a + b + c + u"D sticky \"\" todos(x[ ] \"mide\")"_s << "D.x@2";
        QTest::newRow("a checklist and a picture into text")
            << "D.x@0" << "F@2" << a + b + c + u"F code \"de\""_s << "F@0";
        QTest::newRow("the second entry into text")
            << "D.y@0" << "F@2" << a + b + c + u"D sticky \"\" todos(x[ ] \"milk\", y[x] \"de\")"_s
            << "D.y@0";
        QTest::newRow("a picture and text") << "E@0" << "F@4" << a + b + c + d + u"F code \"\""_s << "F@0";
        QTest::newRow("from behind a picture")
            << "E@1" << "F@1" << a + b + c + d + e + u"F code \"ode\""_s << "F@0";
        QTest::newRow("from divider to picture")
            << "C@0" << "E@1" << a + b + u"+ textSmall \"\" | "_s + f << "+@0";
        QTest::newRow("everything") << "A@0" << "F@4" << u"A textLarge \"\""_s << "A@0";
        QTest::newRow("beyond the end of a text")
            << "B@1" << "B@99" << a + u"B textSmall \"B\" | "_s + c + d + e + f << "B@1";
    }

    void whatIsSelectedIsRemoved()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, left);
        QFETCH(QString, caret);
        const auto edit = SelectionOperations::remove(pageToSelectIn(), selection(from, to));
        QCOMPARE(shortLines(edit.value().document), left);
        QCOMPARE(focus(edit->focus), caret);
    }

    void nothingIsRemovedWhereAnEndIsNotOnThePage()
    {
        QVERIFY(!SelectionOperations::remove(pageToSelectIn(), selection(u"A@0"_s, u"Z@0"_s)));
        QVERIFY(!SelectionOperations::replace(pageToSelectIn(), selection(u"D.z@0"_s, u"F@0"_s), u"x"_s));
    }

    void aPageOfThingsWithoutTextGetsABody()
    {
        const auto edit =
            SelectionOperations::remove(page({image('A'), block('B', BlockType::divider), sticky('C', {})}),
                                        selection(u"A@0"_s, u"C@1"_s));
        QCOMPARE(lines(edit.value().document), QStringList{u"+ textSmall \"\""_s});
        QCOMPARE(focus(edit->focus), u"+@0"_s);
    }

    void aBannerGoesWhenAllOfItIsSelected_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("left");
        QTest::newRow("some of the title")
            << "A@1" << "A@2" << "A image \"\" image(picture) full title(Sa) | B textSmall \"Body\"";
        QTest::newRow("all of the title")
            << "A@0" << "A@3" << "A image \"\" image(picture) full title() | B textSmall \"Body\"";
        QTest::newRow("the end of the title and more")
            << "A@1" << "B@2" << "A image \"\" image(picture) full title(Sdy)";
        QTest::newRow("the whole and more") << "A@0" << "B@2" << "B textSmall \"dy\"";
    }

    void aBannerGoesWhenAllOfItIsSelected()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, left);
        Block banner = image('A', true);
        banner.bannerTitle = u"Sea"_s;
        const auto edit = SelectionOperations::remove(
            page({banner, block('B', BlockType::textSmall, u"Body"_s)}), selection(from, to));
        QCOMPARE(shortLines(edit.value().document), left);
    }

    void emptyChecklistsOutsideStay()
    {
        const auto edit =
            SelectionOperations::remove(page({sticky('A', {}), block('B', BlockType::quote, u"bb"_s),
                                              block('C', BlockType::quote, u"cc"_s), sticky('D', {})}),
                                        selection(u"B@1"_s, u"C@1"_s));
        QCOMPARE(shortLines(edit.value().document),
                 u"A sticky \"\" todos() | B quote \"bc\" | D sticky \"\" todos()"_s);
    }

    void textTakesThePlaceOfWhatIsSelected_data()
    {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("caret");
        const QString rest = u" | C textSmall \"third\""_s;
        QTest::newRow("a letter") << "A@2" << "B@3" << "x" << u"A textLarge \"fixond\""_s + rest << "A@3";
        QTest::newRow("a return") << "A@2" << "B@3" << "\n"
                                  << u"A textLarge \"fi\" | + textSmall \"ond\""_s + rest << "+@0";
        QTest::newRow("two lines") << "A@2" << "B@3" << "x\ny"
                                   << u"A textLarge \"fix\" | + textSmall \"yond\""_s + rest << "+@1";
        QTest::newRow("a shortcut") << "B@0" << "C@5" << "> " << u"A textLarge \"first\" | B quote \"\""_s
                                    << "B@end";
    }

    void textTakesThePlaceOfWhatIsSelected()
    {
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, text);
        QFETCH(QString, left);
        QFETCH(QString, caret);
        const PelkoDocument three =
            page({block('A', BlockType::textLarge, u"first"_s), block('B', BlockType::textSmall, u"second"_s),
                  block('C', BlockType::textSmall, u"third"_s)});
        const auto edit = SelectionOperations::replace(three, selection(from, to), text);
        QCOMPARE(shortLines(edit.value().document), left);
        QCOMPARE(focus(edit->focus), caret);
    }

    void linesPastedOverLinesOfOneBlockStayInIt()
    {
        const auto edit = SelectionOperations::replace(page({block('A', BlockType::code, u"a\nb"_s)}),
                                                       selection(u"A@0"_s, u"A@3"_s), u"x\ny"_s);
        QCOMPARE(edit.value().document.blocks.size(), 1);
        QCOMPARE(edit->document.blocks.first().content, u"x\ny"_s);
        QCOMPARE(focus(edit->focus), u"A@3"_s);
    }

    void anEntryIsTypedOverAsAnEntry()
    {
        const auto edit =
            SelectionOperations::replace(pageToSelectIn(), selection(u"D.x@2"_s, u"F@4"_s), u"\nz"_s);
        QCOMPARE(line(edit.value().document.blocks.last()),
                 u"D sticky \"\" todos(x[ ] \"mi\", +[ ] \"z\")"_s);
        QCOMPARE(focus(edit->focus), u"D.+@1"_s);
    }

    void returnMakesALineAtTheSeam_data()
    {
        QTest::addColumn<BlockType>("type");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("split");
        QTest::addColumn<QString>("broken");
        const BlockType body = BlockType::textSmall;
        QTest::newRow("one line") << body << u"one"_s << u"A textSmall \"on\" | + textSmall \"wo\""_s
                                  << u"A textSmall \"on\nwo\""_s;
        QTest::newRow("a line break before the seam")
            << body << u"o\none"_s << u"A textSmall \"o\non\" | + textSmall \"wo\""_s
            << u"A textSmall \"o\non\nwo\""_s;
        QTest::newRow("code of one line")
            << BlockType::code << u"one"_s << u"A code \"on\" | + textSmall \"wo\""_s
            << u"A code \"on\nwo\""_s;
        QTest::newRow("code of two lines")
            << BlockType::code << u"o\none"_s << u"A code \"o\non\nwo\""_s << u"A code \"o\non\nwo\""_s;
    }

    void returnMakesALineAtTheSeam()
    {
        QFETCH(const BlockType, type);
        QFETCH(const QString, first);
        const PelkoDocument two = page({block('A', type, first), block('B', BlockType::textSmall, u"two"_s)});
        const BlockSelection selected = selection(u"A@%1"_s.arg(first.size() - 1), u"B@1"_s);
        QTEST(shortLines(SelectionOperations::split(two, selected).value().document), "split");
        QTEST(shortLines(SelectionOperations::breakLine(two, selected).value().document), "broken");
    }

    void returnOverAPictureLeavesAnEmptyLineBelow()
    {
        const auto edit = SelectionOperations::split(page({image('A')}), selection(u"A@0"_s, u"A@1"_s));
        QCOMPARE(shortLines(edit.value().document), u"+ textSmall \"\" | + textSmall \"\""_s);
    }

    void aPictureTakesThePlaceOfWhatIsSelected()
    {
        const auto edit = SelectionOperations::replaceByPicture(pageToSelectIn(),
                                                                selection(u"A@2"_s, u"F@2"_s), "picture"_ba);
        QCOMPARE(shortLines(edit.value().document), u"A textLarge \"Hede\" | + image \"\" image(picture)"_s);
        QCOMPARE(edit->document.blocks.last().imageData, "picture"_ba);
        QCOMPARE(focus(edit->focus), u"A@2"_s);
        QVERIFY(!SelectionOperations::replaceByPicture(pageToSelectIn(), selection(u"Z@0"_s, u"F@2"_s), {}));
    }

    void linesThatJoinABannerTitleBecomeOne()
    {
        PelkoDocument document = page({image('A', true), block('B', BlockType::textSmall, u"two\nthree"_s)});
        document.blocks[0].bannerTitle = u"ti\u2028tle"_s;
        const BlockSelection selected = selection(u"A@4"_s, u"B@1"_s);
        const auto removed = SelectionOperations::remove(document, selected);
        QCOMPARE(removed.value().document.blocks.first().bannerTitle, u"ti\u2028two three"_s);
        const auto split = SelectionOperations::split(document, selected);
        QCOMPARE(split.value().document.blocks.first().bannerTitle, u"ti\u2028two three"_s);
    }

    void aBannerTitleStaysOneLine()
    {
        const auto edit = SelectionOperations::replace(page({image('A', true), block('B')}),
                                                       selection(u"A@0"_s, u"A@0"_s), u"a\nb"_s);
        QCOMPARE(edit.value().document.blocks.first().bannerTitle, u"a b"_s);
        QCOMPARE(focus(edit->focus), u"A@3"_s);
    }
};

PELKO_TEST(TestSelectionOperations)
#include "tst_SelectionOperations.moc"
