#include "Editor/PageSelection.h"
#include "support/ManualPasteboard.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

#include <QSignalSpy>

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

PelkoDocument letter()
{
    return page({block('A', BlockType::textLarge, u"Dear"_s), block('B', BlockType::textSmall, u"reader"_s)});
}

/// A selection on a page, and the page after its operations.
struct SelectionDesk {
    explicit SelectionDesk(const PelkoDocument &document) : page(document) { selection.publish(page); }

    void apply(const PageSelection::Operation &operation)
    {
        if (const auto edit = operation(page)) {
            page = edit->document;
            caret = focus(edit->focus);
            ++edits;
            selection.publish(page);
        }
    }

    PelkoDocument page;
    QString caret;
    int edits = 0;
    ManualPasteboard pasteboard;
    PageSelection selection{pasteboard,
                            [this](const PageSelection::Operation &operation) { apply(operation); }};
};

} // namespace

class TestPageSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPictureIsCopiedAsAPicture()
    {
        SelectionDesk desk(page({block('A'), image('B'), block('C')}));
        desk.pasteboard.item.text = u"kept"_s;
        QVERIFY(desk.selection.select(between('B', 0, 'B', 1)));
        desk.selection.copy();
        QCOMPARE(desk.pasteboard.item.picture, image('B').imageData);
        QCOMPARE(desk.pasteboard.item.text, QString());
    }

    void copyingWhatHasNoFormKeepsThePasteboard()
    {
        SelectionDesk desk(page({block('A'), block('B', BlockType::image), block('C')}));
        desk.pasteboard.item.text = u"kept"_s;
        QVERIFY(desk.selection.select(between('B', 0, 'B', 1)));
        desk.selection.copy();
        QCOMPARE(desk.pasteboard.item.text, u"kept"_s);
    }

    void aPictureThatIsCutCanBePasted()
    {
        SelectionDesk desk(page({block('A', BlockType::textSmall, u"one"_s), image('B')}));
        QVERIFY(desk.selection.select(between('B', 0, 'B', 1)));
        desk.selection.cut();
        QCOMPARE(lines(desk.page), (QStringList{u"A textSmall \"one\""_s, u"+ textSmall \"\""_s}));
        QCOMPARE(desk.pasteboard.picture(), image('B').imageData.value());
    }

    void aPictureIsPastedOverASelection()
    {
        SelectionDesk desk(letter());
        desk.pasteboard.png = "picture"_ba;
        QVERIFY(desk.selection.select(between('A', 1, 'B', 1)));
        desk.selection.paste();
        QCOMPARE(lines(desk.page),
                 (QStringList{u"A textLarge \"Deader\""_s, u"+ image \"\" image(picture)"_s}));
    }

    void textIsPastedWithinOneText()
    {
        SelectionDesk desk(letter());
        QVERIFY(!desk.selection.pasteText(between('B', 1, 'B', 2)));
        desk.pasteboard.item.text = u"1\u20282\r\n3"_s;
        QVERIFY(desk.selection.pasteText(between('B', 1, 'B', 2)));
        QCOMPARE(lines(desk.page).sliced(1),
                 (QStringList{u"B textSmall \"r1\u20282\""_s, u"+ textSmall \"3ader\""_s}));
        QCOMPARE(desk.caret, u"+@1"_s);
    }

    void textIsCopiedAndCutWithinOneTextAsItIsStored()
    {
        SelectionDesk desk(page({block('A', BlockType::textSmall, u"a\u2028b\u00a0c"_s)}));
        desk.selection.copyText(between('A', 1, 'A', 3));
        QCOMPARE(desk.pasteboard.item.text, u"\u2028b"_s);
        QCOMPARE(desk.edits, 0);
        desk.selection.cutText(between('A', 4, 'A', 2));
        QCOMPARE(desk.pasteboard.item.text, u"b\u00a0"_s);
        QCOMPARE(desk.page.blocks.first().content, u"a\u2028c"_s);
        QCOMPARE(desk.caret, u"A@2"_s);
    }

    void allThatIsSelectedIsOfferedToTheMiddleButton()
    {
        SelectionDesk desk(letter());
        desk.selection.offer();
        QCOMPARE(desk.pasteboard.selected, QString());
        QVERIFY(desk.selection.select(between('A', 2, 'B', 4)));
        desk.selection.offer();
        QCOMPARE(desk.pasteboard.selected, u"ar\nread"_s);
        QVERIFY(desk.selection.pasteSelectedText({.passage = {.blockID = idOf('B')}, .offset = 6}));
        QCOMPARE(desk.page.blocks.last().content, u"read"_s);
    }

    void aSelectionWithinOneTextIsLeftToItsField()
    {
        SelectionDesk desk(letter());
        QVERIFY(desk.selection.select(between('A', 0, 'B', 1)));
        QSignalSpy changed(&desk.selection, &PageSelection::changed);
        QVERIFY(!desk.selection.select(between('A', 0, 'A', 2)));
        QVERIFY(!desk.selection.isCrossing());
        QCOMPARE(changed.count(), 1);
    }

    void theSameSelectionIsAnnouncedOnce()
    {
        SelectionDesk desk(letter());
        QSignalSpy changed(&desk.selection, &PageSelection::changed);
        desk.selection.select(between('A', 0, 'B', 1));
        desk.selection.select(between('A', 0, 'B', 1));
        QCOMPARE(changed.count(), 1);
    }

    void itIsCopiedInEveryForm()
    {
        SelectionDesk desk(letter());
        desk.selection.select(between('A', 2, 'B', 4));
        desk.selection.copy();
        QCOMPARE(desk.pasteboard.item, (PasteboardItem{.text = u"ar\nread"_s,
                                                       .markdown = u"# ar\n\nread"_s,
                                                       .html = u"<h1>ar</h1>\n<p>read</p>"_s}));
        QVERIFY(desk.selection.isCrossing());
        QCOMPARE(desk.edits, 0);
    }

    void cuttingCopiesAndRemovesInOneEdit()
    {
        SelectionDesk desk(letter());
        desk.selection.select(between('A', 2, 'B', 4));
        desk.selection.cut();
        QCOMPARE(desk.pasteboard.item.text, u"ar\nread"_s);
        QCOMPARE(lines(desk.page), QStringList{u"A textLarge \"Deer\""_s});
        QCOMPARE(desk.caret, u"A@2"_s);
        QCOMPARE(desk.edits, 1);
        QVERIFY(!desk.selection.isCrossing());
    }

    void textReplacesItInOneEdit()
    {
        SelectionDesk desk(letter());
        desk.selection.select(between('B', 4, 'A', 2));
        desk.selection.replace(u"x"_s);
        QCOMPARE(lines(desk.page), QStringList{u"A textLarge \"Dexer\""_s});
        QCOMPARE(desk.caret, u"A@3"_s);
        QCOMPARE(desk.edits, 1);
    }

    void linesOfOtherSystemsArePasted()
    {
        SelectionDesk desk(letter());
        desk.pasteboard.item.text = u"one\r\ntwo"_s;
        desk.selection.select(between('A', 2, 'B', 4));
        desk.selection.paste();
        QCOMPARE(lines(desk.page), (QStringList{u"A textLarge \"Deone\""_s, u"+ textSmall \"twoer\""_s}));
        QCOMPARE(desk.caret, u"+@3"_s);
    }

    void anEmptyPasteboardRemovesNothing()
    {
        SelectionDesk desk(letter());
        desk.selection.select(between('A', 2, 'B', 4));
        desk.selection.paste();
        QCOMPARE(desk.edits, 0);
        QVERIFY(desk.selection.isCrossing());
    }

    void nothingSelectedIsNeitherCopiedNorChanged()
    {
        SelectionDesk desk(letter());
        desk.pasteboard.item.text = u"kept"_s;
        desk.selection.cut();
        desk.selection.replace(u"x"_s);
        desk.selection.paste();
        QCOMPARE(desk.pasteboard.item.text, u"kept"_s);
        QCOMPARE(desk.edits, 0);
    }

    void aChangedPageDropsIt()
    {
        SelectionDesk desk(letter());
        desk.selection.select(between('A', 2, 'B', 4));
        PelkoDocument stamped = desk.page;
        stamped.updatedAt = 1;
        desk.selection.publish(stamped);
        QVERIFY(desk.selection.isCrossing());
        stamped.blocks[1].content += u"s"_s;
        desk.selection.publish(stamped);
        QVERIFY(!desk.selection.isCrossing());
        QCOMPARE(desk.selection.passages().at(1).text, u"readers"_s);
    }
};

PELKO_TEST(TestPageSelection)
#include "tst_PageSelection.moc"
