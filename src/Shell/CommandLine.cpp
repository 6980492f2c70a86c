#include "Shell/CommandLine.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace
{
constexpr int usageError = 2;

CommandLineAnswer refuse(const QString &reason)
{
    return {u"pelko: %1\nTry 'pelko --help' for more information.\n"_s.arg(reason), usageError};
}

QString helpText()
{
    return u"Usage: pelko [OPTION]\n"
           "Write short pages, block by block.\n"
           "\n"
           "  -h, --help     show this help and end\n"
           "  -v, --version  show the version and end\n"_s;
}

QString versionText()
{
    return u"pelko %1\n"_s.arg(QLatin1StringView(PELKO_VERSION));
}
} // namespace

std::optional<CommandLineAnswer> answerCommandLine(const QStringList &arguments)
{
    const QCommandLineOption help(QStringList{u"h"_s, u"help"_s});
    const QCommandLineOption version(QStringList{u"v"_s, u"version"_s});
    QCommandLineParser parser;
    parser.addOptions({help, version});

    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(help))
        return CommandLineAnswer{helpText()};
    if (parser.isSet(version))
        return CommandLineAnswer{versionText()};
    if (!parser.positionalArguments().isEmpty())
        return refuse(u"Unexpected argument '%1'."_s.arg(parser.positionalArguments().constFirst()));
    return std::nullopt;
}
