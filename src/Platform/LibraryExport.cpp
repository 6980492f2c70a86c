#include "Platform/LibraryExport.h"

#include "Export/Export.h"
#include "Platform/ExportWriter.h"
#include "Platform/LocalDocumentFile.h"
#include "Platform/SystemClock.h"
#include "Platform/TerminalProgress.h"
#include "Store/DocumentReader.h"

#include <csignal>

using namespace Qt::StringLiterals;

namespace
{
constexpr int signals[] = {SIGINT, SIGTERM, SIGHUP};
volatile std::sig_atomic_t caughtSignal = 0;

void takeNote(int signal)
{
    caughtSignal = signal;
}

CommandLineResult failure(const QString &reason, int exitCode = 1)
{
    return {u"pelko: %1\n"_s.arg(reason), exitCode};
}

std::optional<QList<PelkoDocument>> read(const DataLocation &location)
{
    DocumentFile::Contents contents = LocalDocumentFile(location).read();
    if (std::holds_alternative<DocumentFile::Missing>(contents))
        return QList<PelkoDocument>();
    auto *bytes = std::get_if<QByteArray>(&contents);
    return bytes ? readDocuments(std::move(*bytes)) : std::nullopt;
}

QString refusal(const QStringList &taken)
{
    const QString others = taken.size() > 1 ? u" and %1 more are"_s.arg(taken.size() - 1) : u" is"_s;
    return u"%1%2 there already. Nothing was written; --overwrite replaces files."_s.arg(taken.constFirst(),
                                                                                         others);
}

ExportFolder::Outcome write(const QList<PelkoDocument> &documents, const ExportCommand &command)
{
    const std::filesystem::path folder = command.folder.toLocal8Bit().toStdString();
    const SystemClock clock;
    TerminalProgress line(u"Exporting"_s, u"files"_s, clock);
    return ExportWriter(folder, command.existing)
        .write(Export::library(documents), [&line](qsizetype written, qsizetype all) {
            line.show(written, all);
            return caughtSignal == 0;
        });
}
} // namespace

CommandLineResult exportLibrary(const DataLocation &location, const ExportCommand &command)
{
    for (const int signal : signals)
        std::signal(signal, takeNote);
    const auto documents = read(location);
    if (!documents)
        return failure(u"Failed to load your documents."_s);
    const ExportFolder::Outcome outcome = write(*documents, command);
    if (const auto *taken = std::get_if<ExportFolder::Conflicts>(&outcome))
        return failure(refusal(taken->paths));
    if (const auto *error = std::get_if<FileError>(&outcome))
        return failure(u"Export failed: "_s + error->description, caughtSignal ? 128 + caughtSignal : 1);
    return {u"Exported %1 to %2\n"_s.arg(Export::contents(*documents), command.folder)};
}
