#include "Shell/WindowTitle.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestWindowTitle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheDocumentAndTheProgram_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("window");
        QTest::newRow("nothing open") << QString() << u"Pelko"_s;
        QTest::newRow("a title") << u"First hour"_s << u"First hour – Pelko"_s;
        QTest::newRow("line breaks") << u"First\nhour\r\n\tof\u2028the\u2029day"_s
                                     << u"First hour of the day – Pelko"_s;
        QTest::newRow("space around") << u"  First hour \n"_s << u"First hour – Pelko"_s;
        QTest::newRow("only space") << u" \n\t "_s << u"Pelko"_s;
        QTest::newRow("control characters") << u"First\u0007 \u001Bhour\u0000"_s << u"First hour – Pelko"_s;
        QTest::newRow("only control characters") << u"\u0001 \u202E \u2066"_s << u"Pelko"_s;
        QTest::newRow("right to left") << u"שלום עולם"_s << u"שלום עולם – Pelko"_s;
        QTest::newRow("an open override") << u"abc\u202Edef"_s << u"abcdef – Pelko"_s;
        QTest::newRow("open isolates and marks")
            << u"\u2067a\u2068b\u061C\u200E\u200Fc\u202A"_s << u"abc – Pelko"_s;
        QTest::newRow("joined emoji") << u"👩\u200D🚒🏳️\u200D🌈"_s << u"👩\u200D🚒🏳️\u200D🌈 – Pelko"_s;
        QTest::newRow("eighty letters") << QString(80, u'a') << QString(80, u'a') + u" – Pelko"_s;
        QTest::newRow("more than that") << QString(10'000, u'a') << QString(80, u'a') + u"… – Pelko"_s;
        QTest::newRow("a space where it is cut")
            << QString(79, u'a') + u" bc"_s << QString(79, u'a') + u"… – Pelko"_s;
        QTest::newRow("a pair where it is cut")
            << QString(79, u'a') + u"🔥🔥"_s << QString(79, u'a') + u"… – Pelko"_s;
        QTest::newRow("an accent where it is cut")
            << QString(79, u'a') + u"e\u0301f"_s << QString(79, u'a') + u"… – Pelko"_s;
    }

    void namesTheDocumentAndTheProgram()
    {
        QFETCH(QString, document);
        QTEST(windowTitle(document), "window");
    }
};

PELKO_TEST(TestWindowTitle)
#include "tst_WindowTitle.moc"
