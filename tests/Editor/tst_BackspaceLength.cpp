#include "Editor/BackspaceLength.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestBackspaceLength : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletesAnEmojiWholeAndOtherTextByCodePoint_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("deleted"); // units
        QTest::newRow("nothing") << u""_s << 0;
        QTest::newRow("letter") << u"ab"_s << 1;
        QTest::newRow("umlaut") << u"aä"_s << 1;
        QTest::newRow("combining mark") << u"ae\u0301"_s << 1;
        QTest::newRow("second of two combining marks") << u"ae\u0301\u0323"_s << 1;
        QTest::newRow("letter beyond the first plane") << u"a\U0001D54F"_s << 2;
        QTest::newRow("half a pair") << u"a\xDD4F"_s << 1;
        QTest::newRow("Devanagari with a joiner") << u"\u0915\u094D\u200D"_s << 1;
        QTest::newRow("Hangul of three parts") << u"\u1112\u1161\u11AB"_s << 1;
        QTest::newRow("line feed") << u"a\n"_s << 1;
        QTest::newRow("pictograph") << u"a\U0001F525"_s << 2;
        QTest::newRow("second of two pictographs") << u"\U0001F525\U0001F525"_s << 2;
        QTest::newRow("skin tone") << u"\U0001F44D\U0001F3FD"_s << 4;
        QTest::newRow("joined with skin tone") << u"x\U0001F469\U0001F3FD\u200D\U0001F4BB"_s << 7;
        QTest::newRow("family") << u"\U0001F468\u200D\U0001F469\u200D\U0001F467\u200D\U0001F466"_s << 11;
        QTest::newRow("heart on fire") << u"\u2764\uFE0F\u200D\U0001F525"_s << 5;
        QTest::newRow("heart") << u"a\u2764\uFE0F"_s << 2;
        QTest::newRow("flag") << u"\U0001F1F5\U0001F1F1"_s << 4;
        QTest::newRow("second of two flags") << u"\U0001F1F5\U0001F1F1\U0001F1F5\U0001F1F1"_s << 4;
        QTest::newRow("half a flag behind one") << u"\U0001F1F5\U0001F1F1\U0001F1F5"_s << 2;
        QTest::newRow("flag behind a joined pictograph")
            << u"e \U0001F469\U0001F3FD\u200D\U0001F4BB\U0001F1F5\U0001F1F1"_s << 4;
        QTest::newRow("flag behind a pictograph") << u"\U0001F525\U0001F1F5\U0001F1F1"_s << 4;
        QTest::newRow("flag behind a heart") << u"\u2764\uFE0F\U0001F1F5\U0001F1F1"_s << 4;
        QTest::newRow("keycap behind a flag") << u"\U0001F1F5\U0001F1F17\uFE0F\u20E3"_s << 3;
        QTest::newRow("keycap") << u"a7\uFE0F\u20E3"_s << 3;
        QTest::newRow("flag of England")
            << u"\U0001F3F4\U000E0067\U000E0062\U000E0065\U000E006E\U000E0067\U000E007F"_s << 14;
    }

    void deletesAnEmojiWholeAndOtherTextByCodePoint()
    {
        QFETCH(const QString, text);
        QTEST(int(backspaceLength(text)), "deleted");
    }
};

PELKO_TEST(TestBackspaceLength)
#include "tst_BackspaceLength.moc"
