#include "Shell/CommandLine.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutArguments() { QVERIFY(!answerCommandLine({u"pelko"_s})); }

    void answersHelp_data()
    {
        QTest::addColumn<QString>("option");
        QTest::newRow("long") << u"--help"_s;
        QTest::newRow("short") << u"-h"_s;
    }

    void answersHelp()
    {
        QFETCH(QString, option);
        const auto answer = answerCommandLine({u"pelko"_s, option});

        QVERIFY(answer);
        QCOMPARE(answer->exitCode, 0);
        QVERIFY(answer->text.startsWith(u"Usage: pelko"_s));
        QVERIFY(answer->text.contains(u"--version"_s));
    }

    void answersTheVersion_data()
    {
        QTest::addColumn<QString>("option");
        QTest::newRow("long") << u"--version"_s;
        QTest::newRow("short") << u"-v"_s;
    }

    void answersTheVersion()
    {
        QFETCH(QString, option);
        const CommandLineAnswer expected{u"pelko %1\n"_s.arg(QLatin1StringView(PELKO_VERSION)), 0};

        QCOMPARE(answerCommandLine({u"pelko"_s, option}), std::optional(expected));
    }

    void refusesWhatItDoesNotKnow_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::newRow("long option") << u"--frobnicate"_s;
        QTest::newRow("short option") << u"-x"_s;
        QTest::newRow("value for a plain option") << u"--help=please"_s;
        QTest::newRow("file") << u"page.txt"_s;
    }

    void refusesWhatItDoesNotKnow()
    {
        QFETCH(QString, argument);
        const auto answer = answerCommandLine({u"pelko"_s, argument});

        QVERIFY(answer);
        QCOMPARE(answer->exitCode, 2);
        QVERIFY(answer->text.startsWith(u"pelko: "_s));
        QVERIFY(answer->text.endsWith(u"Try 'pelko --help' for more information.\n"_s));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_CommandLine.moc"
