#include "Platform/LibraryExport.h"

#include "Export/Export.h"
#include "Platform/ExportWriter.h"
#include "Platform/LocalDocumentFile.h"
#include "Platform/SystemClock.h"
#include "Platform/TerminalProgress.h"
#include "Store/DocumentReader.h"
#include "Store/StoreError.h"

#include <QCoreApplication>

#include <csignal>

using namespace Qt::StringLiterals;

namespace
{
constexpr int signals[] = {SIGINT, SIGTERM, SIGHUP};
struct LibraryExportTexts {
    Q_DECLARE_TR_FUNCTIONS(LibraryExport)
};

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
    if (taken.size() == 1)
        return LibraryExportTexts::tr("%1 is there already. Nothing was written; --overwrite replaces files.")
            .arg(taken.constFirst());
    return LibraryExportTexts::tr(
               "%1 and %n more are there already. Nothing was written; --overwrite replaces files.", nullptr,
               static_cast<int>(taken.size() - 1))
        .arg(taken.constFirst());
}

ExportFolder::Outcome write(const QList<PelkoDocument> &documents, const ExportCommand &command)
{
    const std::filesystem::path folder = command.folder.toLocal8Bit().toStdString();
    const SystemClock clock;
    TerminalProgress line(
        [](qsizetype done, qsizetype all) {
            return LibraryExportTexts::tr("Exporting %1 of %n file(s)", nullptr, static_cast<int>(all))
                .arg(done);
        },
        clock);
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
        return failure(StoreError{.task = StoreError::Task::load}.description());
    const ExportFolder::Outcome outcome = write(*documents, command);
    if (const auto *taken = std::get_if<ExportFolder::Conflicts>(&outcome))
        return failure(refusal(taken->paths));
    if (const auto *error = std::get_if<FileError>(&outcome))
        return failure(LibraryExportTexts::tr("Export failed: %1").arg(error->description()),
                       caughtSignal ? 128 + caughtSignal : 1);
    //: %1 is such as "12 pages and 1 picture", %2 a folder.
    return {LibraryExportTexts::tr("Exported %1 to %2").arg(Export::contents(*documents), command.folder) +
            u'\n'};
}
