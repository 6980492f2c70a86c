#include "Shell/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace
{
constexpr int usageError = 2;

struct CommandLineTexts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

/// The texts of Qt's parser, listed for the catalogues.
[[maybe_unused]] constexpr const char *textsOfQt[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown option '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown options: %1."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Missing value after '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unexpected value after '%1'."),
};

CommandLineResult refuse(const QString &reason)
{
    const QString hint = CommandLineTexts::tr("Try 'pelko --help' for more information.");
    return {u"pelko: %1\n%2\n"_s.arg(reason, hint), usageError};
}

QString helpText()
{
    //: Keep the columns: what an option does begins at column 23 and ends before column 80.
    return CommandLineTexts::tr(
        "Usage: pelko [OPTION]\n"
        "Write short pages, block by block.\n"
        "\n"
        "      --spark TEXT     capture a spark, without a window\n"
        "      --pomodoro VERB  start, pause or reset the timer of the running Pelko,\n"
        "                       or show its status\n"
        "      --export DIR     write all pages as Markdown, with their pictures, into DIR\n"
        "      --overwrite      let --export replace files that are there already\n"
        "  -h, --help           show this help and end\n"
        "  -v, --version        show the version and end\n");
}

QString versionText()
{
    return u"pelko %1\n"_s.arg(QLatin1StringView(PELKO_VERSION));
}

ParsedCommandLine readSpark(const QString &text)
{
    if (QStringView(text).trimmed().isEmpty())
        return refuse(CommandLineTexts::tr("A spark needs some text."));
    return SparkCommand{text};
}

ParsedCommandLine readPomodoro(const QString &word)
{
    using Verb = PomodoroCommand::Verb;
    for (const auto &[name, verb] :
         {std::pair("start"_L1, Verb::start), std::pair("pause"_L1, Verb::pause),
          std::pair("reset"_L1, Verb::reset), std::pair("status"_L1, Verb::status)}) {
        if (word == name)
            return PomodoroCommand{verb};
    }
    return refuse(
        CommandLineTexts::tr("--pomodoro takes start, pause, reset or status, not '%1'.").arg(word));
}

ParsedCommandLine readExport(const QString &folder, bool overwrites)
{
    using Existing = ExportFolder::Existing;
    if (folder.isEmpty())
        return refuse(CommandLineTexts::tr("--export needs a folder."));
    return ExportCommand{folder, overwrites ? Existing::replace : Existing::keep};
}
} // namespace

ParsedCommandLine parseCommandLine(const QStringList &arguments)
{
    const QCommandLineOption help(QStringList{u"h"_s, u"help"_s});
    const QCommandLineOption version(QStringList{u"v"_s, u"version"_s});
    const QCommandLineOption spark(u"spark"_s, {}, u"TEXT"_s);
    const QCommandLineOption pomodoro(u"pomodoro"_s, {}, u"VERB"_s);
    const QCommandLineOption exportTo(u"export"_s, {}, u"DIR"_s);
    const QCommandLineOption overwrite(u"overwrite"_s);
    QCommandLineParser parser;
    parser.addOptions({help, version, spark, pomodoro, exportTo, overwrite});

    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(help))
        return CommandLineResult{helpText()};
    if (parser.isSet(version))
        return CommandLineResult{versionText()};
    if (!parser.positionalArguments().isEmpty())
        return refuse(
            CommandLineTexts::tr("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst()));
    if (parser.values(spark).size() + parser.values(pomodoro).size() + parser.values(exportTo).size() > 1)
        return refuse(CommandLineTexts::tr("One command at a time."));
    if (parser.isSet(overwrite) && !parser.isSet(exportTo))
        return refuse(CommandLineTexts::tr("--overwrite goes with --export."));
    if (parser.isSet(spark))
        return readSpark(parser.value(spark));
    if (parser.isSet(pomodoro))
        return readPomodoro(parser.value(pomodoro));
    if (parser.isSet(exportTo))
        return readExport(parser.value(exportTo), parser.isSet(overwrite));
    return OpenCommand{};
}
