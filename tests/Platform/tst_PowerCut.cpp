#include "DataFolder.h"
#include "Platform/LocalDocumentFile.h"
#include "Platform/RecordedDisk.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

namespace
{
/// Checks all states of the disk after a power cut at any point of `events`.
void verifyEveryCutLeavesAWholeVersion(const std::vector<DiskEvent> &events, const QByteArrayList &versions)
{
    CrashedDisk disk(versions.first());
    qsizetype finished = 0; // saves that have returned
    for (const DiskEvent &event : events) {
        disk.apply(event);
        finished += event.kind == DiskEvent::Kind::returned;
        for (const QByteArray &survivor : disk.survivors()) {
            const qsizetype version = versions.indexOf(survivor);
            QVERIFY2(version >= 0, "a torn file");
            QVERIFY2(version >= finished, "a version that was promised is gone");
        }
    }
}

/// Returns versions of different sizes with different contents.
QByteArray version(int number)
{
    return QByteArray::number(number) + ':' + QByteArray(number * 37'777 % 700'000, char('a' + number % 26));
}

/// Writes in pieces, as the store does.
bool save(const DataFolder &folder, const QByteArray &bytes)
{
    LocalDocumentFile file(folder);
    const auto error = file.replace([&bytes](ByteSink &sink) {
        constexpr qsizetype piece = 100'000;
        std::optional<FileError> failure;
        for (qsizetype at = 0; at < bytes.size() && !failure; at += piece)
            failure = sink.write(QByteArrayView(bytes).sliced(at, std::min(piece, bytes.size() - at)));
        return failure;
    });
    return !error && !file.confirm();
}
} // namespace

/// After a power cut, any part of the unsynchronised bytes may be lost, and any number of the renames in an
/// unsynchronised folder.
class TestPowerCut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWholeVersionIsLeftWhereverTheCurrentFails()
    {
        DataFolder folder;
        QByteArrayList versions{version(0)};
        QVERIFY(save(folder, versions.first()));
        RecordedDisk recording(folder.folder());
        for (int number = 1; number <= 30; ++number) {
            versions.append(version(number));
            QVERIFY(save(folder, versions.last()));
            recording.add({.kind = DiskEvent::Kind::returned});
        }
        QVERIFY(recording.events().size() > 30 * 5); // written, synchronised, renamed, synchronised, returned
        verifyEveryCutLeavesAWholeVersion(recording.events(), versions);
    }

    void lessCareWouldBeNoticed_data()
    {
        using Kind = DiskEvent::Kind;
        QTest::addColumn<int>("left");
        QTest::newRow("without synchronising the file") << int(Kind::fileSynchronised);
        QTest::newRow("without synchronising the folder") << int(Kind::folderSynchronised);
    }

    void lessCareWouldBeNoticed()
    {
        using Kind = DiskEvent::Kind;
        QFETCH(int, left);
        CrashedDisk disk("old");
        for (const DiskEvent &event : {DiskEvent{.kind = Kind::written, .file = "next", .bytes = "new"},
                                       DiskEvent{.kind = Kind::fileSynchronised, .file = "next"},
                                       DiskEvent{.kind = Kind::renamed, .file = "next"},
                                       DiskEvent{.kind = Kind::folderSynchronised}}) {
            if (int(event.kind) != left)
                disk.apply(event);
        }
        const QByteArrayList survivors = disk.survivors();
        QVERIFY(survivors.contains("new"));
        QVERIFY(survivors.size() >
                survivors.count("new")); // torn, or the old one after the save has returned
    }
};

PELKO_TEST(TestPowerCut)
#include "tst_PowerCut.moc"
