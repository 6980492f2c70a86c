#include "Editor/JoinOperations.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

/// A key at the edge of the text `at` ("B" or "B.x"), and the expected page.
struct JoinCase {
    const char *name;
    QList<Block> blocks;
    const char *at;
    QStringList becomes;
    QString focus;
};

TextAddress addressOf(const char *at)
{
    return at[1] == '.' ? address(at[0], at[2]) : address(at[0]);
}

Block divider(char letter)
{
    return block(letter, BlockType::divider);
}

const QList<JoinCase> &backwardsCases()
{
    static const QList<JoinCase> cases{
        {"text joins the text above",
         {block('A', heading, u"one"_s), block('B', body, u"two"_s), block('C')},
         "B",
         {u"A textLarge \"onetwo\""_s, u"C textSmall \"\""_s},
         u"A@3"_s},
        {"text joins an empty block above",
         {block('A', heading), block('B', body, u"two"_s)},
         "B",
         {u"A textLarge \"two\""_s},
         u"A@0"_s},
        {"a heading becomes body first",
         {block('A', body, u"one"_s), block('B', heading, u"two"_s)},
         "B",
         {u"A textSmall \"one\""_s, u"B textSmall \"two\""_s},
         u"B@0"_s},
        {"a quote becomes body first",
         {block('A', BlockType::quote, u"one"_s)},
         "A",
         {u"A textSmall \"one\""_s},
         u"A@0"_s},
        {"code becomes body first",
         {block('A', BlockType::code, u"a\nb"_s)},
         "A",
         {u"A textSmall \"a\nb\""_s},
         u"A@0"_s},
        {"an empty block goes",
         {block('A', body, u"one"_s), block('B')},
         "B",
         {u"A textSmall \"one\""_s},
         u"A@end"_s},
        {"an empty heading goes",
         {block('A', body, u"one"_s), block('B', heading)},
         "B",
         {u"A textSmall \"one\""_s},
         u"A@end"_s},
        {"an empty quote under a divider becomes body",
         {divider('A'), block('B', BlockType::quote)},
         "B",
         {u"A divider \"\""_s, u"B textSmall \"\""_s},
         u"B@0"_s},
        {"the first text goes nowhere", {block('A', body, u"one"_s)}, "A", {}, {}},
        {"the first empty body goes nowhere", {block('A'), block('B')}, "A", {}, {}},
        {"an empty leading heading stays", {block('A', heading), block('B')}, "A", {}, {}},
        {"a divider is stepped onto",
         {divider('A'), block('B', body, u"two"_s)},
         "B",
         {u"A divider \"\""_s, u"B textSmall \"two\""_s},
         u"A@end"_s},
        {"a picture is stepped onto",
         {image('A'), block('B', body, u"two"_s)},
         "B",
         {u"A image \"\" image(picture)"_s, u"B textSmall \"two\""_s},
         u"A@end"_s},
        {"an empty block stays under a divider",
         {divider('A'), block('B')},
         "B",
         {u"A divider \"\""_s, u"B textSmall \"\""_s},
         u"A@end"_s},
        {"text joins the last entry above",
         {sticky('A', {todo('x', u"one"_s), todo('y', u"two"_s)}), block('B', body, u"three"_s)},
         "B",
         {u"A sticky \"\" todos(x[ ] \"one\", y[ ] \"twothree\")"_s},
         u"A.y@3"_s},
        {"a checklist without entries is stepped onto",
         {sticky('A', {}), block('B', body, u"two"_s)},
         "B",
         {u"A sticky \"\" todos()"_s, u"B textSmall \"two\""_s},
         u"A@end"_s},
        {"an entry joins the one above, which keeps its tick",
         {sticky('A', {todo('x', u"one"_s, true), todo('y', u"two"_s)})},
         "A.y",
         {u"A sticky \"\" todos(x[x] \"onetwo\")"_s},
         u"A.x@3"_s},
        {"an empty entry goes",
         {sticky('A', {todo('x', u"one"_s), todo('y'), todo('z')})},
         "A.y",
         {u"A sticky \"\" todos(x[ ] \"one\", z[ ] \"\")"_s},
         u"A.x@3"_s},
        {"the first entry leaves the checklist",
         {sticky('A', {todo('x', u"one"_s), todo('y', u"two"_s)})},
         "A.x",
         {u"+ textSmall \"one\""_s, u"A sticky \"\" todos(y[ ] \"two\")"_s},
         u"+@0"_s},
        {"an empty first entry goes",
         {sticky('A', {todo('x'), todo('y', u"two"_s)})},
         "A.x",
         {u"A sticky \"\" todos(y[ ] \"two\")"_s},
         u"A.y@0"_s},
        {"the only entry takes the checklist with it",
         {block('A'), sticky('B', {todo('x')})},
         "B.x",
         {u"A textSmall \"\""_s, u"B textSmall \"\""_s},
         u"B@0"_s},
        {"an unknown block", {block('A')}, "Z", {}, {}},
        {"an unknown entry", {sticky('A', {todo('x')})}, "A.z", {}, {}},
        {"a picture's title", {block('A'), image('B', true)}, "B", {}, {}},
    };
    return cases;
}

const QList<JoinCase> &forwardsCases()
{
    static const QList<JoinCase> cases{
        {"the text below joins",
         {block('A', heading, u"one"_s), block('B', BlockType::quote, u"two"_s)},
         "A",
         {u"A textLarge \"onetwo\""_s},
         u"A@3"_s},
        {"an empty block below goes",
         {block('A', body, u"one"_s), block('B', heading), block('C')},
         "A",
         {u"A textSmall \"one\""_s, u"C textSmall \"\""_s},
         u"A@3"_s},
        {"an empty body makes way",
         {block('A'), block('B', heading, u"two"_s)},
         "A",
         {u"B textLarge \"two\""_s},
         u"B@0"_s},
        {"an empty heading takes the text below",
         {block('A', heading), block('B', body, u"two"_s)},
         "A",
         {u"A textLarge \"two\""_s},
         u"A@0"_s},
        {"the last text goes nowhere", {block('A', body, u"one"_s)}, "A", {}, {}},
        {"a divider is stepped onto",
         {block('A', body, u"one"_s), divider('B')},
         "A",
         {u"A textSmall \"one\""_s, u"B divider \"\""_s},
         u"B@0"_s},
        {"a picture is stepped onto, even from an empty body",
         {block('A'), image('B')},
         "A",
         {u"A textSmall \"\""_s, u"B image \"\" image(picture)"_s},
         u"B@0"_s},
        {"the first entry below joins",
         {block('A', body, u"one"_s), sticky('B', {todo('x', u"two"_s), todo('y')})},
         "A",
         {u"A textSmall \"onetwo\""_s, u"B sticky \"\" todos(y[ ] \"\")"_s},
         u"A@3"_s},
        {"the only entry below joins, and its checklist goes",
         {block('A', body, u"one"_s), sticky('B', {todo('x', u"two"_s)})},
         "A",
         {u"A textSmall \"onetwo\""_s},
         u"A@3"_s},
        {"an empty body makes way for a checklist",
         {block('A'), sticky('B', {todo('x', u"two"_s)})},
         "A",
         {u"B sticky \"\" todos(x[ ] \"two\")"_s},
         u"B.x@0"_s},
        {"the entry below joins",
         {sticky('A', {todo('x', u"one"_s, true), todo('y', u"two"_s)})},
         "A.x",
         {u"A sticky \"\" todos(x[x] \"onetwo\")"_s},
         u"A.x@3"_s},
        {"an empty entry makes way",
         {sticky('A', {todo('x'), todo('y', u"two"_s, true)})},
         "A.x",
         {u"A sticky \"\" todos(y[x] \"two\")"_s},
         u"A.y@0"_s},
        {"the text below joins the last entry",
         {sticky('A', {todo('x', u"one"_s)}), block('B', body, u"two"_s)},
         "A.x",
         {u"A sticky \"\" todos(x[ ] \"onetwo\")"_s},
         u"A.x@3"_s},
        {"a divider below the last entry is stepped onto",
         {sticky('A', {todo('x', u"one"_s)}), divider('B')},
         "A.x",
         {u"A sticky \"\" todos(x[ ] \"one\")"_s, u"B divider \"\""_s},
         u"B@0"_s},
        {"an unknown block", {block('A'), block('B')}, "Z", {}, {}},
        {"an unknown entry", {sticky('A', {todo('x')}), block('B')}, "A.z", {}, {}},
        {"a picture's title", {image('A', true), block('B')}, "A", {}, {}},
    };
    return cases;
}

} // namespace

class TestJoinOperations : public QObject
{
    Q_OBJECT

    static void addRows(const QList<JoinCase> &cases)
    {
        QTest::addColumn<QList<Block>>("blocks");
        QTest::addColumn<QByteArray>("at");
        QTest::addColumn<QStringList>("becomes");
        QTest::addColumn<QString>("focus");
        for (const JoinCase &row : cases)
            QTest::newRow(row.name) << row.blocks << QByteArray(row.at) << row.becomes << row.focus;
    }

    static void compare(const std::optional<Edit> &edit)
    {
        QFETCH(const QStringList, becomes);
        QCOMPARE(edit ? lines(edit->document) : QStringList(), becomes);
        QTEST(edit ? PageText::focus(edit->focus) : QString(), "focus");
    }

private Q_SLOTS:
    void backspaceAtTheStartOfAText_data() { addRows(backwardsCases()); }

    void backspaceAtTheStartOfAText()
    {
        QFETCH(const QList<Block>, blocks);
        QFETCH(const QByteArray, at);
        compare(JoinOperations::backwards(page(blocks), addressOf(at)));
    }

    void deleteAtTheEndOfAText_data() { addRows(forwardsCases()); }

    void deleteAtTheEndOfAText()
    {
        QFETCH(const QList<Block>, blocks);
        QFETCH(const QByteArray, at);
        compare(JoinOperations::forwards(page(blocks), addressOf(at)));
    }

    void aBlockWithoutTextIsRemovedByAKeyOnItself_data()
    {
        QTest::addColumn<QList<Block>>("blocks");
        QTest::addColumn<bool>("forward");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("focus");
        const QList<Block> between{block('A', body, u"one"_s), divider('B'), block('C', body, u"two"_s)};
        QTest::newRow("Backspace") << between << false << u"AC"_s << u"A@end"_s;
        QTest::newRow("Delete") << between << true << u"AC"_s << u"C@0"_s;
        QTest::newRow("unknown") << QList{block('X'), block('Y')} << false << QString() << QString();
        QTest::newRow("below a picture")
            << QList{image('A'), divider('B'), block('C')} << false << u"AC"_s << u"C@0"_s;
        QTest::newRow("at the end") << QList{block('A'), divider('B')} << true << u"A"_s << u"A@end"_s;
        QTest::newRow("first") << QList{divider('B'), sticky('C', {todo('x')})} << false << u"C"_s
                               << u"C.x@0"_s;
        QTest::newRow("the only block") << QList{divider('B')} << false << QString() << QString();
    }

    void aBlockWithoutTextIsRemovedByAKeyOnItself()
    {
        QFETCH(const QList<Block>, blocks);
        QFETCH(const bool, forward);
        const auto edit = JoinOperations::remove(page(blocks), idOf('B'), forward);
        QTEST(edit ? letters(edit->document) : QString(), "left");
        QTEST(edit ? PageText::focus(edit->focus) : QString(), "focus");
    }
};

PELKO_TEST(TestJoinOperations)
#include "tst_JoinOperations.moc"
