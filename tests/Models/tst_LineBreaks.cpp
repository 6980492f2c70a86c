#include "Models/LineBreaks.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestLineBreaks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recognisesLineBreaks()
    {
        for (const char16_t unit : u"\n\v\f\r\x85\u2028\u2029"_s.toStdU16String())
            QVERIFY(isLineBreak(unit));
        for (const char16_t unit : u"a \t\xa0\u200b\u2027\u202a\ufdd0"_s.toStdU16String())
            QVERIFY(!isLineBreak(unit));
    }

    void putsTextOnOneLine_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("plain text") << u"milk and rye"_s << u"milk and rye"_s;
        QTest::newRow("line feed") << u"milk\nrye"_s << u"milk rye"_s;
        QTest::newRow("CR LF is one break") << u"milk\r\nrye"_s << u"milk rye"_s;
        QTest::newRow("lone CR") << u"milk\rrye"_s << u"milk rye"_s;
        QTest::newRow("tab") << u"milk\trye"_s << u"milk rye"_s;
        QTest::newRow("separators") << u"a\u2028b\u2029c\x85"_s << u"a b c "_s;
        QTest::newRow("several breaks") << u"a\n\nb"_s << u"a  b"_s;
    }

    void putsTextOnOneLine()
    {
        QFETCH(const QString, text);
        QTEST(onOneLine(text), "line");
    }
};

PELKO_TEST(TestLineBreaks)
#include "tst_LineBreaks.moc"
