#include "Shell/CommandLine.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace
{
constexpr int usageError = 2;

CommandLineResult refuse(const QString &reason)
{
    return {u"pelko: %1\nTry 'pelko --help' for more information.\n"_s.arg(reason), usageError};
}

QString helpText()
{
    return u"Usage: pelko [OPTION]\n"
           "Write short pages, block by block.\n"
           "\n"
           "      --spark TEXT     capture a spark, without a window\n"
           "      --pomodoro VERB  start, pause or reset the timer of the running Pelko,\n"
           "                       or show its status\n"
           "      --export DIR     write all pages as Markdown, with their pictures, into DIR\n"
           "      --overwrite      let --export replace files that are there already\n"
           "  -h, --help           show this help and end\n"
           "  -v, --version        show the version and end\n"_s;
}

QString versionText()
{
    return u"pelko %1\n"_s.arg(QLatin1StringView(PELKO_VERSION));
}

ParsedCommandLine readSpark(const QString &text)
{
    if (QStringView(text).trimmed().isEmpty())
        return refuse(u"A spark needs some text."_s);
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
    return refuse(u"--pomodoro takes start, pause, reset or status, not '%1'."_s.arg(word));
}

ParsedCommandLine readExport(const QString &folder, bool overwrites)
{
    using Existing = ExportFolder::Existing;
    if (folder.isEmpty())
        return refuse(u"--export needs a folder."_s);
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
        return refuse(u"Unexpected argument '%1'."_s.arg(parser.positionalArguments().constFirst()));
    if (parser.values(spark).size() + parser.values(pomodoro).size() + parser.values(exportTo).size() > 1)
        return refuse(u"One command at a time."_s);
    if (parser.isSet(overwrite) && !parser.isSet(exportTo))
        return refuse(u"--overwrite goes with --export."_s);
    if (parser.isSet(spark))
        return readSpark(parser.value(spark));
    if (parser.isSet(pomodoro))
        return readPomodoro(parser.value(pomodoro));
    if (parser.isSet(exportTo))
        return readExport(parser.value(exportTo), parser.isSet(overwrite));
    return OpenCommand{};
}
