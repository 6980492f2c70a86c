#include "Export/FileNames.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

namespace
{
const QUuid first(u"aaaaaaaa-0000-4000-8000-000000000001"_s);
const QUuid second(u"bbbbbbbb-0000-4000-8000-000000000002"_s);
const QUuid twin(u"bbbbbbbb-0000-4000-8000-000000000003"_s);
} // namespace

class TestFileNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesASafeNameOfAnyText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *about, const QString &text, const QString &name) {
            QTest::newRow(about) << text << name;
        };
        row("plain", u"Notes on ridges"_s, u"Notes on ridges"_s);
        row("spaces around and within", u"  Notes \t on   ridges "_s, u"Notes on ridges"_s);
        row("line breaks", u"Notes\non\r\nridges\u2028and\u0085more"_s, u"Notes on ridges and more"_s);
        row("empty", {}, u"Untitled"_s);
        row("blank", u" \n\t"_s, u"Untitled"_s);
        row("dots only", u"..."_s, u"Untitled"_s);
        row("parts of a path", u"../../etc/passwd"_s, u"etc-passwd"_s);
        row("a path of Windows", u"C:\\Temp|x"_s, u"C--Temp-x"_s);
        row("forbidden on Windows", u"What? \"No\" <really> *"_s, u"What No really"_s);
        row("only what is forbidden", u"???"_s, u"Untitled"_s);
        row("control characters", u"a\tb\x7f"_s + QChar(0) + u"c"_s, u"a b c"_s);
        row("hidden", u".profile"_s, u"profile"_s);
        row("an option", u"--help"_s, u"help"_s);
        row("a trailing dot", u"And so on..."_s, u"And so on"_s);
        row("dots and spaces at the end", u"And so on . ."_s, u"And so on"_s);
        row("a device", u"CON"_s, u"_CON"_s);
        row("a device in small letters", u"lpt1"_s, u"_lpt1"_s);
        row("a device with a suffix", u"aux.txt"_s, u"_aux.txt"_s);
        row("a device with a raised digit", u"com²"_s, u"_com²"_s);
        row("no device", u"Console"_s, u"Console"_s);
        row("no device either", u"COM10"_s, u"COM10"_s);
        row("emoji", u"👩‍🚀🏳️‍🌈"_s, u"👩‍🚀🏳️‍🌈"_s);
        row("from right to left", u"שלום עולם"_s, u"שלום עולם"_s);
        row("marks of direction", u"\u202egpj.exe\u2066 x\u200f"_s, u"gpj.exe x"_s);
        row("joined letters", u"می\u200cخواهم"_s, u"می\u200cخواهم"_s);
        row("accents apart", u"Cafe\u0301"_s, u"Café"_s);
        row("half a pair of surrogates", u"a"_s + QChar(0xd83d) + u"b"_s, u"a b"_s);
    }

    void makesASafeNameOfAnyText()
    {
        QFETCH(QString, text);
        QTEST(fileNameFrom(text), "name");
    }

    void cutsALongNameBetweenWords()
    {
        const QString text =
            u"A very long thought about the many bakeries of this town and why their maps are wrong"_s;
        QCOMPARE(fileNameFrom(text),
                 u"A very long thought about the many bakeries of this town and why their maps are"_s);
    }

    void countsBytesAndCutsBetweenWholeLetters_data()
    {
        QTest::addColumn<QString>("letter");
        QTest::addColumn<int>("count");
        QTest::newRow("one byte each") << u"x"_s << 80;
        QTest::newRow("three bytes each") << u"語"_s << 26;
        QTest::newRow("eleven bytes each") << u"👩‍🚀"_s << 7;
        QTest::newRow("letters with their marks") << u"ก็"_s << 13;
    }

    void countsBytesAndCutsBetweenWholeLetters()
    {
        QFETCH(QString, letter);
        QFETCH(int, count);
        QCOMPARE(fileNameFrom(letter.repeated(10'000)), letter.repeated(count));
    }

    void aLetterLongerThanAnyNameLeavesNoName()
    {
        QCOMPARE(fileNameFrom(u"x"_s + QString(500, QChar(0x0489))), u"Untitled"_s);
    }

    void aNameThatIsCutDoesNotEndInADot()
    {
        QCOMPARE(fileNameFrom(QString(79, u'x') + u"..yyy"_s), QString(79, u'x'));
    }

    void theSecondOfANameIsToldApartByItsId()
    {
        FileNames names;
        QCOMPARE(names.take(u"Ridge"_s, first), u"Ridge"_s);
        QCOMPARE(names.take(u"Ridge"_s, second), u"Ridge bbbbbbbb"_s);
        QCOMPARE(names.take(u"Ridge"_s, twin), u"Ridge bbbbbbbb000040008000000000000003"_s);
        QCOMPARE(names.take(u"Ridge"_s, twin), u"Ridge 2"_s);
        QCOMPARE(names.take(u"Ridge"_s, twin), u"Ridge 3"_s);
    }

    void namesThatSomeFileSystemsTakeForOneAreTheSame_data()
    {
        QTest::addColumn<QString>("other");
        QTest::newRow("case") << u"CAFÉ STRASSE"_s;
        QTest::newRow("accents apart") << u"cafe\u0301 straße"_s;
        QTest::newRow("what is left out") << u"Café? Straße."_s;
    }

    void namesThatSomeFileSystemsTakeForOneAreTheSame()
    {
        QFETCH(QString, other);
        FileNames names;
        names.take(u"Café Straße"_s, first);
        QVERIFY(names.take(other, second).endsWith(u" bbbbbbbb"));
    }

    void aNameThatLooksLikeOneWithAnIdIsToldApartToo()
    {
        FileNames names;
        names.take(u"Ridge bbbbbbbb"_s, first);
        names.take(u"Ridge"_s, first);
        QCOMPARE(names.take(u"Ridge"_s, second), u"Ridge bbbbbbbb000040008000000000000002"_s);
    }
};

PELKO_TEST(TestFileNames)
#include "tst_FileNames.moc"
