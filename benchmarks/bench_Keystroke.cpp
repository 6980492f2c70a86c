// One key in a library of ten thousand sparks: what the store does before the key is echoed.

#include "Services/Clock.h"
#include "Services/DocumentFile.h"
#include "Store/AppState.h"
#include "support/Libraries.h"
#include "support/RatioTable.h"

namespace
{
struct TickingClock : Clock {
    mutable Timestamp time = 812'345'678;
    Timestamp now() const override { return time += 0.001; }
    QTimeZone timeZone() const override { return QTimeZone::utc(); }
};

/// Never calls: the save of half a second later is measured elsewhere.
struct NoScheduler : Scheduler {
    ScheduledCall after(std::chrono::milliseconds /*delay*/, Action /*action*/) override { return {}; }
    ScheduledCall every(std::chrono::milliseconds /*interval*/, Action /*action*/) override { return {}; }
};

/// Holds a library for reading and swallows what is written.
class MemoryFile : public DocumentFile, public ByteSink
{
public:
    explicit MemoryFile(const QList<PelkoDocument> &documents)
    {
        [[maybe_unused]] const auto error = DocumentWriter().write(documents, *this);
    }

    Contents read() override { return m_bytes; }
    std::optional<FileError> replace(const Producer & /*produce*/) override { return std::nullopt; }
    std::optional<FileError> write(QByteArrayView bytes) override
    {
        m_bytes.append(bytes);
        return std::nullopt;
    }

private:
    QByteArray m_bytes;
};

void typeInto(PelkoDocument &page, char16_t letter)
{
    page.blocks[0].content[0] = QChar(letter);
}

void floorOfAKey(benchmark::State &state)
{
    PelkoDocument stored = makeLibrary(LibrarySize::pages).last();
    char16_t letter = u'a';
    for (auto _ : state) {
        PelkoDocument page = stored;
        typeInto(page, letter ^= 1);
        stored = page;
    }
}

void keyThroughTheStore(benchmark::State &state, LibrarySize size)
{
    NoScheduler scheduler;
    const TickingClock clock;
    MemoryFile file(makeLibrary(size));
    AppState store(scheduler, clock, file);
    store.setOpenDocumentID(store.documents().last().id); // the longest to look for
    char16_t letter = u'a';
    for (auto _ : state) {
        PelkoDocument page = store.openDocument().value();
        typeInto(page, letter ^= 1);
        store.updateDocument(page);
    }
}

template <typename... Arguments>
void add(const char *name, Arguments... arguments)
{
    benchmark::RegisterBenchmark(name, arguments...)
        ->Repetitions(5)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}
} // namespace

int main(int argc, char **argv)
{
    add("key/floor", floorOfAKey);
    add("key/pages", keyThroughTheStore, LibrarySize::pages);
    add("key/sparks", keyThroughTheStore, LibrarySize::sparks);
    return runAndPrintRatios(argc, argv);
}
