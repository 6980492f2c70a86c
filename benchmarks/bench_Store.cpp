// Loading and saving against what the machine needs to read or write the same bytes, and against
// QJsonDocument.
//
// A load is measured in memory that comes fresh from the system, as it does when the program starts, and, as
// "load again", in memory that was in use before, where the floor is much lower.
//
// A save has two floors. "floor" writes the bytes, synchronises them and renames: after a power cut that is a
// whole file, but it may be the old one. "durable" also synchronises the folder. "Pelko" is what the
// interface waits for; "Pelko for good" waits until the folder is synchronised as well.

#include "Platform/LocalDocumentFile.h"
#include "Store/DocumentReader.h"
#include "Store/DocumentWriter.h"
#include "support/Libraries.h"
#include "support/QJsonCodec.h"
#include "support/RatioTable.h"

#include <QTemporaryDir>

#include <cstring>
#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{
/// A folder on the disk that the benchmarks are run from: /tmp may be memory.
class Folder : public DataLocation
{
public:
    std::optional<std::filesystem::path> applicationSupportDirectory() const override
    {
        return std::filesystem::path(m_folder.path().toStdString());
    }
    std::string dataFile() const { return m_folder.path().toStdString() + "/Pelko/data.json"; }

private:
    QTemporaryDir m_folder{u"./bench_Store-XXXXXX"_s};
};

/// One library in memory and on the disk.
struct Library {
    explicit Library(LibrarySize size) : documents(makeLibrary(size)), file(folder) { save(); }

    bool save()
    {
        return !file.replace([this](ByteSink &sink) { return writer.write(documents, sink); });
    }

    /// What an editor does for each key.
    void typeOneKey()
    {
        PelkoDocument page = documents.first();
        page.blocks[0].content += u'x';
        *page.updatedAt += 0.5;
        documents.first() = page;
    }

    Folder folder;
    QList<PelkoDocument> documents;
    LocalDocumentFile file;
    DocumentWriter writer;
};

Library &library(LibrarySize size)
{
    static std::map<LibrarySize, Library> libraries;
    return libraries.try_emplace(size, size).first->second;
}

QByteArray readPlainly(const std::string &path)
{
    const int file = ::open(path.c_str(), O_RDONLY);
    QByteArray bytes(qsizetype(std::filesystem::file_size(path)), Qt::Uninitialized);
    const ssize_t count = ::read(file, bytes.data(), std::size_t(bytes.size()));
    ::close(file);
    return bytes.first(count);
}

enum class Rename {
    mayBeLost, ///< when the power is cut soon after
    isKept,
};

bool syncFolderOf(const std::string &path)
{
    const int folder = ::open(std::filesystem::path(path).parent_path().c_str(), O_RDONLY | O_DIRECTORY);
    const bool synchronised = ::fsync(folder) == 0;
    ::close(folder);
    return synchronised;
}

bool writePlainly(const std::string &path, const QByteArray &bytes, Rename rename)
{
    constexpr qsizetype step = 8 * 1024 * 1024;
    const std::string next = path + ".next";
    const int file = ::open(next.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    bool whole = true;
    for (qsizetype at = 0; at < bytes.size(); at += step) {
        const qsizetype count = std::min(step, bytes.size() - at);
        whole &= ::write(file, bytes.constData() + at, std::size_t(count)) == count;
        if (count == step)
            ::sync_file_range(file, at, count, SYNC_FILE_RANGE_WRITE);
    }
    whole &= ::fdatasync(file) == 0;
    ::close(file);
    whole &= ::rename(next.c_str(), path.c_str()) == 0;
    return whole && (rename == Rename::mayBeLost || syncFolderOf(path));
}

enum class Memory {
    fresh, ///< from the system, for large blocks always, as the program wants it
    used,  ///< kept by the allocator, as it does by itself once large blocks were freed
};

void choose(Memory memory)
{
    ::mallopt(M_MMAP_THRESHOLD, memory == Memory::fresh ? 1 << 20 : 32 << 20);
    ::mallopt(M_TRIM_THRESHOLD, memory == Memory::fresh ? 8 << 20 : 64 << 20);
}

void prepare(benchmark::State &state, Memory memory)
{
    if (memory == Memory::used)
        return;
    state.PauseTiming();
    ::malloc_trim(0);
    state.ResumeTiming();
}

void loadFloor(benchmark::State &state, LibrarySize size, Memory memory)
{
    const std::string path = library(size).folder.dataFile();
    choose(memory);
    for (auto _ : state) {
        prepare(state, memory);
        const QByteArray bytes = readPlainly(path);
        benchmark::DoNotOptimize(std::memchr(bytes.constData(), 1, std::size_t(bytes.size())));
    }
    choose(Memory::fresh);
}

void loadPelko(benchmark::State &state, LibrarySize size, Memory memory)
{
    LocalDocumentFile &file = library(size).file;
    choose(memory);
    for (auto _ : state) {
        prepare(state, memory);
        auto contents = file.read();
        auto documents = readDocuments(std::move(std::get<QByteArray>(contents)));
        if (!documents)
            state.SkipWithError("the library could not be read");
        state.PauseTiming(); // who loads a library keeps it
        documents.reset();
        state.ResumeTiming();
    }
    choose(Memory::fresh);
}

void loadQJson(benchmark::State &state, LibrarySize size, Memory memory)
{
    const std::string path = library(size).folder.dataFile();
    choose(memory);
    for (auto _ : state) {
        prepare(state, memory);
        benchmark::DoNotOptimize(readWithQJson(readPlainly(path)));
    }
    choose(Memory::fresh);
}

void savePlainly(benchmark::State &state, LibrarySize size, Rename rename)
{
    const std::string path = library(size).folder.dataFile();
    const QByteArray bytes = readPlainly(path);
    for (auto _ : state) {
        if (!writePlainly(path + ".floor", bytes, rename))
            state.SkipWithError("the bytes could not be written");
    }
}

void savePelko(benchmark::State &state, LibrarySize size)
{
    Library &saved = library(size);
    for (auto _ : state) {
        saved.typeOneKey();
        if (!saved.save())
            state.SkipWithError("the library could not be saved");
        state.PauseTiming(); // saves are half a second apart
        if (saved.file.confirm())
            state.SkipWithError("the library may not stay saved");
        state.ResumeTiming();
    }
}

void savePelkoForGood(benchmark::State &state, LibrarySize size)
{
    Library &saved = library(size);
    for (auto _ : state) {
        saved.typeOneKey();
        if (!saved.save() || saved.file.confirm())
            state.SkipWithError("the library could not be saved for good");
    }
}

void saveQJson(benchmark::State &state, LibrarySize size)
{
    Library &saved = library(size);
    for (auto _ : state) {
        saved.typeOneKey();
        const QByteArray bytes = writeWithQJson(saved.documents);
        if (!writePlainly(saved.folder.dataFile() + ".qjson", bytes, Rename::mayBeLost))
            state.SkipWithError("the bytes could not be written");
    }
}

void registerAll()
{
    struct Case {
        const char *name;
        LibrarySize size;
        int iterations;
        int slowIterations;
    };
    for (const Case &each :
         {Case{"48 KB", LibrarySize::pages, 100, 30}, Case{"4.9 MB", LibrarySize::sparks, 20, 2},
          Case{"244 MB", LibrarySize::pictures, 1, 1}}) {
        const auto add = [&each](const char *task, const char *way, int iterations, auto *measure,
                                 auto... arguments) {
            const std::string name = std::string(task) + "/" + each.name + "/" + way;
            benchmark::RegisterBenchmark(name.c_str(), measure, each.size, arguments...)
                ->Iterations(iterations)
                ->Repetitions(each.iterations == 1 && iterations == 1 ? 5 : 9)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
        };
        for (const auto &[task, memory] : {std::pair{"load", Memory::fresh}, {"load again", Memory::used}}) {
            add(task, "floor", each.iterations, loadFloor, memory);
            add(task, "Pelko", each.iterations, loadPelko, memory);
            add(task, "QJson", each.slowIterations, loadQJson, memory);
        }
        add("save", "floor", each.iterations, savePlainly, Rename::mayBeLost);
        add("save", "durable", each.iterations, savePlainly, Rename::isKept);
        add("save", "Pelko", each.iterations, savePelko);
        add("save", "Pelko for good", each.iterations, savePelkoForGood);
        add("save", "QJson", each.slowIterations, saveQJson);
    }
}
} // namespace

int main(int argc, char **argv)
{
    choose(Memory::fresh);
    // In turn, so that what disturbs the disk for a while disturbs all ways alike.
    std::vector<char *> arguments(argv, argv + argc);
    std::string inTurn = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, inTurn.data());
    registerAll();
    return runAndPrintRatios(int(arguments.size()), arguments.data());
}
