#include "Editor/TypingRules.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

#include <QSet>

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{

/// The text that a field reports for block B of the page A (heading), B, C (body), and the expected page.
struct TypingCase {
    const char *name;
    BlockType type;
    QString stored;
    QString typed;
    int caret;
    QStringList becomes;
    QString focus;
};

const QList<TypingCase> &shortcuts()
{
    static const QList<TypingCase> cases{
        {"#", body, u"#"_s, u"# "_s, 2, {u"B textLarge \"\""_s}, u"B@end"_s},
        {">", body, u">"_s, u"> "_s, 2, {u"B quote \"\""_s}, u"B@end"_s},
        {"```", body, u"``"_s, u"```"_s, 3, {u"B code \"\""_s}, u"B@end"_s},
        {"``` pasted", body, {}, u"``` "_s, 4, {u"B code \"\""_s}, u"B@end"_s},
        {"---", body, u"--"_s, u"---"_s, 3, {u"B divider \"\""_s, u"+ textSmall \"\""_s}, u"+@end"_s},
        {"--- pasted", body, {}, u"--- "_s, 4, {u"B divider \"\""_s, u"+ textSmall \"\""_s}, u"+@end"_s},
        {"[]", body, u"[]"_s, u"[] "_s, 3, {u"B sticky \"\" todos(+[ ] \"\")"_s}, u"B.+@end"_s},
        {"[ ]", body, u"[ ]"_s, u"[ ] "_s, 4, {u"B sticky \"\" todos(+[ ] \"\")"_s}, u"B.+@end"_s},
        {"space before text", body, u"#word"_s, u"# "_s, 2, {u"B textLarge \"\""_s}, u"B@end"_s},
        {"caret elsewhere", body, {}, u"# "_s, 0, {u"B textLarge \"\""_s}, u"B@end"_s},
        {"text of two lines",
         body,
         u"a\nb"_s,
         u"---"_s,
         3,
         {u"B divider \"\""_s, u"+ textSmall \"\""_s},
         u"+@end"_s},
    };
    return cases;
}

const QList<TypingCase> &lineFeeds()
{
    static const QList<TypingCase> cases{
        {"at the end",
         body,
         u"one"_s,
         u"one\n"_s,
         4,
         {u"B textSmall \"one\""_s, u"+ textSmall \"\""_s},
         u"+@0"_s},
        {"in the middle",
         body,
         u"onetwo"_s,
         u"one\ntwo"_s,
         4,
         {u"B textSmall \"one\""_s, u"+ textSmall \"two\""_s},
         u"+@0"_s},
        {"at the start",
         body,
         u"one"_s,
         u"\none"_s,
         1,
         {u"B textSmall \"\""_s, u"+ textSmall \"one\""_s},
         u"+@0"_s},
        {"in an empty block", body, {}, u"\n"_s, 1, {u"B textSmall \"\""_s, u"+ textSmall \"\""_s}, u"+@0"_s},
        {"heading",
         heading,
         u"Title"_s,
         u"Title\n"_s,
         6,
         {u"B textLarge \"Title\""_s, u"+ textSmall \"\""_s},
         u"+@0"_s},
        {"quote",
         BlockType::quote,
         u"said he"_s,
         u"said\n he"_s,
         5,
         {u"B quote \"said\""_s, u"+ textSmall \" he\""_s},
         u"+@0"_s},
        {"code",
         BlockType::code,
         u"a;"_s,
         u"a;\n"_s,
         3,
         {u"B code \"a;\""_s, u"+ textSmall \"\""_s},
         u"+@0"_s},
        {"pasted lines split at the first",
         body,
         u"[]"_s,
         u"[one\ntwo\n\nthree]"_s,
         15,
         {u"B textSmall \"[one\""_s, u"+ textSmall \"two\n\nthree]\""_s},
         u"+@10"_s},
        {"pasted lines with text after the caret",
         body,
         u"<>"_s,
         u"<one\ntwo>"_s,
         8,
         {u"B textSmall \"<one\""_s, u"+ textSmall \"two>\""_s},
         u"+@3"_s},
        {"caret before the line feed",
         body,
         u"one"_s,
         u"one\ntwo"_s,
         1,
         {u"B textSmall \"one\""_s, u"+ textSmall \"two\""_s},
         u"+@0"_s},
        {"caret beyond the text",
         body,
         u"one"_s,
         u"one\ntwo"_s,
         99,
         {u"B textSmall \"one\""_s, u"+ textSmall \"two\""_s},
         u"+@3"_s},
        {"only the new part can look like a shortcut",
         body,
         u"---"_s,
         u"---\n"_s,
         4,
         {u"B textSmall \"---\""_s, u"+ textSmall \"\""_s},
         u"+@0"_s},
        {"a shortcut in the rest stays text",
         body,
         {},
         u"one\n# "_s,
         6,
         {u"B textSmall \"one\""_s, u"+ textSmall \"# \""_s},
         u"+@2"_s},
        {"second line feed", body, u"one\n"_s, u"one\n\n"_s, 5, {u"B textSmall \"one\n\n\""_s}, {}},
        {"text in a block of two lines",
         body,
         u"one\ntwo"_s,
         u"one\ntwos"_s,
         8,
         {u"B textSmall \"one\ntwos\""_s},
         {}},
        {"carriage return", body, u"one"_s, u"one\r"_s, 4, {u"B textSmall \"one\r\""_s}, {}},
        {"line separator", body, u"one"_s, u"one\u2028"_s, 4, {u"B textSmall \"one\u2028\""_s}, {}},
    };
    return cases;
}

const QList<TypingCase> &plainText()
{
    static const QList<TypingCase> cases{
        {"first character", body, {}, u"o"_s, 1, {u"B textSmall \"o\""_s}, {}},
        {"last character deleted", body, u"o"_s, {}, 0, {u"B textSmall \"\""_s}, {}},
        {"unchanged", body, u"one"_s, u"one"_s, 3, {u"B textSmall \"one\""_s}, {}},
        {"beyond the first plane", body, {}, u"\U0001F525"_s, 2, {u"B textSmall \"\U0001F525\""_s}, {}},
    };
    return cases;
}

QString written(QString text)
{
    return u'"' + text.replace(u'\n', u"\\n"_s) + u'"';
}

} // namespace

class TestTypingRules : public QObject
{
    Q_OBJECT

    static void addRows(const char *group, const QList<TypingCase> &cases)
    {
        for (const TypingCase &row : cases)
            QTest::addRow("%s: %s", group, row.name)
                << row.type << row.stored << row.typed << row.caret << row.becomes << row.focus;
    }

    /// Adds a row for a text that no rule applies to.
    static void addStaysText(BlockType type, const QString &typed)
    {
        const QStringList becomes{u"B %1 \"%2\""_s.arg(rawValue(type), typed)};
        QTest::addRow("stays text: %s in %s", qPrintable(written(typed)), qPrintable(rawValue(type)))
            << type << u"x"_s << typed << int(typed.size()) << becomes << QString();
    }

private Q_SLOTS:
    void theFirstRuleThatMatchesApplies_data()
    {
        QTest::addColumn<BlockType>("type");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("caret");
        QTest::addColumn<QStringList>("becomes");
        QTest::addColumn<QString>("focus");
        addRows("shortcut", shortcuts());
        addRows("line feed", lineFeeds());
        addRows("text", plainText());
        for (const BlockType type : {heading, BlockType::quote, BlockType::code}) {
            for (const TypingCase &shortcut : shortcuts())
                if (!shortcut.stored.contains(u'\n') && shortcut.stored != u"#word" && shortcut.caret > 0)
                    addStaysText(type, shortcut.typed);
        }
        for (const auto *typed : {u"#",   u" # ",  u"#  ",  u"## ",   u"# a",   u">",       u" > ",    u">> ",
                                  u"`",   u"``",   u" ```", u"````",  u"```x",  u"```  ",   u"-",      u"--",
                                  u"-- ", u"----", u" ---", u"---  ", u"--- x", u"\u2014",  u"[",      u"[]",
                                  u"[ ]", u"[x] ", u"[]  ", u"[  ] ", u" [] ",  u"#\u00A0", u"\uFF03 "})
            addStaysText(body, QString::fromUtf16(typed));
    }

    void theFirstRuleThatMatchesApplies()
    {
        QFETCH(const BlockType, type);
        QFETCH(const QString, stored);
        QFETCH(const QString, typed);
        QFETCH(const int, caret);
        QFETCH(const QStringList, becomes);
        QFETCH(const QString, focus);
        const PelkoDocument before =
            page({block('A', heading, u"Title"_s), block('B', type, stored), block('C', body, u"below"_s)});

        const std::optional<Edit> edit = TypingRules::apply(before, idOf('B'), typed, caret);

        QVERIFY(edit);
        QCOMPARE(lines(edit->document),
                 QStringList(u"A textLarge \"Title\""_s) + becomes + QStringList(u"C textSmall \"below\""_s));
        QCOMPARE(PageText::focus(edit->focus), focus);
        PelkoDocument rest = edit->document;
        rest.blocks = before.blocks;
        QCOMPARE(rest, before);
    }

    void deletingInAnEmptyBlockRemovesItUnderTextOnly_data()
    {
        QTest::addColumn<BlockType>("above");
        QTest::addColumn<BlockType>("type");
        QTest::addColumn<bool>("removed");
        for (const BlockType type : {heading, body, BlockType::quote, BlockType::code}) {
            for (int above = 0; above <= int(BlockType::sticky); ++above)
                QTest::addRow("%s under %s", qPrintable(rawValue(type)),
                              qPrintable(rawValue(BlockType(above))))
                    << BlockType(above) << type << (above < int(BlockType::divider));
        }
    }

    void deletingInAnEmptyBlockRemovesItUnderTextOnly()
    {
        QFETCH(const BlockType, above);
        QFETCH(const BlockType, type);
        QFETCH(const bool, removed);
        const PelkoDocument before = page({block('A', above, u"up"_s), block('B', type), block('C')});

        const std::optional<Edit> edit = TypingRules::apply(before, idOf('B'), {}, 0);

        QVERIFY(edit);
        QCOMPARE(letters(edit->document), removed ? u"AC"_s : u"ABC"_s);
        QCOMPARE(PageText::focus(edit->focus), removed ? u"A@end"_s : QString());
    }

    void theFirstBlockIsNotDeletedByTyping()
    {
        const PelkoDocument before = page({block('A'), block('B')});
        const std::optional<Edit> edit = TypingRules::apply(before, idOf('A'), {}, 0);
        QCOMPARE(edit.value().document, before);
        QCOMPARE(edit->focus, std::nullopt);
    }

    void theOnlyBlockIsNotDeletedByTyping()
    {
        const PelkoDocument before = page({block('A')});
        const std::optional<Edit> edit = TypingRules::apply(before, idOf('A'), {}, 0);
        QCOMPARE(edit.value().document, before);
        QCOMPARE(edit->focus, std::nullopt);
    }

    void theLastOfTwoEmptyBlocksIsDeletedByTyping()
    {
        const std::optional<Edit> edit = TypingRules::apply(page({block('A'), block('B')}), idOf('B'), {}, 0);
        QCOMPARE(lines(edit.value().document), {u"A textSmall \"\""_s});
        QCOMPARE(PageText::focus(edit->focus), u"A@end"_s);
    }

    void aShortcutWorksInTheOnlyBlockAndAtTheEnd()
    {
        const std::optional<Edit> edit = TypingRules::apply(page({block('A')}), idOf('A'), u"---"_s, 3);
        QCOMPARE(lines(edit.value().document), (QStringList{u"A divider \"\""_s, u"+ textSmall \"\""_s}));
    }

    void newBlocksHaveIdsOfTheirOwn()
    {
        PelkoDocument document = page({block('A')});
        for (int line = 0; line < 20; ++line)
            document = TypingRules::apply(document, idOf('A'), u"\n"_s, 1).value().document;
        QSet<QUuid> ids;
        for (const Block &block : document.blocks)
            ids << block.id;
        QCOMPARE(ids.size(), 21);
    }

    void anUnknownBlockIsLeftAlone()
    {
        QVERIFY(!TypingRules::apply(page({block('A')}), idOf('B'), u"# "_s, 2));
        QVERIFY(!TypingRules::apply(page({}), idOf('B'), u"text"_s, 4));
    }

    void theOtherFieldsOfABlockSurviveTyping()
    {
        Block odd = block('A', body, u"a"_s);
        odd.bannerTitle = u"kept"_s;
        odd.isFullWidth = false;
        const std::optional<Edit> edit = TypingRules::apply(page({odd}), idOf('A'), u"ab"_s, 2);
        QCOMPARE(lines(edit.value().document), {u"A textSmall \"ab\" not full title(kept)"_s});
    }
};

PELKO_TEST(TestTypingRules)
#include "tst_TypingRules.moc"
