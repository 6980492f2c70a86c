#include "support/TestProgram.h"
#include "writer/PageHistory.h"
#include "writer/PageModel.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

PlainBlock body(const QString &text)
{
    return {.kind = BlockType::textSmall, .text = text};
}

PlainBlock checklist(const QStringList &texts)
{
    PlainBlock block{.kind = BlockType::sticky, .entries = QList<PlainEntry>()};
    for (const QString &text : texts)
        block.entries->append({.text = text});
    return block;
}

PageModel at(const PlainPage &page, const Spot &anchor, const Spot &head)
{
    return {page, Marked{.anchor = anchor, .head = head}};
}

PageModel at(const PlainPage &page, const Spot &caret)
{
    return at(page, caret, caret);
}

QList<PageModel::Stage> steps(const QStringList &texts, bool isTyping)
{
    QList<PageModel::Stage> stages;
    for (const QString &text : texts)
        stages.append({.page = {body(text)}, .isTyping = isTyping});
    return stages;
}

} // namespace

/// The model is a judge of the editor, so its own rules are told here once more, by example.
class TestPageModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnSplitsAtTheCaret()
    {
        PageModel model = at({body(u"onetwo"_s)}, {.offset = 3});
        model.returnKey(false);
        QCOMPARE(linesOf(model.page()), linesOf({body(u"one"_s), body(u"two"_s)}));
        QVERIFY(model.marked()->head == (Spot{.block = 1}));
    }

    void cutOfABlockWithoutTextLeavesALine()
    {
        PageModel model({body(u"above"_s), {.kind = BlockType::divider}}, std::nullopt);
        model.cutWhole(1);
        QCOMPARE(linesOf(model.page()), linesOf({body(u"above"_s), body({})}));
        QVERIFY(model.marked()->head == (Spot{.block = 1}));
    }

    void bannerThatIsNotFirstHasNoCaret()
    {
        const PlainBlock banner{
            .kind = BlockType::image, .picture = "mark", .isFullWidth = true, .title = u"Title"_s};
        PageModel model = at({banner, body(u"below"_s)}, {.offset = 5});
        model.moveBlock(0, 1);
        QVERIFY(!model.marked());
    }

    void selectionOverTextsEndsWithAChangeElsewhere()
    {
        PageModel model = at({body(u"one"_s), body(u"two"_s)}, {}, {.block = 1, .offset = 2});
        model.quickAdd(u"task"_s);
        QVERIFY(!model.marked());
    }

    void shortcutPassesThroughWhatWasTyped()
    {
        PageModel model = at({body(u"#"_s)}, {.offset = 1});
        model.type(u" "_s);
        QCOMPARE(model.stages().size(), 2);
        QCOMPARE(linesOf(model.stages().first().page), linesOf({body(u"# "_s)}));
        QCOMPARE(linesOf(model.page()), linesOf({{.kind = BlockType::textLarge}}));
    }

    void typingWithoutACaretGoesOnAtTheEndOfThePage()
    {
        PageModel model({{.kind = BlockType::divider}}, std::nullopt);
        model.type(u"a"_s);
        model.type(u"b"_s);
        QCOMPARE(linesOf(model.page()), linesOf({{.kind = BlockType::divider}, body(u"ab"_s)}));
    }

    void backspaceTakesAnEmojiAsAWhole()
    {
        const QString emoji = u"👩🏽‍💻"_s;
        PageModel model = at({body(u"a"_s + emoji)}, {.offset = 1 + int(emoji.size())});
        model.backspace();
        QCOMPARE(model.page().first().text, u"a"_s);
    }

    void backspaceTakesACombiningMarkAlone()
    {
        PageModel model = at({body(u"e\u0301"_s)}, {.offset = 2});
        model.backspace();
        QCOMPARE(model.page().first().text, u"e"_s);
    }

    void typingReplacesASelectionOverBlocks()
    {
        const PlainPage page{body(u"one"_s), checklist({u"two"_s}), body(u"three"_s)};
        PageModel model = at(page, {.block = 2, .offset = 2}, {.offset = 1});
        model.type(u"x"_s);
        QCOMPARE(linesOf(model.page()), linesOf({body(u"oxree"_s)}));
    }

    void returnOverBlocksSplitsWhereTheyMeet()
    {
        const PlainPage page{body(u"a\nb"_s), body(u"cd"_s)};
        PageModel model = at(page, {.offset = 3}, {.block = 1, .offset = 1});
        model.returnKey(false);
        QCOMPARE(linesOf(model.page()), linesOf({body(u"a\nb"_s), body(u"d"_s)}));
    }

    void undoMayTakeBackSeveralKeysButOnlyOneOtherStep()
    {
        PageHistory history({body({})});
        history.add(steps({u"a"_s, u"ab"_s, u"abc"_s}, true));
        history.add(steps({u"pasted"_s, u"twice"_s}, false));
        QVERIFY(!history.travel({body(u"abc"_s)}, true));
        QVERIFY(history.travel({body(u"pasted"_s)}, true));
        QVERIFY(history.travel({body(u"abc"_s)}, true));
        QVERIFY(history.travel({body({})}, true));
        QVERIFY(history.travel({body({})}, true)); // there is nothing more
        QVERIFY(!history.travel({body(u"twice"_s)}, false));
        QVERIFY(history.travel({body(u"abc"_s)}, false));
    }
};

PELKO_TEST(TestPageModel)
#include "tst_PageModel.moc"
