#include "DataFolder.h"
#include "support/TestProgram.h"

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace
{
// These functions replace those of the C library in this program, so that a chosen call fails.
int writeError = 0;
int flushError = 0;
int folderFlushError = 0;
int renameError = 0;

int failWith(int error)
{
    errno = error;
    return -1;
}

/// Limits the size of files to `bytes` as long as it lives.
struct SmallFiles {
    explicit SmallFiles(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &former);
        const rlimit small{bytes, former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallFiles() { ::setrlimit(RLIMIT_FSIZE, &former); }
    Q_DISABLE_COPY_MOVE(SmallFiles)

    rlimit former{};
};

/// A file system of 256 KB in memory, mounted on a folder as long as it lives.
struct SmallDisk {
    explicit SmallDisk(const fs::path &folder) : path(folder)
    {
        fs::create_directories(path);
        isMounted = ::mount("tmpfs", path.c_str(), "tmpfs", 0, "size=256k") == 0;
    }
    ~SmallDisk()
    {
        if (isMounted && ::umount(path.c_str()) != 0)
            qWarning("%s stays mounted", path.c_str());
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

    fs::path path;
    bool isMounted;
};
} // namespace

extern "C" ssize_t write(int descriptor, const void *bytes, std::size_t size)
{
    const bool isFile = descriptor > STDERR_FILENO;
    return writeError && isFile ? failWith(writeError)
                                : ssize_t(::syscall(SYS_write, descriptor, bytes, size));
}

extern "C" int fdatasync(int descriptor)
{
    return flushError ? failWith(flushError) : int(::syscall(SYS_fdatasync, descriptor));
}

extern "C" int fsync(int descriptor)
{
    return folderFlushError ? failWith(folderFlushError) : int(::syscall(SYS_fsync, descriptor));
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    return renameError ? failWith(renameError) : int(::syscall(SYS_rename, from, to));
}

class TestFailingDisk : public QObject
{
    Q_OBJECT

    std::unique_ptr<DataFolder> disk;

private Q_SLOTS:
    void init()
    {
        disk = std::make_unique<DataFolder>();
        writeError = flushError = folderFlushError = renameError = 0;
    }

    void cleanup() { disk.reset(); }

    void aFileThatMayNotGrowKeepsTheOldFile()
    {
        DataFolder::put(disk->file(), "old");
        QString told;
        {
            const SmallFiles limit(100'000);
            told = disk->replace(QByteArray(300'000, 'x'));
        }
        QCOMPARE(told, u"File too large"_s);
        disk->verifyOnlyTheOldFile();
        QCOMPARE(disk->replace(), u""_s);
        QCOMPARE(disk->read(), "new");
    }

    void aFullDiskKeepsTheOldFile()
    {
        const SmallDisk small(disk->support);
        if (!small.isMounted)
            QSKIP("Only root may mount a disk of his own.");
        int failures = 0;
        for (int size = 200'000; size < 300'000; size += 1'000) {
            QCOMPARE(disk->replace("old"), u""_s);
            const QString told = disk->replace(QByteArray(size, 'x'));
            if (told.isEmpty()) {
                QCOMPARE(disk->read().size(), size);
                continue;
            }
            QCOMPARE(told, u"No space left on device"_s);
            disk->verifyOnlyTheOldFile();
            ++failures;
        }
        QVERIFY(failures >= 37); // all from 263 KB on
    }

    void aFailureBeforeTheRenamingKeepsTheOldFile_data()
    {
        QTest::addColumn<int *>("failing");
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("told");
        QTest::newRow("writing") << &writeError << EIO << u"Input/output error"_s;
        QTest::newRow("writing beyond the quota") << &writeError << EDQUOT << u"Disk quota exceeded"_s;
        QTest::newRow("flushing") << &flushError << EIO << u"Input/output error"_s;
        QTest::newRow("flushing beyond the quota") << &flushError << EDQUOT << u"Disk quota exceeded"_s;
        QTest::newRow("renaming") << &renameError << EIO << u"Input/output error"_s;
        QTest::newRow("renaming on what became read-only")
            << &renameError << EROFS << u"Read-only file system"_s;
    }

    void aFailureBeforeTheRenamingKeepsTheOldFile()
    {
        QFETCH(int *, failing);
        QFETCH(int, error);
        DataFolder::put(disk->file(), "old");
        *failing = error;
        QTEST(disk->replace(), "told");
        disk->verifyOnlyTheOldFile();
        *failing = 0;
        QCOMPARE(disk->replace(), u""_s);
        QCOMPARE(disk->read(), "new");
    }

    void aFailureToFlushTheFolderIsTold()
    {
        DataFolder::put(disk->file(), "old");
        folderFlushError = EIO;
        QCOMPARE(disk->replace(), u"Input/output error"_s);
        QCOMPARE(DataFolder::filesIn(disk->folder()), {u"data.json"_s});
        QCOMPARE(disk->read(), "new");
    }

    void aFileSystemThatCannotFlushFoldersIsNoError()
    {
        folderFlushError = EINVAL;
        QCOMPARE(disk->replace(), u""_s);
        QCOMPARE(disk->read(), "new");
    }

    void anErrorOfTheProducerKeepsTheOldFile()
    {
        DataFolder::put(disk->file(), "old");
        const auto error = LocalDocumentFile(*disk).replace([](ByteSink &sink) {
            const auto sinkError = sink.write("half of the n");
            return sinkError ? sinkError : FileError{u"changed my mind"_s};
        });
        QVERIFY(error);
        QCOMPARE(error->description(), u"changed my mind"_s);
        disk->verifyOnlyTheOldFile();
    }

    // After a killed process

    void readRemovesFilesOfAKilledSave()
    {
        DataFolder::put(disk->file(), "old");
        DataFolder::put(disk->folder() / ".data.json.saving-Ab12Cd", "half");
        DataFolder::put(disk->folder() / ".data.json.saving-by-hand", "somebody's own");
        DataFolder::put(disk->folder() / ".data.json.saving-beingW", "in progress");
        const int busy = ::open((disk->folder() / ".data.json.saving-beingW").c_str(), O_RDONLY);
        QCOMPARE(::flock(busy, LOCK_EX), 0);
        QCOMPARE(disk->read(), "old");
        ::close(busy);
        QCOMPARE(
            DataFolder::filesIn(disk->folder()),
            QStringList({u".data.json.saving-beingW"_s, u".data.json.saving-by-hand"_s, u"data.json"_s}));
    }
};

PELKO_TEST(TestFailingDisk)
#include "tst_FailingDisk.moc"
