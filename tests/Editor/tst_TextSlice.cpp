#include "Editor/TextSlice.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestTextSlice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shortTextIsOneSlice()
    {
        QCOMPARE(sliceEnd({}, 0), 0);
        QCOMPARE(sliceEnd(u"one\ntwo"_s, 0), 7);
        QCOMPARE(sliceEnd(u"one\ntwo"_s, 4), 7);
        QCOMPARE(sliceEnd(u"one\n"_s, 4), 4);
    }

    void sliceHasFourHundredLinesAtMost()
    {
        const QString text = u"line\n"_s.repeated(3000);
        QCOMPARE(sliceEnd(text, 0), 2000);
        QCOMPARE(sliceEnd(text, 2000), 4000);
        QCOMPARE(sliceEnd(text, 14000), 15000);
    }

    void sliceEndsWithALine()
    {
        const QString text = QString(15'000, u'a') + u'\n' + QString(100'000, u'b');
        QCOMPARE(sliceEnd(text, 0), 15'001);
    }

    void longLineIsCutWhereTheSliceEnds()
    {
        QCOMPARE(sliceEnd(QString(200'000, u'a'), 0), 20'000);
        QCOMPARE(sliceEnd(u"a\n"_s + QString(200'000, u'b'), 0), 20'000);
    }

    void sliceKeepsSurrogatePairs()
    {
        const QString text = u"a"_s + u"\U0001f425"_s.repeated(40'000);
        QCOMPARE(sliceEnd(text, 0), 19'999);
    }

    void slicesAddUpToTheText()
    {
        const QString text = (u"word "_s.repeated(3'000) + u'\n').repeated(20) + u"\n"_s.repeated(5'000);
        qsizetype from = 0;
        while (from < text.size()) {
            const qsizetype end = sliceEnd(text, from);
            QVERIFY(end > from);
            from = end;
        }
        QCOMPARE(from, text.size());
    }
};

PELKO_TEST(TestTextSlice)
#include "tst_TextSlice.moc"
