// What loading and saving take at their peak beyond what there was before, each in a process of its own: a
// load as a multiple of its file, a save in MB beside the library that it writes. The same for QJsonDocument.
// "held" is what stays of a load, the library itself: none can take less. The system counts memory in steps
// of up to 256 KB, in which the smallest library disappears; the program fails when a load of another takes
// more than 2.7 files, or any save more than 4 MB.

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

/// What a piece of work takes of memory beyond what is held when it begins, in bytes.
struct Taken {
    double peak = 0;
    double held = 0; // when it is done
};

Taken takenBy(const std::function<void()> &work)
{
    ::malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5; // the peak begins anew
    const double before = ownStatus("VmRSS");
    work();
    const double peak = ownStatus("VmHWM") - before;
    ::malloc_trim(0);
    return {.peak = peak, .held = ownStatus("VmRSS") - before};
}

/// In a process of its own, so that no memory of another's is used again.
Taken apart(const std::function<Taken()> &measure)
{
    int ends[2];
    if (::pipe(ends) != 0)
        qFatal("no pipe");
    const pid_t child = ::fork();
    if (child == 0) {
        const Taken taken = measure();
        ::_exit(::write(ends[1], &taken, sizeof taken) == sizeof taken ? 0 : 1);
    }
    Taken taken;
    int status = 0;
    ::close(ends[1]);
    const bool isTold = ::read(ends[0], &taken, sizeof taken) == sizeof taken;
    ::close(ends[0]);
    ::waitpid(child, &status, 0);
    if (!isTold || status != 0)
        qFatal("a measurement failed");
    return taken;
}

bool save(const Folder &folder, DocumentWriter &writer, const QList<PelkoDocument> &documents)
{
    return !LocalDocumentFile(folder).replace([&](ByteSink &sink) { return writer.write(documents, sink); });
}

QList<PelkoDocument> load(const Folder &folder)
{
    auto contents = LocalDocumentFile(folder).read();
    return readDocuments(std::move(std::get<QByteArray>(contents))).value();
}

/// The code for it is in memory already, as it is in a program that is about to show a window.
Taken takenByLoad(const Folder &folder)
{
    const Folder small;
    DocumentWriter writer;
    if (!save(small, writer, {PelkoDocument(Space::work, 0)}) || load(small).size() != 1)
        qFatal("a library of one page could not be loaded");
    return takenBy([&folder] { static const QList<PelkoDocument> documents = load(folder); });
}

Taken takenByLoadOfQJson(const Folder &folder)
{
    return takenBy([&folder] {
        QFile file(folder.dataFile());
        static QJsonDocument json;
        if (file.open(QIODevice::ReadOnly))
            json = QJsonDocument::fromJson(file.readAll());
    });
}

/// After one keystroke in a library that has been saved before.
Taken takenBySave(const Folder &folder, LibrarySize size)
{
    QList<PelkoDocument> documents = makeLibrary(size);
    DocumentWriter writer;
    if (!save(folder, writer, documents))
        qFatal("the library could not be saved");
    documents[0].blocks[0].content += u'x';
    return takenBy([&] { save(folder, writer, documents); });
}

Taken takenBySaveOfQJson(const Folder &folder)
{
    QFile file(folder.dataFile());
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QJsonDocument json = QJsonDocument::fromJson(file.readAll());
    return takenBy([&] {
        QFile copy(folder.dataFile() + u".qjson"_s);
        if (isOpen && copy.open(QIODevice::WriteOnly))
            copy.write(json.toJson(QJsonDocument::Compact));
    });
}
} // namespace

int main()
{
    bool isModest = true;
    std::printf("%-8s %14s %14s %14s %14s %14s\n", "", "load, files", "held, files", "QJson", "save, MB",
                "QJson");
    for (const auto &[name, size] : {std::pair{"48 KB", LibrarySize::pages},
                                     {"4.9 MB", LibrarySize::sparks},
                                     {"244 MB", LibrarySize::pictures}}) {
        const Folder folder;
        const Taken save = apart([&] { return takenBySave(folder, size); });
        const double bytes = double(QFile(folder.dataFile()).size());
        const Taken load = apart([&] { return takenByLoad(folder); });
        const Taken loadOfQJson = apart([&] { return takenByLoadOfQJson(folder); });
        const Taken saveOfQJson = apart([&] { return takenBySaveOfQJson(folder); });
        std::printf("%-8s %14.2f %14.2f %14.2f %14.2f %14.2f\n", name, load.peak / bytes, load.held / bytes,
                    loadOfQJson.peak / bytes, save.peak / 1e6, saveOfQJson.peak / 1e6);
        isModest &= save.peak <= saveLimit && (size == LibrarySize::pages || load.peak <= loadLimit * bytes);
    }
    return isModest ? 0 : 1;
}
