// Loading and saving against what the machine needs to read or write the same bytes, and against
// QJsonDocument.
//
// A save has two floors. "floor" writes the bytes, synchronises them and renames: after a power cut that is a
// whole file, but it may be the old one. "durable" also synchronises the folder. "Pelko" is what the
// interface waits for; "Pelko for good" waits until the folder is synchronised as well.

#include "Platform/LocalDocumentFile.h"
#include "Store/DocumentReader.h"
#include "Store/DocumentWriter.h"
#include "support/Libraries.h"
#include "support/RatioTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
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

/// A program loads in its first moment, when all memory comes fresh from the system.
void startWithFreshMemory(benchmark::State &state)
{
    state.PauseTiming();
    ::malloc_trim(0);
    state.ResumeTiming();
}

void loadFloor(benchmark::State &state, LibrarySize size)
{
    const std::string path = library(size).folder.dataFile();
    for (auto _ : state) {
        startWithFreshMemory(state);
        const QByteArray bytes = readPlainly(path);
        benchmark::DoNotOptimize(std::memchr(bytes.constData(), 1, std::size_t(bytes.size())));
    }
}

void loadPelko(benchmark::State &state, LibrarySize size)
{
    LocalDocumentFile &file = library(size).file;
    for (auto _ : state) {
        startWithFreshMemory(state);
        auto contents = file.read();
        auto documents = readDocuments(std::move(std::get<QByteArray>(contents)));
        if (!documents)
            state.SkipWithError("the library could not be read");
        state.PauseTiming(); // who loads a library keeps it
        documents.reset();
        state.ResumeTiming();
    }
}

QList<PelkoDocument> fromQJson(const QJsonArray &json)
{
    QList<PelkoDocument> documents;
    for (const QJsonValueConstRef value : json) {
        PelkoDocument document;
        document.id = QUuid::fromString(value[u"id"_s].toString());
        document.createdAt = value[u"createdAt"_s].toDouble();
        document.updatedAt = value[u"updatedAt"_s].toDouble();
        for (const QJsonValue &part : value[u"blocks"_s].toArray()) {
            Block block(*blockTypeFromRawValue(part[u"type"_s].toString()), part[u"content"_s].toString());
            block.id = QUuid::fromString(part[u"id"_s].toString());
            if (part[u"imageData"_s].isString())
                block.imageData = QByteArray::fromBase64(part[u"imageData"_s].toString().toLatin1());
            document.blocks.append(block);
        }
        documents.append(document);
    }
    return documents;
}

QJsonArray toQJson(const QList<PelkoDocument> &documents)
{
    QJsonArray json;
    for (const PelkoDocument &document : documents) {
        QJsonArray blocks;
        for (const Block &block : document.blocks) {
            QJsonObject object{{u"id"_s, block.id.toString(QUuid::WithoutBraces)},
                               {u"type"_s, rawValue(block.type)},
                               {u"content"_s, block.content}};
            if (block.imageData)
                object[u"imageData"_s] = QString::fromLatin1(block.imageData->toBase64());
            blocks.append(object);
        }
        json.append(QJsonObject{{u"id"_s, document.id.toString(QUuid::WithoutBraces)},
                                {u"space"_s, rawValue(document.space)},
                                {u"blocks"_s, blocks},
                                {u"createdAt"_s, document.createdAt},
                                {u"updatedAt"_s, *document.updatedAt}});
    }
    return json;
}

void loadQJson(benchmark::State &state, LibrarySize size)
{
    const std::string path = library(size).folder.dataFile();
    for (auto _ : state) {
        startWithFreshMemory(state);
        benchmark::DoNotOptimize(fromQJson(QJsonDocument::fromJson(readPlainly(path)).array()));
    }
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

void saveFloor(benchmark::State &state, LibrarySize size)
{
    savePlainly(state, size, Rename::mayBeLost);
}

void saveDurable(benchmark::State &state, LibrarySize size)
{
    savePlainly(state, size, Rename::isKept);
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
        const QByteArray bytes = QJsonDocument(toQJson(saved.documents)).toJson(QJsonDocument::Compact);
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
        const auto add = [&each](const char *task, const char *way, auto *measure, int iterations) {
            const std::string name = std::string(task) + "/" + each.name + "/" + way;
            benchmark::RegisterBenchmark(name.c_str(), measure, each.size)
                ->Iterations(iterations)
                ->Repetitions(each.iterations == 1 && iterations == 1 ? 5 : 9)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
        };
        add("load", "floor", loadFloor, each.iterations);
        add("load", "Pelko", loadPelko, each.iterations);
        add("load", "QJson", loadQJson, each.slowIterations);
        add("save", "floor", saveFloor, each.iterations);
        add("save", "durable", saveDurable, each.iterations);
        add("save", "Pelko", savePelko, each.iterations);
        add("save", "Pelko for good", savePelkoForGood, each.iterations);
        add("save", "QJson", saveQJson, each.slowIterations);
    }
}
} // namespace

int main(int argc, char **argv)
{
    // As in the program. By itself the allocator would change its ways after a while, and with them the floor
    // tenfold.
    ::mallopt(M_MMAP_THRESHOLD, 1 << 20);
    ::mallopt(M_TRIM_THRESHOLD, 8 << 20);
    // In turn, so that what disturbs the disk for a while disturbs all ways alike.
    std::vector<char *> arguments(argv, argv + argc);
    std::string inTurn = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, inTurn.data());
    registerAll();
    return runAndPrintRatios(int(arguments.size()), arguments.data());
}
