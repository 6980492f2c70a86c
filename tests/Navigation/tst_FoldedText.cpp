#include "Navigation/FoldedText.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestFoldedText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void caseAndAccentsGo_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("folded");
        QTest::newRow("nothing") << u""_s << u""_s;
        QTest::newRow("case") << u"KeTTle 42!"_s << u"kettle 42!"_s;
        QTest::newRow("composed") << u"Zürich, Crème brûlée"_s << u"zurich, creme brulee"_s;
        QTest::newRow("decomposed") << u"Zu\u0308rich"_s << u"zurich"_s;
        QTest::newRow("two accents") << u"Việt Ǖ"_s << u"viet u"_s;
        QTest::newRow("strokes") << u"Łódź, Ørsted, Đà Nẵng"_s << u"lodz, orsted, da nang"_s;
        QTest::newRow("ligatures") << u"Straße, Œuvre, Æon"_s << u"strasse, oeuvre, aeon"_s;
        QTest::newRow("Turkish i") << u"İstanbul Işık"_s << u"istanbul isik"_s;
        QTest::newRow("Greek") << u"ΟΔΥΣΣΕΎΣ Οδυσσεύς"_s << u"οδυσσευσ οδυσσευσ"_s;
        QTest::newRow("Cyrillic") << u"Ёлка"_s << u"елка"_s;
        QTest::newRow("Hebrew points") << u"שָׁלוֹם"_s << u"שלום"_s;
        QTest::newRow("Arabic vowels") << u"سَلَام"_s << u"سلام"_s;
        QTest::newRow("kana keep their voicing") << u"がか"_s << u"がか"_s;
        QTest::newRow("syllables stay whole") << u"한국 कि कु ที่"_s << u"한국 कि कु ที่"_s;
        QTest::newRow("emoji") << u"👩‍🚀❤️"_s << u"👩‍🚀❤"_s;
        QTest::newRow("apostrophe") << u"don’t"_s << u"don't"_s;
        QTest::newRow("soft hyphen") << u"morn\u00ADing"_s << u"morning"_s;
        QTest::newRow("half a character") << QString(QChar(0xD83D)) << QString(QChar(0xD83D));
    }

    void caseAndAccentsGo()
    {
        QFETCH(QString, text);
        QFETCH(QString, folded);

        QCOMPARE(FoldedText::folded(text), folded);
        QCOMPARE(FoldedText::folded(folded), folded);
    }

    void roomIsUsedAgain()
    {
        QString folded;
        FoldedText::fold(u"A long Text to begin with", folded);
        FoldedText::fold(u"Short", folded);

        QCOMPARE(folded, u"short"_s);
    }

    void mapsFoldedLettersToTheirOrigin()
    {
        const QString text = u"Zu\u0308ß."_s; // "Z u ¨ ß ." becomes "z u s s ."

        QCOMPARE(FoldedText::origins(text), QList<qsizetype>({0, 1, 3, 3, 4, 5}));
        QCOMPARE(FoldedText::originOf(text, 1), 1);
        QCOMPARE(FoldedText::originOf(text, 3), 3);
        QCOMPARE(FoldedText::originOf(text, 4), 4);
        QCOMPARE(FoldedText::originOf(text, 99), 5);
    }
};

PELKO_TEST(TestFoldedText)
#include "tst_FoldedText.moc"
