#include "Editor/EditHistory.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

/// A page and its history, edited as an editor does.
struct RememberedPage {
    EditHistory history = {};
    PelkoDocument page;

    void change(const PelkoDocument &to, const EditHistory::Places &places = {})
    {
        history.record(page, to, places);
        page = to;
    }

    /// Types so that block A has this text;
    ///
    /// is the caret.
    void type(QString value)
    {
        const auto caret = value.indexOf(u'|');
        PelkoDocument to = page;
        to.blocks[0].content = value.remove(caret, 1);
        const FocusTarget place{.address = {.blockID = idOf('A')}, .caret = int(caret)};
        history.recordTyping(page, to, {.before = lastPlace, .after = place});
        lastPlace = place;
        page = to;
    }

    bool undo() { return follow(history.undo(page)); }
    bool redo() { return follow(history.redo(page)); }

    QString shownFocus = {};
    std::optional<QUuid> scrolledTo = {};
    std::optional<FocusTarget> lastPlace = {};

private:
    bool follow(const std::optional<Edit> &edit)
    {
        if (!edit)
            return false;
        page = edit->document;
        shownFocus = focus(edit->focus);
        scrolledTo = edit->scrollTo;
        return true;
    }
};

PelkoDocument withBlocks(PelkoDocument page, const QList<Block> &blocks)
{
    page.blocks = blocks;
    return page;
}

/// One typed value per step, and the texts after each undo, the last first.
struct Typing {
    const char *name;
    QStringList values;
    QStringList undone;
};

const QList<Typing> &typings()
{
    static const QList<Typing> all{
        {"the letters of a word", {u"o|"_s, u"on|"_s, u"one|"_s}, {u""_s}},
        {"words",
         {u"a|"_s, u"a |"_s, u"a b|"_s, u"a b |"_s, u"a b  |"_s, u"a b  c|"_s},
         {u"a b  "_s, u"a "_s, u""_s}},
        {"in the middle", {u"<>|"_s, u"<a|>"_s, u"<ab|>"_s}, {u"<>"_s, u""_s}},
        {"another place", {u"a|"_s, u"ab|"_s, u"x|ab"_s, u"xy|ab"_s}, {u"ab"_s, u""_s}},
        {"equal letters at another place", {u"a|"_s, u"aa|"_s, u"a|aa"_s}, {u"aa"_s, u""_s}},
        {"a pasted word", {u"a|"_s, u"a two|"_s, u"a twox|"_s}, {u"a two"_s, u"a"_s, u""_s}},
        {"deleting backwards",
         {u"one two|"_s, u"one tw|"_s, u"one t|"_s, u"one |"_s, u"one|"_s, u"on|"_s, u"o|"_s},
         {u"one"_s, u"one two"_s, u""_s}},
        {"deleting forwards",
         {u"|a bc"_s, u"| bc"_s, u"|bc"_s, u"|c"_s, u"|"_s},
         {u"bc"_s, u"a bc"_s, u""_s}},
        {"typing after deleting", {u"ab|"_s, u"a|"_s, u"ax|"_s}, {u"a"_s, u"ab"_s, u""_s}},
        {"typing over a selection", {u"abc|"_s, u"x|"_s, u"xy|"_s}, {u"abc"_s, u""_s}},
        {"characters beyond the first plane", {u"\U0001F525|"_s, u"\U0001F525\U0001F525|"_s}, {u""_s}},
        {"line breaks", {u"a|"_s, u"a\n|"_s, u"a\nb|"_s}, {u"a\n"_s, u""_s}},
    };
    return all;
}

} // namespace

class TestEditHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newHistoryCannotUndo()
    {
        RememberedPage desk{.page = page({block('A')})};
        QVERIFY(!desk.undo() && !desk.redo());
    }

    void undoAndRedoRestoreStepsInOrder()
    {
        RememberedPage desk{.page = page({block('A')})};
        for (const QString &content : {u"one"_s, u"two"_s, u"three"_s})
            desk.change(withBlocks(desk.page, {block('A', BlockType::textSmall, content)}));
        QStringList seen;
        while (desk.undo())
            seen << desk.page.blocks.first().content;
        QCOMPARE(seen, (QStringList{u"two"_s, u"one"_s, u""_s}));
        seen.clear();
        while (desk.redo())
            seen << desk.page.blocks.first().content;
        QCOMPARE(seen, (QStringList{u"one"_s, u"two"_s, u"three"_s}));
    }

    void newStepDiscardsRedo()
    {
        RememberedPage desk{.page = page({block('A')})};
        desk.type(u"a|"_s);
        desk.undo();
        desk.type(u"b|"_s);
        QVERIFY(!desk.redo());
        QVERIFY(desk.undo());
        QCOMPARE(desk.page.blocks.first().content, u""_s);
    }

    void unchangedPageIsNoStep()
    {
        RememberedPage desk{.page = page({block('A')})};
        desk.type(u"a|"_s);
        desk.undo();
        desk.change(desk.page);
        QVERIFY(!desk.undo());
        QVERIFY(desk.redo());
    }

    void keysAreTakenBackByWordAndPlace_data()
    {
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<QStringList>("undone");
        for (const Typing &row : typings())
            QTest::newRow(row.name) << row.values << row.undone;
    }

    void keysAreTakenBackByWordAndPlace()
    {
        QFETCH(const QStringList, values);
        RememberedPage desk{.page = page({block('A'), block('B')})};
        for (const QString &value : values)
            desk.type(value);
        const QString written = desk.page.blocks.first().content;
        QStringList undone;
        while (desk.undo())
            undone << desk.page.blocks.first().content;
        QTEST(undone, "undone");
        while (desk.redo()) {
        }
        QCOMPARE(desk.page.blocks.first().content, written);
    }

    void aPauseEndsTheRun()
    {
        RememberedPage desk{.page = page({block('A')})};
        desk.type(u"a|"_s);
        desk.history.endRun();
        desk.type(u"ab|"_s);
        desk.undo();
        QCOMPARE(desk.page.blocks.first().content, u"a"_s);
    }

    void undoEndsTheRun()
    {
        RememberedPage desk{.page = page({block('A')})};
        desk.type(u"a|"_s);
        desk.history.endRun();
        desk.type(u"ab|"_s);
        desk.undo();
        desk.type(u"ac|"_s);
        desk.undo();
        QCOMPARE(desk.page.blocks.first().content, u"a"_s);
    }

    void theCaretGoesBackToWhereItWas()
    {
        RememberedPage desk{.page = page({block('A', BlockType::textSmall, u"ab"_s)})};
        desk.lastPlace = FocusTarget{.address = {.blockID = idOf('A')}, .caret = 1};
        desk.type(u"ax|b"_s);
        desk.type(u"axy|b"_s);
        desk.undo();
        QCOMPARE(desk.shownFocus, u"A@1"_s);
        desk.redo();
        QCOMPARE(desk.shownFocus, u"A@3"_s);
        QCOMPARE(desk.scrolledTo, std::nullopt);
    }

    void withoutAPlaceTheFocusGoesToWhatChanged()
    {
        RememberedPage desk{.page = page({block('A'), block('B')})};
        desk.change(withBlocks(desk.page, {block('A')}));
        desk.undo();
        QCOMPARE(desk.shownFocus, u"B@end"_s);
        desk.redo();
        QCOMPARE(desk.shownFocus, u"A@end"_s);
    }

    void aChangeFarFromTheCaretIsScrolledTo()
    {
        RememberedPage desk{.page = page({block('A'), block('B'), block('C')})};
        const FocusTarget place{.address = {.blockID = idOf('A')}, .caret = 0};
        desk.change(withBlocks(desk.page, {block('A'), block('B')}), {.before = place, .after = place});
        desk.undo();
        QCOMPARE(desk.shownFocus, u"A@0"_s);
        QCOMPARE(desk.scrolledTo, idOf('C'));
    }

    void aChangeMadeElsewhereIsAStepOfItsOwn()
    {
        RememberedPage desk{.page = page({block('A'), sticky('B', {todo('x')})})};
        desk.type(u"a|"_s);
        desk.page.blocks[1].todos->first().done = true; // by another view
        desk.type(u"ab|"_s);
        QStringList undone;
        while (desk.undo())
            undone << lines(desk.page).join(u"; "_s);
        QCOMPARE(undone, (QStringList{u"A textSmall \"a\"; B sticky \"\" todos(x[x] \"\")"_s,
                                      u"A textSmall \"a\"; B sticky \"\" todos(x[ ] \"\")"_s,
                                      u"A textSmall \"\"; B sticky \"\" todos(x[ ] \"\")"_s}));
    }

    void undoRevertsAnExternalChangeFirst()
    {
        RememberedPage desk{.page = page({block('A'), sticky('B', {todo('x')})})};
        desk.type(u"a|"_s);
        desk.page.blocks.prepend(block('N', BlockType::textSmall, u"new"_s));
        QVERIFY(desk.undo());
        QCOMPARE(lines(desk.page).first(), u"A textSmall \"a\""_s);
        QVERIFY(desk.undo());
        QCOMPARE(lines(desk.page).first(), u"A textSmall \"\""_s);
        while (desk.redo()) {
        }
        QCOMPARE(letters(desk.page), u"NAB"_s);
        QCOMPARE(desk.page.blocks[1].content, u"a"_s);
    }

    void externalChangeDiscardsRedo()
    {
        RememberedPage desk{.page = page({block('A'), block('B')})};
        desk.type(u"a|"_s);
        desk.undo();
        desk.page.blocks.removeLast();
        QVERIFY(!desk.redo());
        QVERIFY(desk.undo());
        QCOMPARE(letters(desk.page), u"AB"_s);
    }

    void theRestOfTheDocumentIsLeftAlone()
    {
        RememberedPage desk{.page = page({block('A')})};
        desk.type(u"a|"_s);
        desk.page.isPinned = true;
        desk.page.updatedAt = 12;
        desk.undo();
        QCOMPARE(desk.page.isPinned, true);
        QCOMPARE(desk.page.updatedAt, 12);
    }

    void theOldestStepsGoFirst()
    {
        RememberedPage desk{.history = EditHistory({.steps = 3}), .page = page({block('A')})};
        for (int step = 1; step <= 10; ++step)
            desk.change(withBlocks(desk.page, {block('A', BlockType::textSmall, QString::number(step))}));
        while (desk.undo()) {
        }
        QCOMPARE(desk.page.blocks.first().content, u"7"_s);
    }

    void longTextsAreForgottenSooner()
    {
        RememberedPage desk{.history = EditHistory({.textBytes = 100'000}), .page = page({block('A')})};
        for (int step = 1; step <= 10; ++step)
            desk.change(withBlocks(desk.page,
                                   {block('A', BlockType::textSmall, QString(10'000, QChar(u'a' + step)))}));
        int steps = 0;
        while (desk.undo())
            ++steps;
        QCOMPARE(steps, 2); // of 40,000 bytes each
    }

    void theLatestStepStaysHoweverLarge()
    {
        RememberedPage desk{.history = EditHistory({.textBytes = 10, .pictureBytes = 3}),
                            .page = page({image('A'), image('B'), block('C')})};
        desk.change(withBlocks(desk.page, {image('B'), block('C')}));
        desk.change(withBlocks(desk.page, {block('C')}));
        QVERIFY(desk.undo());
        QVERIFY(!desk.undo());
        QCOMPARE(letters(desk.page), u"BC"_s);
    }

    void longTypingRunCountsItsTextSize()
    {
        RememberedPage desk{.history = EditHistory({.textBytes = 2'000}), .page = page({block('A')})};
        desk.change(withBlocks(desk.page, {block('A', BlockType::textSmall, u"-"_s)}));
        QString word = u"-"_s;
        for (int key = 0; key < 200; ++key)
            desk.type((word += u'x') + u'|');
        QVERIFY(desk.undo());
        QVERIFY(desk.undo());
        QCOMPARE(desk.page.blocks.first().content, u""_s);
    }
};

PELKO_TEST(TestEditHistory)
#include "tst_EditHistory.moc"
