#include "Export/PageMarkdown.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

using namespace PageText;
using namespace Qt::StringLiterals;

namespace
{
QString ofBody(const QString &text)
{
    return pageMarkdown({block('A', BlockType::textSmall, text)}).chopped(1);
}
} // namespace

class TestPageMarkdown : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageOfEveryKind()
    {
        Block banner = image('E', true);
        banner.bannerTitle = u"Ridge"_s;
        const QList<Block> blocks{banner,
                                  block('A', BlockType::textLarge, u"Head"_s),
                                  block('B', BlockType::textSmall, u"Body\n& soul"_s),
                                  block('C', BlockType::divider),
                                  block('Q', BlockType::quote, u"so\nsaid"_s),
                                  sticky('D', {todo('x', u"milk\nand honey"_s), todo('y', u"rye"_s, true)}),
                                  block('F', BlockType::code, u"a<b\n  *c*"_s),
                                  image('G')};
        QCOMPARE(pageMarkdown(blocks, {{0, u"a%20b.png"_s}, {7, u"c.jpg"_s}}),
                 QStringLiteral(R"(![](a%20b.png)

# Ridge

# Head

Body\
& soul

---

> so\
> said

- [ ] milk\
      and honey
- [x] rye

```
a<b
  *c*
```

![](c.jpg)
)"));
    }

    void emptyBlocksAreLeftOut()
    {
        const QList<Block> blocks{
            block('A', BlockType::textLarge), block('B'),      block('C', BlockType::quote),
            block('D', BlockType::code),      sticky('E', {}), image('F')};
        QCOMPARE(pageMarkdown(blocks), QString());
    }

    void aTitleIsThatOfABannerOnly()
    {
        Block picture = image('A', false);
        picture.bannerTitle = u"left over"_s;
        QCOMPARE(pageMarkdown({picture}, {{0, u"a.png"_s}}), u"![](a.png)\n"_s);
    }

    void listsThatFollowEachOtherStayTwo()
    {
        const QList<Block> blocks{sticky('A', {todo('x', u"one"_s)}), sticky('B', {todo('y', u"two"_s)}),
                                  sticky('C', {todo('z')})};
        QCOMPARE(pageMarkdown(blocks), u"- [ ] one\n\n* [ ] two\n\n- [ ]\n"_s);
    }

    void aFenceIsLongerThanAnyInTheCode()
    {
        QCOMPARE(pageMarkdown({block('A', BlockType::code, u"```\n`````"_s)}),
                 u"``````\n```\n`````\n``````\n"_s);
    }

    void aHeadingOfSeveralLinesIsUnderlined()
    {
        QCOMPARE(pageMarkdown({block('A', BlockType::textLarge, u"1. One\n# Two"_s)}),
                 u"1\\. One\\\n\\# Two\n===\n"_s);
    }

    void aHeadingEscapesOnlyWhatEndsIt_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("markdown");
        QTest::newRow("a number") << u"1. One"_s << u"# 1. One"_s;
        QTest::newRow("a hash") << u"C #"_s << u"# C \\#"_s;
        QTest::newRow("hashes only") << u"##"_s << u"# #\\#"_s;
        QTest::newRow("spaces around") << u" x "_s << u"# &#32;x&#32;"_s;
        QTest::newRow("a break") << u"\n"_s << u"# &#10;"_s;
    }

    void aHeadingEscapesOnlyWhatEndsIt()
    {
        QFETCH(QString, text);
        QFETCH(QString, markdown);
        QCOMPARE(pageMarkdown({block('A', BlockType::textLarge, text)}), markdown + u'\n');
    }

    void plainTextIsNotEscaped_data()
    {
        QTest::addColumn<QString>("text");
        for (const auto &text : {u"2 * 3 - 1 = 5"_s, u"snake_case and AT&T, R&D, 50%"_s, u"C:\\Users\\me"_s,
                                 u"-5 degrees, +1"_s, u"a < b > c"_s, u"#tag and 3.14"_s, u"12.30 h"_s,
                                 u"(see below) ~ well!"_s, u"https://a.example/x_y_z"_s, u"--flag"_s,
                                 u"日本語 עברית 👩‍🚀"_s, u":-) | x"_s, u"\u3000一"_s})
            QTest::newRow(qPrintable(text)) << text;
    }

    void plainTextIsNotEscaped()
    {
        QFETCH(QString, text);
        QCOMPARE(ofBody(text), text);
    }

    void marksAreEscaped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("markdown");
        const auto row = [](const QString &text, const QString &markdown) {
            QTest::newRow(qPrintable(text)) << text << markdown;
        };
        row(u"# x"_s, u"\\# x"_s);
        row(u"###### x"_s, u"\\###### x"_s);
        row(u"> x"_s, u"\\> x"_s);
        row(u"- x"_s, u"\\- x"_s);
        row(u"-\f\vx"_s, u"\\-\f\vx"_s); // some readers treat more characters as spaces than CommonMark does
        row(u"+"_s, u"\\+"_s);
        row(u"* x"_s, u"\\* x"_s);
        row(u"1. x"_s, u"1\\. x"_s);
        row(u"23)"_s, u"23\\)"_s);
        row(u"---"_s, u"\\---"_s);
        row(u"- - -"_s, u"\\- - -"_s);
        row(u"==="_s, u"\\==="_s);
        row(u"| - | - |"_s, u"\\| - | - |"_s);
        row(u"~~~"_s, u"\\~\\~\\~"_s);
        row(u"`x`"_s, u"\\`x\\`"_s);
        row(u"**x** _y_"_s, u"\\*\\*x\\*\\* \\_y\\_"_s);
        row(u"[x](y) ![z]"_s, u"\\[x](y) !\\[z]"_s);
        row(u"<b> <!-- </b> <?"_s, u"\\<b> \\<!-- \\</b> \\<?"_s);
        row(u"&amp; &#65;"_s, u"\\&amp; \\&#65;"_s);
        row(u"a\\*b\\"_s, u"a\\\\\\*b\\\\"_s);
        row(u"a\\\rb\\ "_s, u"a\\\\&#13;b\\\\&#32;"_s);
        row(u"a\n\nb"_s, u"a\\\n\\\nb"_s);
        row(u"\n a \t"_s, u"&#10;&#32;a &#9;"_s);
        row(u"a\n\n"_s, u"a&#10;&#10;"_s);
        row(u"a\rb"_s, u"a&#13;b"_s);
        row(u"a"_s + QChar(0), u"a\ufffd"_s);
        row(u"    code"_s, u"&#32;   code"_s);
    }

    void marksAreEscaped()
    {
        QFETCH(QString, text);
        QTEST(ofBody(text), "markdown");
    }
};

PELKO_TEST(TestPageMarkdown)
#include "tst_PageMarkdown.moc"
