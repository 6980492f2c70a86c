#include "Editor/TextChange.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestTextChange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneStretchDiffers_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after"); // the caret is written as |
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("removed");
        QTest::addColumn<QString>("inserted");
        const auto row = [](const QString &before, const QString &after, int position, const QString &removed,
                            const QString &inserted) {
            QTest::addRow("%s to %s", qPrintable(before), qPrintable(after))
                << before << after << position << removed << inserted;
        };
        row(u"abc"_s, u"abc|"_s, 3, {}, {});
        row({}, u"a|"_s, 0, {}, u"a"_s);
        row(u"ac"_s, u"ab|c"_s, 1, {}, u"b"_s);
        row(u"abc"_s, u"a|c"_s, 1, u"b"_s, {});
        row(u"abc"_s, u"x|"_s, 0, u"abc"_s, u"x"_s);
        row(u"one two"_s, u"one three|"_s, 5, u"wo"_s, u"hree"_s);
        row(u"helo"_s, u"hel|lo"_s, 2, {}, u"l"_s);
        row(u"helo"_s, u"hell|o"_s, 3, {}, u"l"_s);
        row(u"hello"_s, u"he|lo"_s, 2, u"l"_s, {});
        row(u"hello"_s, u"hel|o"_s, 3, u"l"_s, {});
        row(u"aaa"_s, u"|aa"_s, 0, u"a"_s, {});
        row(u"\U0001F525"_s, u"\U0001F525\U0001F524|"_s, 2, {}, u"\U0001F524"_s);
    }

    void oneStretchDiffers()
    {
        QFETCH(const QString, before);
        QFETCH(QString, after);
        const qsizetype caret = after.indexOf(u'|');
        after.remove(caret, 1);

        const TextChange change = TextChange::between(before, after, caret);

        QTEST(int(change.position), "position");
        QTEST(change.removed, "removed");
        QTEST(change.inserted, "inserted");
        QCOMPARE(change.applied(before), after);
        QCOMPARE(change.reverted(after), before);
    }

    void aCaretThatCannotBeRightDoesNoHarm()
    {
        for (const int caret : {-1, 0, 99}) {
            const TextChange change = TextChange::between(u"abc"_s, u"abcd"_s, caret);
            QCOMPARE(change.applied(u"abc"_s), u"abcd"_s);
        }
    }
};

PELKO_TEST(TestTextChange)
#include "tst_TextChange.moc"
