#include "Shell/CommandLine.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensWithoutArguments()
    {
        QCOMPARE(parseCommandLine({u"pelko"_s}), ParsedCommandLine(OpenCommand()));
    }

    void readsASpark_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("apart") << QStringList{u"pelko"_s, u"--spark"_s, u" a thought\nof two lines "_s};
        QTest::newRow("together") << QStringList{u"pelko"_s, u"--spark= a thought\nof two lines "_s};
    }

    void readsASpark()
    {
        QFETCH(QStringList, arguments);
        QCOMPARE(parseCommandLine(arguments),
                 ParsedCommandLine(SparkCommand{u" a thought\nof two lines "_s}));
    }

    void readsASparkThatLooksLikeAnOption()
    {
        QCOMPARE(parseCommandLine({u"pelko"_s, u"--spark=--help"_s}),
                 ParsedCommandLine(SparkCommand{u"--help"_s}));
    }

    void readsThePomodoro_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<PomodoroCommand::Verb>("verb");
        QTest::newRow("start") << u"start"_s << PomodoroCommand::Verb::start;
        QTest::newRow("pause") << u"pause"_s << PomodoroCommand::Verb::pause;
        QTest::newRow("reset") << u"reset"_s << PomodoroCommand::Verb::reset;
        QTest::newRow("status") << u"status"_s << PomodoroCommand::Verb::status;
    }

    void readsThePomodoro()
    {
        QFETCH(QString, word);
        QFETCH(PomodoroCommand::Verb, verb);
        QCOMPARE(parseCommandLine({u"pelko"_s, u"--pomodoro"_s, word}),
                 ParsedCommandLine(PomodoroCommand{verb}));
    }

    void readsAnExport_data()
    {
        using Existing = ExportFolder::Existing;
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<ExportCommand>("command");
        QTest::newRow("apart") << QStringList{u"--export"_s, u"my notes/"_s}
                               << ExportCommand{u"my notes/"_s, Existing::keep};
        QTest::newRow("together") << QStringList{u"--export=-x"_s} << ExportCommand{u"-x"_s, Existing::keep};
        QTest::newRow("overwriting") << QStringList{u"--overwrite"_s, u"--export"_s, u"."_s}
                                     << ExportCommand{u"."_s, Existing::replace};
    }

    void readsAnExport()
    {
        QFETCH(QStringList, words);
        QFETCH(ExportCommand, command);
        QCOMPARE(parseCommandLine(QStringList{u"pelko"_s} + words), ParsedCommandLine(command));
    }

    void answersHelp_data()
    {
        QTest::addColumn<QString>("option");
        QTest::newRow("long") << u"--help"_s;
        QTest::newRow("short") << u"-h"_s;
    }

    void answersHelp()
    {
        QFETCH(QString, option);
        const ParsedCommandLine read = parseCommandLine({u"pelko"_s, option});
        const auto *answer = std::get_if<CommandLineResult>(&read);

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
        const CommandLineResult expected{u"pelko %1\n"_s.arg(QLatin1StringView(PELKO_VERSION)), 0};

        QCOMPARE(parseCommandLine({u"pelko"_s, option}), ParsedCommandLine(expected));
    }

    void refusesWhatItDoesNotKnow_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::newRow("long option") << QStringList{u"--frobnicate"_s};
        QTest::newRow("short option") << QStringList{u"-x"_s};
        QTest::newRow("value for a plain option") << QStringList{u"--help=please"_s};
        QTest::newRow("file") << QStringList{u"page.txt"_s};
        QTest::newRow("spark without text") << QStringList{u"--spark"_s};
        QTest::newRow("empty spark") << QStringList{u"--spark"_s, QString()};
        QTest::newRow("blank spark") << QStringList{u"--spark"_s, u" \n\t "_s};
        QTest::newRow("pomodoro without verb") << QStringList{u"--pomodoro"_s};
        QTest::newRow("pomodoro with another verb") << QStringList{u"--pomodoro"_s, u"skip"_s};
        QTest::newRow("two sparks") << QStringList{u"--spark"_s, u"a"_s, u"--spark"_s, u"b"_s};
        QTest::newRow("export without a folder") << QStringList{u"--export"_s};
        QTest::newRow("export into nothing") << QStringList{u"--export="_s};
        QTest::newRow("two exports") << QStringList{u"--export"_s, u"a"_s, u"--export"_s, u"b"_s};
        QTest::newRow("nothing to overwrite") << QStringList{u"--overwrite"_s};
        QTest::newRow("spark and export") << QStringList{u"--spark"_s, u"a"_s, u"--export"_s, u"b"_s};
        QTest::newRow("spark and pomodoro") << QStringList{u"--spark"_s, u"a"_s, u"--pomodoro"_s, u"start"_s};
    }

    void refusesWhatItDoesNotKnow()
    {
        QFETCH(QStringList, words);
        const ParsedCommandLine read = parseCommandLine(QStringList{u"pelko"_s} + words);
        const auto *answer = std::get_if<CommandLineResult>(&read);

        QVERIFY(answer);
        QCOMPARE(answer->exitCode, 2);
        QVERIFY(answer->text.startsWith(u"pelko: "_s));
        QVERIFY(answer->text.endsWith(u"Try 'pelko --help' for more information.\n"_s));
    }
};

PELKO_TEST(TestCommandLine)
#include "tst_CommandLine.moc"
