#include "Editor/LineOperations.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

enum class Key { shiftReturn, returnKey };

/// A text with its selection between two bars, or the caret as one bar.
struct Selected {
    QString text;
    LineOperations::Stretch stretch;

    explicit Selected(const QString &written)
        : text(QString(written).remove(u'|'))
        , stretch{.start = int(written.indexOf(u'|')), .end = int(written.lastIndexOf(u'|'))}
    {
        if (stretch.end > stretch.start)
            --stretch.end;
    }
};

} // namespace

Q_DECLARE_METATYPE(Key)

class TestLineOperations : public QObject
{
    Q_OBJECT

    static std::optional<Edit> press(Key key, const PelkoDocument &page, const TextAddress &field,
                                     LineOperations::Stretch selected)
    {
        return key == Key::shiftReturn ? LineOperations::breakLine(page, field, selected)
                                       : LineOperations::split(page, field, selected);
    }

private Q_SLOTS:
    void aKeyMakesALineOfABlock_data()
    {
        QTest::addColumn<Key>("key");
        QTest::addColumn<BlockType>("type");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QStringList>("becomes");
        QTest::addColumn<QString>("focus");
        const auto row = [](const char *name, Key key, BlockType type, const QString &written,
                            const QStringList &becomes, const QString &focus) {
            QTest::newRow(name) << key << type << written << becomes << focus;
        };
        constexpr BlockType body = BlockType::textSmall;
        row("break", Key::shiftReturn, body, u"one|two"_s, {u"A textSmall \"one\ntwo\""_s}, u"A@4"_s);
        row("break at the end", Key::shiftReturn, body, u"one|"_s, {u"A textSmall \"one\n\""_s}, u"A@4"_s);
        row("break of an empty block", Key::shiftReturn, body, u"|"_s, {u"A textSmall \"\n\""_s}, u"A@1"_s);
        row("break over a selection", Key::shiftReturn, body, u"o|ne|two"_s, {u"A textSmall \"o\ntwo\""_s},
            u"A@2"_s);
        row("second break", Key::shiftReturn, body, u"one\ntwo|"_s, {u"A textSmall \"one\ntwo\n\""_s},
            u"A@8"_s);
        row("break of a heading", Key::shiftReturn, BlockType::textLarge, u"one|two"_s,
            {u"A textLarge \"one\ntwo\""_s}, u"A@4"_s);
        row("break of code", Key::shiftReturn, BlockType::code, u"a;|"_s, {u"A code \"a;\n\""_s}, u"A@3"_s);
        row("split", Key::returnKey, body, u"one\nt|wo"_s,
            {u"A textSmall \"one\nt\""_s, u"+ textSmall \"wo\""_s}, u"+@0"_s);
        row("split at the end", Key::returnKey, body, u"one\ntwo|"_s,
            {u"A textSmall \"one\ntwo\""_s, u"+ textSmall \"\""_s}, u"+@0"_s);
        row("split of the first line", Key::returnKey, body, u"o|ne\ntwo"_s,
            {u"A textSmall \"o\""_s, u"+ textSmall \"ne\ntwo\""_s}, u"+@0"_s);
        row("split over a selection", Key::returnKey, body, u"on|e\nt|wo"_s,
            {u"A textSmall \"on\""_s, u"+ textSmall \"wo\""_s}, u"+@0"_s);
        row("split of a quote", Key::returnKey, BlockType::quote, u"one\ntwo|"_s,
            {u"A quote \"one\ntwo\""_s, u"+ textSmall \"\""_s}, u"+@0"_s);
        row("code of one line", Key::returnKey, BlockType::code, u"a;|b;"_s,
            {u"A code \"a;\""_s, u"+ textSmall \"b;\""_s}, u"+@0"_s);
        row("a text of one line", Key::returnKey, body, u"on|e"_s,
            {u"A textSmall \"on\""_s, u"+ textSmall \"e\""_s}, u"+@0"_s);
        row("code goes on", Key::returnKey, BlockType::code, u"a;\nb;|"_s, {u"A code \"a;\nb;\n\""_s},
            u"A@6"_s);
        row("code goes on in the middle", Key::returnKey, BlockType::code, u"a;|\n"_s,
            {u"A code \"a;\n\n\""_s}, u"A@3"_s);
        row("code is left by an empty line", Key::returnKey, BlockType::code, u"a;\nb;\n|"_s,
            {u"A code \"a;\nb;\""_s, u"+ textSmall \"\""_s}, u"+@0"_s);
    }

    void aKeyMakesALineOfABlock()
    {
        QFETCH(const Key, key);
        QFETCH(const BlockType, type);
        QFETCH(const QString, written);
        const Selected selected(written);
        const auto edit = press(key, page({block('A', type, selected.text)}), address('A'), selected.stretch);
        QVERIFY(edit);
        QTEST(lines(edit->document), "becomes");
        QTEST(PageText::focus(edit->focus), "focus");
    }

    void anEntryTakesABreakAndSplits()
    {
        const PelkoDocument list = page({sticky('A', {todo('x', u"onetwo"_s, true), todo('y')})});
        const TextAddress field = address('A', 'x');
        const auto broken = LineOperations::breakLine(list, field, {3, 3});
        QCOMPARE(lines(broken.value().document), {u"A sticky \"\" todos(x[x] \"one\ntwo\", y[ ] \"\")"_s});
        QCOMPARE(PageText::focus(broken->focus), u"A.x@4"_s);
        const auto split = LineOperations::split(broken->document, field, {5, 5});
        QCOMPARE(lines(split.value().document),
                 {u"A sticky \"\" todos(x[x] \"one\nt\", +[ ] \"wo\", y[ ] \"\")"_s});
        QCOMPARE(PageText::focus(split->focus), u"A.+@0"_s);
    }

    /// The selection is between two bars, or the caret is one bar.
    void tabMovesTheSelectedLines_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("indented");
        QTest::addColumn<QString>("unindented");
        QTest::newRow("part of a line") << u"\ta|b|c"_s << u"\t\tabc"_s << u"abc"_s;
        QTest::newRow("two lines") << u"a|b\n\tc|d"_s << u"\tab\n\t\tcd"_s << u"ab\ncd"_s;
        QTest::newRow("the lines around are left")
            << u"\ta\n|\tb\n\tc|\n\td"_s << u"\ta\n\t\tb\n\t\tc\n\td"_s << u"\ta\nb\nc\n\td"_s;
        QTest::newRow("a line that is only ended before is left")
            << u"|\ta\n|\tb"_s << u"\t\ta\n\tb"_s << u"a\n\tb"_s;
        QTest::newRow("up to four spaces") << u"|      a\n  b|"_s << u"\t      a\n\t  b"_s << u"  a\nb"_s;
        QTest::newRow("one step at a time") << u"|\t\ta|"_s << u"\t\t\ta"_s << u"\ta"_s;
        QTest::newRow("nothing to take away") << u"|a\nb|"_s << u"\ta\n\tb"_s << u"a\nb"_s;
        QTest::newRow("an empty text") << u"|"_s << u"\t"_s << u""_s;
        QTest::newRow("other line breaks")
            << u"|a\u2028b\r\nc\rd|"_s << u"\ta\u2028\tb\r\n\tc\r\td"_s << u"a\u2028b\r\nc\rd"_s;
    }

    void tabMovesTheSelectedLines()
    {
        QFETCH(const QString, written);
        const Selected selected(written);
        const PelkoDocument code = page({block('A', BlockType::code, selected.text)});
        const TextAddress field = address('A');
        const auto indented = LineOperations::indent(code, field, selected.stretch);
        QTEST(indented.value().document.blocks.first().content, "indented");
        const auto unindented = LineOperations::unindent(code, field, selected.stretch);
        QTEST(unindented.value().document.blocks.first().content, "unindented");
        QVERIFY(!LineOperations::indent(code, address('Z'), {}));
        QVERIFY(!LineOperations::unindent(code, address('Z'), {}));
    }

    void aSelectionBeyondTheTextEndsWithIt()
    {
        const auto edit = LineOperations::breakLine(page({block('A', BlockType::textSmall, u"one"_s)}),
                                                    address('A'), {2, 99});
        QCOMPARE(lines(edit.value().document), {u"A textSmall \"on\n\""_s});
    }

    void blocksWithoutTextIgnoreReturn()
    {
        const PelkoDocument other =
            page({block('A', BlockType::divider), image('B'), sticky('C', {todo('x')})});
        for (const Key key : {Key::shiftReturn, Key::returnKey}) {
            for (const char letter : {'A', 'B', 'C', 'Z'})
                QVERIFY(!press(key, other, address(letter), {}));
            QVERIFY(!press(key, other, address('C', 'z'), {}));
            QVERIFY(!press(key, other, address('A', 'x'), {}));
        }
    }
};

PELKO_TEST(TestLineOperations)
#include "tst_LineOperations.moc"
