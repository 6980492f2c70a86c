#include "DataFolder.h"
#include "Unprivileged.h"
#include "support/TestProgram.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace
{
int modeOf(const fs::path &file)
{
    return int(fs::status(file).permissions());
}
} // namespace

class TestLocalDocumentFile : public QObject
{
    Q_OBJECT

    std::unique_ptr<DataFolder> disk;

private Q_SLOTS:
    void init() { disk = std::make_unique<DataFolder>(); }
    void cleanup() { disk.reset(); }

    // The good days

    void aMissingFileIsNoError()
    {
        QVERIFY(disk->isMissing());
        QCOMPARE(modeOf(disk->folder()), 0700);
        QVERIFY(!fs::exists(disk->file()));
    }

    void whatIsWrittenIsRead()
    {
        QByteArray bytes(3'000'000, 'x');
        bytes[7] = '\0';
        QCOMPARE(disk->replace(bytes), u""_s);
        QCOMPARE(disk->read(), bytes);
        QCOMPARE(disk->replace(""), u""_s);
        QCOMPARE(disk->read(), "");
        QCOMPARE(DataFolder::filesIn(disk->folder()), {u"data.json"_s});
    }

    void replacementsInARowNeedNotBeConfirmedOneByOne()
    {
        LocalDocumentFile file(*disk);
        for (char letter = 'a'; letter <= 'z'; ++letter) {
            const QByteArray bytes(100'000, letter);
            QVERIFY(!file.replace([&bytes](ByteSink &sink) { return sink.write(bytes); }));
            QCOMPARE(disk->read(), bytes);
        }
        QVERIFY(!file.confirm());
        QVERIFY(!file.confirm());
        QCOMPARE(DataFolder::filesIn(disk->folder()), {u"data.json"_s});
    }

    void aNewFileIsForItsOwnerOnlyWhateverTheMask()
    {
        const mode_t mask = ::umask(0);
        QCOMPARE(disk->replace(), u""_s);
        ::umask(mask);
        QCOMPARE(modeOf(disk->file()), 0600);
        QCOMPARE(modeOf(disk->folder()), 0700);
    }

    void aFileThatIsBeingWrittenIsForItsOwnerOnlyWhateverTheMask()
    {
        const mode_t mask = ::umask(0);
        int mode = 0;
        const auto error = LocalDocumentFile(*disk).replace([&](ByteSink &) -> std::optional<FileError> {
            mode = modeOf(*fs::directory_iterator(disk->folder()));
            return {};
        });
        ::umask(mask);
        QVERIFY(!error);
        QCOMPARE(mode, 0600);
    }

    void anOldFileKeepsItsMode()
    {
        DataFolder::put(disk->file(), "old");
        fs::permissions(disk->file(), fs::perms(0640));
        QCOMPARE(disk->replace(), u""_s);
        QCOMPARE(modeOf(disk->file()), 0640);
    }

    void aLinkedFileStaysALink()
    {
        const fs::path target = disk->support / "elsewhere" / "mine.json";
        DataFolder::put(target, "old");
        fs::create_directories(disk->folder());
        fs::create_symlink("../elsewhere/mine.json", disk->file());
        QCOMPARE(disk->replace(), u""_s);
        QVERIFY(fs::is_symlink(disk->file()));
        QCOMPARE(DataFolder::contents(target), "new");
        QCOMPARE(disk->read(), "new");
        QCOMPARE(DataFolder::filesIn(target.parent_path()), {u"mine.json"_s});
    }

    void aLinkToAFileThatIsNotThereYetIsFollowed()
    {
        fs::create_directories(disk->folder());
        fs::create_symlink(disk->support / "later.json", disk->file());
        QCOMPARE(disk->replace(), u""_s);
        QVERIFY(fs::is_symlink(disk->file()));
        QCOMPARE(DataFolder::contents(disk->support / "later.json"), "new");
    }

    void aLinkedFolderIsWrittenInto()
    {
        const fs::path target = disk->support / "elsewhere";
        fs::create_directories(target);
        fs::create_symlink(target, disk->folder());
        QCOMPARE(disk->replace(), u""_s);
        QVERIFY(fs::is_symlink(disk->folder()));
        QCOMPARE(DataFolder::contents(target / "data.json"), "new");
    }

    void aFolderWhoseNameIsNotUtf8IsWrittenInto()
    {
        disk->support /= "J\xF6rg";
        QCOMPARE(disk->replace(), u""_s);
        QCOMPARE(DataFolder::contents(disk->support / "Pelko" / "data.json"), "new");
        disk->support = disk->support.parent_path();
    }

    void aRemovedFolderIsMadeAgain()
    {
        QCOMPARE(disk->replace("first"), u""_s);
        fs::remove_all(disk->support);
        QCOMPARE(disk->replace("second"), u""_s);
        QCOMPARE(disk->read(), "second");
    }

    // Things in the way

    void aFolderInTheWayIsAnError()
    {
        fs::create_directories(disk->file());
        QCOMPARE(disk->readError(), u"Is a directory"_s);
        QCOMPARE(disk->replace(), u"Is a directory"_s);
        QVERIFY(fs::is_directory(disk->file()));
        QCOMPARE(DataFolder::filesIn(disk->folder()), {});
    }

    void aPipeInTheWayIsAnErrorAndNotWaitedFor()
    {
        fs::create_directories(disk->folder());
        QCOMPARE(::mkfifo(disk->file().c_str(), 0600), 0);
        QCOMPARE(disk->readError(), u"Invalid argument"_s);
        QCOMPARE(disk->replace(), u"Invalid argument"_s);
        QVERIFY(fs::is_fifo(disk->file()));
    }

    void aDeviceInTheWayIsAnErrorAndNotRead()
    {
        fs::create_directories(disk->folder());
        fs::create_symlink("/dev/zero", disk->file());
        QCOMPARE(disk->readError(), u"Invalid argument"_s);
        QCOMPARE(disk->replace(), u"Invalid argument"_s);
    }

    void aCircleOfLinksIsAnError()
    {
        fs::create_directories(disk->folder());
        fs::create_symlink("data.json", disk->file());
        QCOMPARE(disk->readError(), u"Too many levels of symbolic links"_s);
        QCOMPARE(disk->replace(), u"Too many levels of symbolic links"_s);
        QVERIFY(fs::is_symlink(disk->file()));
    }

    void aFileInPlaceOfTheFolderIsAnError()
    {
        DataFolder::put(disk->folder(), "not a folder");
        QCOMPARE(disk->readError(), u"Not a directory"_s);
        QCOMPARE(disk->replace(), u"Not a directory"_s);
        QCOMPARE(DataFolder::contents(disk->folder()), "not a folder");
    }

    void aFileTooLargeForTheParserIsAnErrorBeforeItIsRead()
    {
        DataFolder::put(disk->file(), "");
        fs::resize_file(disk->file(), 1'000'000'000'000);
        QCOMPARE(disk->readError(), u"File too large"_s);
    }

    // Missing rights

    void aReadOnlyFileStays()
    {
        DataFolder::put(disk->file(), "old");
        disk->openToEverybody();
        fs::permissions(disk->file(), fs::perms(0444));
        const Unprivileged user;
        QVERIFY(user.worked);
        QCOMPARE(disk->read(), "old");
        QCOMPARE(disk->replace(), u"Permission denied"_s);
        disk->verifyOnlyTheOldFile();
    }

    void aReadOnlyFolderKeepsItsFile()
    {
        DataFolder::put(disk->file(), "old");
        disk->openToEverybody();
        fs::permissions(disk->folder(), fs::perms(0555));
        const Unprivileged user;
        QVERIFY(user.worked);
        QCOMPARE(disk->replace(), u"Permission denied"_s);
        disk->verifyOnlyTheOldFile();
    }

    void aFolderThatCannotBeMadeIsAnErrorOnlyWhenWriting()
    {
        fs::create_directories(disk->support);
        disk->openToEverybody();
        fs::permissions(disk->support, fs::perms(0555));
        const Unprivileged user;
        QVERIFY(user.worked);
        QVERIFY(disk->isMissing());
        QVERIFY(!LocalDocumentFile(*disk).canReplace());
        QCOMPARE(disk->replace(), u"Permission denied"_s);
    }

    void aSupportFolderThatCannotBeMadeIsTheCauseThatIsTold()
    {
        fs::create_directories(disk->support);
        disk->openToEverybody();
        fs::permissions(disk->support, fs::perms(0555));
        disk->support /= ".local/share";
        const Unprivileged user;
        QVERIFY(user.worked);
        QCOMPARE(disk->replace(), u"Permission denied"_s);
        disk->support = disk->support.parent_path().parent_path();
    }

    void aFolderWithRightsAndRoomLooksWritable()
    {
        QVERIFY(LocalDocumentFile(*disk).canReplace());
        DataFolder::put(disk->file(), "old");
        QVERIFY(LocalDocumentFile(*disk).canReplace());
    }

    void aFileThatFitsNoSecondTimeOnTheDiskLooksUnwritable()
    {
        DataFolder::put(disk->file(), "");
        const fs::space_info space = fs::space(disk->folder());
        fs::resize_file(disk->file(), space.available + 1024 * 1024); // takes no room itself
        QVERIFY(!LocalDocumentFile(*disk).canReplace());
    }

    void aFolderThatBecomesWritableAgainTakesTheNextSave()
    {
        DataFolder::put(disk->file(), "old");
        disk->openToEverybody();
        fs::permissions(disk->folder(), fs::perms(0555));
        {
            const Unprivileged user;
            QVERIFY(user.worked);
            QCOMPARE(disk->replace(), u"Permission denied"_s);
            QVERIFY(!LocalDocumentFile(*disk).canReplace());
        }
        fs::permissions(disk->folder(), fs::perms(0777));
        fs::permissions(disk->file(), fs::perms(0666));
        const Unprivileged user;
        QCOMPARE(disk->replace(), u""_s);
        QCOMPARE(disk->read(), "new");
    }

    void aFileOfSomebodyElseCannotBeRead()
    {
        DataFolder::put(disk->file(), "old");
        disk->openToEverybody();
        fs::permissions(disk->file(), fs::perms(0));
        const Unprivileged user;
        QVERIFY(user.worked);
        QCOMPARE(disk->readError(), u"Permission denied"_s);
    }
};

PELKO_TEST(TestLocalDocumentFile)
#include "tst_LocalDocumentFile.moc"
