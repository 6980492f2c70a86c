#include "Platform/LocalDocumentFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace
{
// The three functions below take the place of the C library's in this program, so that a disk can be made to
// fail where a test wants it.
int flushError = 0;
int folderFlushError = 0;
int renameError = 0;

int failWith(int error)
{
    errno = error;
    return -1;
}

struct Location : DataLocation {
    fs::path folder;
    std::optional<fs::path> applicationSupportDirectory() const override { return folder; }
};

/// Ordinary user's rights for as long as it lives: nothing is read-only to root.
struct Unprivileged {
    bool worked = ::geteuid() != 0 || ::seteuid(65534) == 0;
    ~Unprivileged()
    {
        if (::geteuid() != ::getuid() && ::seteuid(::getuid()) != 0)
            qFatal("cannot go back to the user that the test began as");
    }
};

/// No file may grow beyond `bytes` for as long as it lives.
struct SmallFiles {
    explicit SmallFiles(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &former);
        const rlimit small{bytes, former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallFiles() { ::setrlimit(RLIMIT_FSIZE, &former); }
    rlimit former{};
};
} // namespace

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

class TestLocalDocumentFile : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> directory;
    Location location;
    fs::path folder;
    fs::path path;

    static QByteArray contents(const fs::path &file)
    {
        std::ifstream stream(file, std::ios::binary);
        return QByteArray::fromStdString({std::istreambuf_iterator<char>(stream), {}});
    }

    static void put(const fs::path &file, const char *text)
    {
        fs::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    static int modeOf(const fs::path &file) { return int(fs::status(file).permissions()); }

    static QStringList filesIn(const fs::path &folder)
    {
        return QDir(QString::fromStdString(folder)).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }

    QByteArray read() { return std::get<QByteArray>(LocalDocumentFile(location).read()); }
    QString readError() { return std::get<FileError>(LocalDocumentFile(location).read()).description; }

    /// What was told; an empty string when all went well.
    QString replace(const QByteArray &bytes = "new")
    {
        const auto error =
            LocalDocumentFile(location).replace([&](ByteSink &sink) { return sink.write(bytes); });
        return error ? error->description : QString();
    }

    void openToEverybody()
    {
        for (const fs::path &each : {fs::path(directory->path().toStdString()), location.folder, folder}) {
            if (fs::exists(each))
                fs::permissions(each, fs::perms(0777));
        }
    }

    void verifyOnlyTheOldFile()
    {
        QCOMPARE(contents(path), "old");
        QCOMPARE(filesIn(folder), {u"data.json"_s});
    }

private Q_SLOTS:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        location.folder = fs::path(directory->path().toStdString()) / "support";
        folder = location.folder / "Pelko";
        path = folder / "data.json";
        flushError = folderFlushError = renameError = 0;
    }

    void cleanup() { fs::remove_all(location.folder); } // QTemporaryDir fails at names that are not UTF-8

    // The good days

    void aMissingFileIsNoError()
    {
        QVERIFY(std::holds_alternative<DocumentFile::Missing>(LocalDocumentFile(location).read()));
        QCOMPARE(modeOf(folder), 0700);
        QVERIFY(!fs::exists(path));
    }

    void whatIsWrittenIsRead()
    {
        QByteArray bytes(3'000'000, 'x');
        bytes[7] = '\0';
        QCOMPARE(replace(bytes), u""_s);
        QCOMPARE(read(), bytes);
        QCOMPARE(replace(""), u""_s);
        QCOMPARE(read(), "");
        QCOMPARE(filesIn(folder), {u"data.json"_s});
    }

    void aNewFileIsForItsOwnerOnlyWhateverTheMask()
    {
        const mode_t mask = ::umask(0);
        QCOMPARE(replace(), u""_s);
        ::umask(mask);
        QCOMPARE(modeOf(path), 0600);
        QCOMPARE(modeOf(folder), 0700);
    }

    void anOldFileKeepsItsMode()
    {
        put(path, "old");
        fs::permissions(path, fs::perms(0640));
        QCOMPARE(replace(), u""_s);
        QCOMPARE(modeOf(path), 0640);
    }

    void aLinkedFileStaysALink()
    {
        const fs::path target = location.folder / "elsewhere" / "mine.json";
        put(target, "old");
        fs::create_directories(folder);
        fs::create_symlink("../elsewhere/mine.json", path);
        QCOMPARE(replace(), u""_s);
        QVERIFY(fs::is_symlink(path));
        QCOMPARE(contents(target), "new");
        QCOMPARE(read(), "new");
        QCOMPARE(filesIn(target.parent_path()), {u"mine.json"_s});
    }

    void aLinkToAFileThatIsNotThereYetIsFollowed()
    {
        fs::create_directories(folder);
        fs::create_symlink(location.folder / "later.json", path);
        QCOMPARE(replace(), u""_s);
        QVERIFY(fs::is_symlink(path));
        QCOMPARE(contents(location.folder / "later.json"), "new");
    }

    void aLinkedFolderIsWrittenInto()
    {
        const fs::path target = location.folder / "elsewhere";
        fs::create_directories(target);
        fs::create_symlink(target, folder);
        QCOMPARE(replace(), u""_s);
        QVERIFY(fs::is_symlink(folder));
        QCOMPARE(contents(target / "data.json"), "new");
    }

    void aFolderWhoseNameIsNotUtf8IsWrittenInto()
    {
        location.folder /= "J\xF6rg";
        QCOMPARE(replace(), u""_s);
        QCOMPARE(contents(location.folder / "Pelko" / "data.json"), "new");
        location.folder = location.folder.parent_path();
    }

    void aRemovedFolderIsMadeAgain()
    {
        QCOMPARE(replace("first"), u""_s);
        fs::remove_all(location.folder);
        QCOMPARE(replace("second"), u""_s);
        QCOMPARE(read(), "second");
    }

    // Things in the way

    void aFolderInTheWayIsAnError()
    {
        fs::create_directories(path);
        QCOMPARE(readError(), u"Is a directory"_s);
        QCOMPARE(replace(), u"Is a directory"_s);
        QVERIFY(fs::is_directory(path));
        QCOMPARE(filesIn(folder), {});
    }

    void aPipeInTheWayIsAnErrorAndNotWaitedFor()
    {
        fs::create_directories(folder);
        QCOMPARE(::mkfifo(path.c_str(), 0600), 0);
        QCOMPARE(readError(), u"Invalid argument"_s);
        QCOMPARE(replace(), u"Invalid argument"_s);
        QVERIFY(fs::is_fifo(path));
    }

    void aDeviceInTheWayIsAnErrorAndNotRead()
    {
        fs::create_directories(folder);
        fs::create_symlink("/dev/zero", path);
        QCOMPARE(readError(), u"Invalid argument"_s);
        QCOMPARE(replace(), u"Invalid argument"_s);
    }

    void aCircleOfLinksIsAnError()
    {
        fs::create_directories(folder);
        fs::create_symlink("data.json", path);
        QCOMPARE(readError(), u"Too many levels of symbolic links"_s);
        QCOMPARE(replace(), u"Too many levels of symbolic links"_s);
        QVERIFY(fs::is_symlink(path));
    }

    void aFileInPlaceOfTheFolderIsAnError()
    {
        put(folder, "not a folder");
        QCOMPARE(readError(), u"Not a directory"_s);
        QCOMPARE(replace(), u"Not a directory"_s);
        QCOMPARE(contents(folder), "not a folder");
    }

    void aFileTooLargeForTheParserIsAnErrorBeforeItIsRead()
    {
        put(path, "");
        fs::resize_file(path, 1'000'000'000'000);
        QCOMPARE(readError(), u"File too large"_s);
    }

    // Missing rights

    void aReadOnlyFileStays()
    {
        put(path, "old");
        openToEverybody();
        fs::permissions(path, fs::perms(0444));
        const Unprivileged user;
        QVERIFY(user.worked);
        QCOMPARE(read(), "old");
        QCOMPARE(replace(), u"Permission denied"_s);
        verifyOnlyTheOldFile();
    }

    void aReadOnlyFolderKeepsItsFile()
    {
        put(path, "old");
        openToEverybody();
        fs::permissions(folder, fs::perms(0555));
        const Unprivileged user;
        QVERIFY(user.worked);
        QCOMPARE(replace(), u"Permission denied"_s);
        verifyOnlyTheOldFile();
    }

    void aFolderThatCannotBeMadeIsAnErrorOnlyWhenWriting()
    {
        fs::create_directories(location.folder);
        openToEverybody();
        fs::permissions(location.folder, fs::perms(0555));
        const Unprivileged user;
        QVERIFY(user.worked);
        QVERIFY(std::holds_alternative<DocumentFile::Missing>(LocalDocumentFile(location).read()));
        QCOMPARE(replace(), u"No such file or directory"_s);
    }

    void aFileOfSomebodyElseCannotBeRead()
    {
        put(path, "old");
        openToEverybody();
        fs::permissions(path, fs::perms(0));
        const Unprivileged user;
        QVERIFY(user.worked);
        QCOMPARE(readError(), u"Permission denied"_s);
    }

    // A failing disk

    void aFullDiskKeepsTheOldFile()
    {
        put(path, "old");
        QString told;
        {
            const SmallFiles limit(100'000); // the same road as a full disk: a write that comes back short
            told = replace(QByteArray(300'000, 'x'));
        }
        QCOMPARE(told, u"File too large"_s);
        verifyOnlyTheOldFile();
        QCOMPARE(replace(), u""_s);
        QCOMPARE(read(), "new");
    }

    void aFailureBeforeTheRenamingKeepsTheOldFile_data()
    {
        QTest::addColumn<int *>("failing");
        QTest::newRow("flushing") << &flushError;
        QTest::newRow("renaming") << &renameError;
    }

    void aFailureBeforeTheRenamingKeepsTheOldFile()
    {
        QFETCH(int *, failing);
        put(path, "old");
        *failing = EIO;
        QCOMPARE(replace(), u"Input/output error"_s);
        verifyOnlyTheOldFile();
        *failing = 0;
        QCOMPARE(replace(), u""_s);
        QCOMPARE(read(), "new");
    }

    void aFailureToFlushTheFolderIsTold()
    {
        put(path, "old");
        folderFlushError = EIO;
        QCOMPARE(replace(), u"Input/output error"_s);
        QCOMPARE(filesIn(folder), {u"data.json"_s});
    }

    void aFileSystemThatCannotFlushFoldersIsNoError()
    {
        folderFlushError = EINVAL;
        QCOMPARE(replace(), u""_s);
        QCOMPARE(read(), "new");
    }

    void anErrorOfTheProducerKeepsTheOldFile()
    {
        put(path, "old");
        const auto error = LocalDocumentFile(location).replace([](ByteSink &sink) {
            const auto sinkError = sink.write("half of the n");
            return sinkError ? sinkError : FileError{u"changed my mind"_s};
        });
        QVERIFY(error);
        QCOMPARE(error->description, u"changed my mind"_s);
        verifyOnlyTheOldFile();
    }

    // After a killed process

    void whatAKilledSaveLeftBehindIsRemovedByTheNextReading()
    {
        put(path, "old");
        put(folder / ".data.json.saving-Ab12Cd", "half");
        put(folder / ".data.json.saving-by-hand", "somebody's own");
        put(folder / ".data.json.saving-beingW", "in progress");
        const int busy = ::open((folder / ".data.json.saving-beingW").c_str(), O_RDONLY);
        QCOMPARE(::flock(busy, LOCK_EX), 0);
        QCOMPARE(read(), "old");
        ::close(busy);
        QStringList left = filesIn(folder);
        left.sort();
        QCOMPARE(left, QStringList(
                           {u".data.json.saving-beingW"_s, u".data.json.saving-by-hand"_s, u"data.json"_s}));
    }
};

QTEST_GUILESS_MAIN(TestLocalDocumentFile)
#include "tst_LocalDocumentFile.moc"
