// What loading and saving take at their peak beyond what there was before, each in a process of its own: a
// load as a multiple of its file, a save in MB beside the library that it writes. The same for QJsonDocument.
// The program fails when a load of the largest library takes more than 2.7 files, or any save more than 4 MB.

#include "Platform/LocalDocumentFile.h"
#include "Store/DocumentReader.h"
#include "Store/DocumentWriter.h"
#include "support/Libraries.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdio>
#include <fstream>
#include <functional>
#include <malloc.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{
constexpr double loadLimit = 2.7; // files
constexpr double saveLimit = 4e6; // bytes

class Folder : public DataLocation
{
public:
    std::optional<std::filesystem::path> applicationSupportDirectory() const override
    {
        return std::filesystem::path(m_folder.path().toStdString());
    }
    QString dataFile() const { return m_folder.path() + u"/Pelko/data.json"_s; }

private:
    QTemporaryDir m_folder{u"./bench_StoreMemory-XXXXXX"_s};
};

/// A line of what the system says of this process, in bytes.
double ownStatus(const std::string &key)
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        double kilobytes = 0;
        if (word == key + ":" && status >> kilobytes)
            return kilobytes * 1024;
    }
    return 0;
}

/// The most memory that `work` holds at once, beyond what is held when it begins.
double peakOf(const std::function<void()> &work)
{
    ::malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5; // the peak begins anew
    const double before = ownStatus("VmRSS");
    work();
    return ownStatus("VmHWM") - before;
}

/// In a process of its own, so that no memory of another's is used again.
double apart(const std::function<double()> &measure)
{
    int ends[2];
    if (::pipe(ends) != 0)
        qFatal("no pipe");
    const pid_t child = ::fork();
    if (child == 0) {
        const double bytes = measure();
        ::_exit(::write(ends[1], &bytes, sizeof bytes) == sizeof bytes ? 0 : 1);
    }
    double bytes = 0;
    int status = 0;
    ::close(ends[1]);
    const bool isTold = ::read(ends[0], &bytes, sizeof bytes) == sizeof bytes;
    ::close(ends[0]);
    ::waitpid(child, &status, 0);
    if (!isTold || status != 0)
        qFatal("a measurement failed");
    return bytes;
}

bool save(const Folder &folder, DocumentWriter &writer, const QList<PelkoDocument> &documents)
{
    return !LocalDocumentFile(folder).replace([&](ByteSink &sink) { return writer.write(documents, sink); });
}

double loadPeak(const Folder &folder)
{
    return peakOf([&folder] {
        static QList<PelkoDocument> documents;
        auto contents = LocalDocumentFile(folder).read();
        documents = readDocuments(std::move(std::get<QByteArray>(contents))).value();
    });
}

double loadPeakOfQJson(const Folder &folder)
{
    return peakOf([&folder] {
        QFile file(folder.dataFile());
        static QJsonDocument json;
        if (file.open(QIODevice::ReadOnly))
            json = QJsonDocument::fromJson(file.readAll());
    });
}

/// After one keystroke in a library that has been saved before.
double savePeak(const Folder &folder, LibrarySize size)
{
    QList<PelkoDocument> documents = makeLibrary(size);
    DocumentWriter writer;
    if (!save(folder, writer, documents))
        qFatal("the library could not be saved");
    documents[0].blocks[0].content += u'x';
    return peakOf([&] { save(folder, writer, documents); });
}

double savePeakOfQJson(const Folder &folder)
{
    QFile file(folder.dataFile());
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QJsonDocument json = QJsonDocument::fromJson(file.readAll());
    return peakOf([&] {
        QFile copy(folder.dataFile() + u".qjson"_s);
        if (isOpen && copy.open(QIODevice::WriteOnly))
            copy.write(json.toJson(QJsonDocument::Compact));
    });
}
} // namespace

int main()
{
    bool isModest = true;
    std::printf("%-8s %14s %14s %14s %14s\n", "", "load, files", "QJson", "save, MB", "QJson");
    for (const auto &[name, size] : {std::pair{"48 KB", LibrarySize::pages},
                                     {"4.9 MB", LibrarySize::sparks},
                                     {"244 MB", LibrarySize::pictures}}) {
        const Folder folder;
        const double saved = apart([&] { return savePeak(folder, size); });
        const double bytes = double(QFile(folder.dataFile()).size());
        const double load = apart([&] { return loadPeak(folder); }) / bytes;
        const double loadQJson = apart([&] { return loadPeakOfQJson(folder); }) / bytes;
        const double savedQJson = apart([&] { return savePeakOfQJson(folder); });
        std::printf("%-8s %14.2f %14.2f %14.2f %14.2f\n", name, load, loadQJson, saved / 1e6,
                    savedQJson / 1e6);
        isModest &= saved <= saveLimit && (size != LibrarySize::pictures || load <= loadLimit);
    }
    return isModest ? 0 : 1;
}
