#include "Editor/ShownText.h"
#include "Editor/TextChange.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestShownText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsLineBreaksAsLineFeeds_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("plain text") << u"a\tb\xa0\nc"_s << u"a\tb\xa0\nc"_s;
        QTest::newRow("line separator") << u"a\u2028b"_s << u"a\nb"_s;
        QTest::newRow("paragraph separator") << u"a\u2029b"_s << u"a\nb"_s;
        QTest::newRow("lone CR") << u"a\rb"_s << u"a\nb"_s;
        QTest::newRow("CR at the end") << u"a\r"_s << u"a\n"_s;
        QTest::newRow("CR LF is one break") << u"a\r\nb"_s << u"a\u200b\nb"_s;
        QTest::newRow("CR CR LF") << u"a\r\r\nb"_s << u"a\n\u200b\nb"_s;
        QTest::newRow("VT, FF and NEL") << u"a\vb\f\x85"_s << u"a\nb\n\n"_s;
        QTest::newRow("ends of a frame") << u"a\ufdd0\ufdd1"_s << u"a\ufffd\ufffd"_s;
        QTest::newRow("embedded object") << u"\ufffc"_s << u"\ufffd"_s;
        QTest::newRow("NUL") << u"a"_s + QChar(u'\0') << u"a\ufffd"_s;
        QTest::newRow("half a pair") << u"a\xd83d"_s << u"a\xd83d"_s;
    }

    void showsLineBreaksAsLineFeeds()
    {
        QFETCH(const QString, stored);
        QTEST(ShownText::of(stored), "shown");
        QCOMPARE(ShownText::of(stored).size(), stored.size());
    }

    /// Each break is written as a line feed;
    ///
    /// is the caret.
    void keepsWhatWasNotChanged_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("changed");
        QTest::newRow("nothing") << u"a\u2028b"_s << u"a|\nb"_s << u"a\u2028b"_s;
        QTest::newRow("a letter before") << u"a\u2028b"_s << u"ax|\nb"_s << u"ax\u2028b"_s;
        QTest::newRow("a letter behind") << u"a\u2028b"_s << u"a\nx|b"_s << u"a\u2028xb"_s;
        QTest::newRow("a line feed before a separator") << u"a\u2028b"_s << u"a\n|\nb"_s << u"a\n\u2028b"_s;
        QTest::newRow("a line feed behind a separator") << u"a\u2028b"_s << u"a\n\n|b"_s << u"a\u2028\nb"_s;
        QTest::newRow("the first of two breaks deleted") << u"a\u2028\rb"_s << u"a|\nb"_s << u"a\rb"_s;
        QTest::newRow("the second of two breaks deleted") << u"a\u2028\rb"_s << u"a\n|b"_s << u"a\u2028b"_s;
        QTest::newRow("all replaced") << u"a\u2028\ufdd0"_s << u"x|"_s << u"x"_s;
        QTest::newRow("a letter behind a frame's end") << u"\ufdd0"_s << u"\ufffdx|"_s << u"\ufdd0x"_s;
    }

    void keepsWhatWasNotChanged()
    {
        QFETCH(const QString, stored);
        QFETCH(QString, shown);
        const qsizetype caret = shown.indexOf(u'|');
        shown.remove(caret, 1);
        const auto change = TextChange::between(ShownText::of(stored), shown, caret);
        QTEST(change.applied(stored), "changed");
    }
};

PELKO_TEST(TestShownText)
#include "tst_ShownText.moc"
