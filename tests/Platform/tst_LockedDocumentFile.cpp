#include "DataFolder.h"
#include "Platform/LockedDocumentFile.h"
#include "Platform/SingleInstance.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace
{
const QStringList plainStart{u"pelko"_s};

std::optional<FileError> saveInto(DocumentFile &file, const QByteArray &bytes)
{
    return file.replace([&bytes](ByteSink &sink) { return sink.write(bytes); });
}

/// A program that has locked its data folder and saved a file there.
struct RunningProgram {
    DataFolder disk;
    SingleInstance instance{disk.folder()};
    LocalDocumentFile localFile{disk};
    LockedDocumentFile file{localFile, instance};
    int folderChanges = 0;
    bool hasStarted = !instance.lockOrForward(plainStart) && instance.isLocked() && !saveInto(file, "first");

    RunningProgram()
    {
        file.onFolderChanged([this] { ++folderChanges; });
    }
};
} // namespace

class TestLockedDocumentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFolderThatStaysIsHeldAndNotLockedAgain()
    {
        RunningProgram program;
        QVERIFY(program.hasStarted && program.instance.holdsFolder());
        QVERIFY(!saveInto(program.file, "second") && !program.file.confirm());
        QCOMPARE(program.folderChanges, 0);
        QCOMPARE(program.disk.read(), "second");
    }

    void aRemovedFolderIsMadeAndLockedAgainByTheNextSave()
    {
        RunningProgram program;
        fs::remove_all(program.disk.folder());
        QVERIFY(!program.instance.holdsFolder());
        QVERIFY(!saveInto(program.file, "second"));
        QVERIFY(program.instance.holdsFolder());
        QCOMPARE(program.folderChanges, 1);
        QCOMPARE(program.disk.read(), "second");
        SingleInstance second(program.disk.folder());
        QVERIFY(second.relock());
    }

    void aFolderThatWasReplacedIsLockedAgain()
    {
        RunningProgram program;
        fs::rename(program.disk.folder(), program.disk.support / "moved");
        DataFolder::put(program.disk.file(), "restored");
        QVERIFY(!program.instance.holdsFolder());
        QVERIFY(!program.file.followFolder());
        QVERIFY(program.instance.holdsFolder());
        QCOMPARE(program.folderChanges, 1);
        QCOMPARE(program.disk.read(), "restored");
    }

    void saveFailsWhileAnotherProcessLocksTheNewFolder()
    {
        RunningProgram program;
        fs::remove_all(program.disk.folder());
        auto other = std::make_unique<SingleInstance>(program.disk.folder());
        QVERIFY(!other->lockOrForward(plainStart));
        DataFolder::put(program.disk.file(), "of the other");
        const auto error = saveInto(program.file, "second");
        QVERIFY(error);
        QCOMPARE(error->description(), u"Another Pelko has opened these documents."_s);
        QCOMPARE(program.disk.read(), "of the other");
        QCOMPARE(program.folderChanges, 0);

        other.reset();
        QVERIFY(!saveInto(program.file, "second"));
        QCOMPARE(program.folderChanges, 1);
    }

    void aSaveIsNotConfirmedInAFolderThatWasRemoved()
    {
        RunningProgram program;
        QVERIFY(!saveInto(program.file, "second"));
        fs::remove_all(program.disk.folder());
        const auto error = program.file.confirm();
        QVERIFY(error);
        QCOMPARE(error->description(), u"The folder of the documents was removed."_s);
    }
};

PELKO_TEST(TestLockedDocumentFile)
#include "tst_LockedDocumentFile.moc"
