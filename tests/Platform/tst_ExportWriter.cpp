#include "Platform/ExportWriter.h"
#include "Platform/LocalExportFolder.h"
#include "support/TestProgram.h"

#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <set>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;
using Existing = ExportFolder::Existing;

namespace
{
// These functions replace those of the C library in this program, so that a chosen call fails.
constexpr int never = -1;
int callsUntilFailure = never;
bool knowsFreePlaces = true;

bool failsNow()
{
    if (callsUntilFailure == never)
        return false;
    if (callsUntilFailure > 0) {
        --callsUntilFailure;
        return false;
    }
    callsUntilFailure = never; // rolling back must succeed
    errno = EIO;
    return true;
}

int failWith(int error)
{
    errno = error;
    return -1;
}
} // namespace

extern "C" ssize_t write(int descriptor, const void *bytes, std::size_t size)
{
    const bool isFile = descriptor > STDERR_FILENO && ::fcntl(descriptor, F_GETFL) & O_WRONLY;
    return isFile && failsNow() ? -1 : ssize_t(::syscall(SYS_write, descriptor, bytes, size));
}

extern "C" int syncfs(int descriptor) noexcept
{
    return failsNow() ? -1 : int(::syscall(SYS_syncfs, descriptor));
}

extern "C" int mkdir(const char *path, mode_t mode) noexcept
{
    return failsNow() ? -1 : int(::syscall(SYS_mkdirat, AT_FDCWD, path, mode));
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    return failsNow() ? -1 : int(::syscall(SYS_renameat, AT_FDCWD, from, AT_FDCWD, to));
}

extern "C" int renameat2(int, const char *from, int, const char *to, unsigned flags) noexcept
{
    if (!knowsFreePlaces)
        return failWith(EINVAL);
    return failsNow() ? -1 : int(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, flags));
}

namespace
{
const QList<ExportedFile> files{
    {u"work/A.md"_s, "new a"_ba}, {u"work/A 1.png"_s, "new picture"_ba}, {u"ideas/语.md"_s, "new b"_ba}};

const auto goOn = [](qsizetype, qsizetype) { return true; };
} // namespace

class TestExportWriter : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> directory;
    fs::path folder;

    void put(const std::string &path, const char *text) const
    {
        fs::create_directories((folder / path).parent_path());
        std::ofstream(folder / path) << text;
    }

    static QByteArray contents(const fs::path &file)
    {
        std::ifstream stream(file, std::ios::binary);
        return QByteArray::fromStdString({std::istreambuf_iterator<char>(stream), {}});
    }

    /// Everything below the temporary directory, hidden things too: paths, and texts of files.
    QStringList everything() const
    {
        std::set<std::string> lines;
        const fs::path root = directory->path().toStdString();
        for (const auto &entry : fs::recursive_directory_iterator(root)) {
            const std::string path = entry.path().lexically_relative(root).string();
            lines.insert(entry.is_directory() ? path + "/"
                                              : path + ": " + contents(entry.path()).toStdString());
        }
        QStringList list;
        for (const std::string &line : lines)
            list << QString::fromStdString(line);
        return list;
    }

    /// Returns "written", the conflicting paths, or the error.
    static QString told(const ExportFolder::Outcome &outcome)
    {
        if (const auto *error = std::get_if<FileError>(&outcome))
            return error->description();
        if (const auto *taken = std::get_if<ExportFolder::Conflicts>(&outcome))
            return taken->paths.join(u'|');
        return u"written"_s;
    }

    QString write(Existing existing = Existing::keep) const
    {
        return told(ExportWriter(folder, existing).write(files, goOn));
    }

private Q_SLOTS:
    void init()
    {
        callsUntilFailure = never;
        knowsFreePlaces = true;
        directory = std::make_unique<QTemporaryDir>();
        folder = fs::path(directory->path().toStdString()) / "out" / "notes";
    }

    void makesTheFolderAndWritesTheFiles()
    {
        QCOMPARE(write(), u"written"_s);
        QCOMPARE(everything(),
                 (QStringList{u"out/"_s, u"out/notes/"_s, u"out/notes/ideas/"_s,
                              u"out/notes/ideas/语.md: new b"_s, u"out/notes/work/"_s,
                              u"out/notes/work/A 1.png: new picture"_s, u"out/notes/work/A.md: new a"_s}));
    }

    void aFolderMayBeNamedWithASlashOrDots()
    {
        folder = folder / "x" / ".." / "";
        QCOMPARE(write(), u"written"_s);
        QVERIFY(fs::exists(folder.parent_path().parent_path().parent_path() / "work" / "A.md"));
    }

    void othersFilesStay()
    {
        put("work/mine.md", "mine");
        put("work/A.txt", "mine too");
        QCOMPARE(write(), u"written"_s);
        QCOMPARE(contents(folder / "work/mine.md"), "mine");
        QCOMPARE(contents(folder / "work/A.txt"), "mine too");
        QCOMPARE(contents(folder / "work/A.md"), "new a");
    }

    void existingFilesAreNotReplacedByDefault()
    {
        put("work/A.md", "old a");
        fs::create_symlink("nowhere", folder / "work/A 1.png");
        QCOMPARE(write(), u"work/A.md|work/A 1.png"_s);
        QCOMPARE(contents(folder / "work/A.md"), "old a");
        QVERIFY(fs::is_symlink(folder / "work/A 1.png"));
        QVERIFY(!fs::exists(folder / "ideas"));
    }

    void existingFilesAreReplacedOnRequest()
    {
        put("work/A.md", "old a");
        put("elsewhere", "untouched");
        fs::create_symlink("../elsewhere", folder / "work/A 1.png");
        QCOMPARE(write(Existing::replace), u"written"_s);
        QCOMPARE(contents(folder / "work/A.md"), "new a");
        QVERIFY(!fs::is_symlink(folder / "work/A 1.png"));
        QCOMPARE(contents(folder / "elsewhere"), "untouched");
    }

    void aFolderIsNeverReplaced()
    {
        put("work/A 1.png/inside", "mine");
        const QStringList before = everything();
        QCOMPARE(write(Existing::replace), u"Is a directory"_s);
        QCOMPARE(everything(), before);
    }

    void aFileInTheWayOfAFolderIsKept()
    {
        put("ideas", "a file");
        const QStringList before = everything();
        QCOMPARE(write(Existing::replace), u"Not a directory"_s);
        QCOMPARE(everything(), before);
    }

    void failureAtAnyStepLeavesTheFolderUnchanged_data()
    {
        QTest::addColumn<bool>("isThere");
        QTest::newRow("into a new folder") << false;
        QTest::newRow("over an old export") << true;
    }

    void failureAtAnyStepLeavesTheFolderUnchanged()
    {
        QFETCH(bool, isThere);
        if (isThere) {
            put("work/A.md", "old a");
            put("work/A 1.png", "old picture");
        }
        const QStringList before = everything();
        int failures = 0;
        for (;; ++failures) {
            callsUntilFailure = failures;
            if (write(Existing::replace) == u"written"_s)
                break;
            QCOMPARE(everything(), before);
        }
        QCOMPARE(callsUntilFailure, 0); // the call after the last one would have failed
        // Three files are written and moved in, all of it is synchronised twice; in between, two files are
        // moved aside, or folders made.
        QCOMPARE(failures, isThere ? 3 + 3 + 2 + 2 + 1 : 3 + 3 + 2 + 4);
        QCOMPARE(contents(folder / "work/A.md"), "new a");
    }

    void aDiskThatCannotPromiseAFreePlaceIsLookedAtFirst()
    {
        knowsFreePlaces = false;
        QCOMPARE(write(), u"written"_s);
        QCOMPARE(write(Existing::replace), u"written"_s);
    }

    void filesCreatedMeanwhileAreKept_data()
    {
        QTest::addColumn<bool>("promisesFreePlaces");
        QTest::newRow("promised by the disk") << true;
        QTest::newRow("looked at") << false;
    }

    void filesCreatedMeanwhileAreKept()
    {
        QFETCH(bool, promisesFreePlaces);
        knowsFreePlaces = promisesFreePlaces;
        const auto appear = [this](qsizetype, qsizetype) {
            put("work/A 1.png", "somebody else's");
            return true;
        };
        QCOMPARE(told(ExportWriter(folder, Existing::keep).write(files, appear)), u"File exists"_s);
        QVERIFY(!fs::exists(folder / "work/A.md"));
        QCOMPARE(contents(folder / "work/A 1.png"), "somebody else's");
    }

    void aFolderThatVanishesIsAnError()
    {
        const auto vanish = [this](qsizetype written, qsizetype) {
            if (written == 1)
                fs::remove_all(folder);
            return true;
        };
        QCOMPARE(told(ExportWriter(folder, Existing::keep).write(files, vanish)),
                 u"No such file or directory"_s);
        QCOMPARE(everything(), QStringList());
    }

    void cancelledExportLeavesNoFiles()
    {
        QList<qsizetype> steps;
        const auto giveUp = [&steps](qsizetype written, qsizetype all) {
            steps << written << all;
            return written < 2;
        };
        QCOMPARE(told(ExportWriter(folder, Existing::keep).write(files, giveUp)), u"Operation canceled"_s);
        QCOMPARE(steps, (QList<qsizetype>{0, 3, 1, 3, 2, 3}));
        QCOMPARE(everything(), QStringList());
    }

    void removesAbandonedFilesAndKeepsLockedOnes()
    {
        put(".pelko-export-killed/0", "half");
        put(".pelko-export-living/0", "being written");
        const int living =
            ::open((folder / ".pelko-export-living").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        QCOMPARE(::flock(living, LOCK_EX | LOCK_NB), 0);
        QCOMPARE(write(), u"written"_s);
        ::close(living);
        QVERIFY(!fs::exists(folder / ".pelko-export-killed"));
        QVERIFY(fs::exists(folder / ".pelko-export-living/0"));
    }

    void aFullDiskIsLeftAsItWas()
    {
        fs::create_directories(folder);
        if (::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") != 0)
            QSKIP("Only root may mount a disk of his own.");
        const QList<ExportedFile> tooMuch{{u"a.md"_s, "small"_ba}, {u"a 1.png"_s, QByteArray(100'000, 'x')}};
        const QString outcome = told(ExportWriter(folder, Existing::keep).write(tooMuch, goOn));
        const bool isEmpty = fs::is_empty(folder);
        QCOMPARE(::umount(folder.c_str()), 0);
        QCOMPARE(outcome, u"No space left on device"_s);
        QVERIFY(isEmpty);
    }

    void aReadOnlyDiskIsAnError()
    {
        fs::create_directories(folder);
        if (::mount("tmpfs", folder.c_str(), "tmpfs", MS_RDONLY, "size=64k") != 0)
            QSKIP("Only root may mount a disk of his own.");
        const QString outcome = write();
        QCOMPARE(::umount(folder.c_str()), 0);
        QCOMPARE(outcome, u"Read-only file system"_s);
    }

    void theInterfaceIsToldWhenItIsDone()
    {
        LocalExportFolder exports;
        QStringList outcomes;
        const auto tell = [&](const ExportFolder::Outcome &outcome) {
            QCOMPARE(QThread::currentThread(), thread());
            outcomes << told(outcome);
        };
        const ScheduledCall request = exports.write(folder, [] { return files; }, Existing::keep, tell);
        QTRY_COMPARE(outcomes, QStringList{u"written"_s});
        QCOMPARE(contents(folder / "work/A.md"), "new a");
    }

    void droppedExportIsCancelled()
    {
        QSemaphore isDropped;
        bool isTold = false;
        {
            LocalExportFolder exports;
            const auto produce = [&isDropped] {
                isDropped.acquire();
                return files;
            };
            const auto tell = [&isTold](const ExportFolder::Outcome &) { isTold = true; };
            exports.write(folder, produce, Existing::keep, tell).cancel();
            isDropped.release();
        }
        QCoreApplication::processEvents();
        QVERIFY(!isTold);
        QCOMPARE(everything(), QStringList());
    }
};

PELKO_TEST(TestExportWriter)
#include "tst_ExportWriter.moc"
