#include "DataFolder.h"
#include "Platform/LibraryExport.h"
#include "support/DataFileText.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

class TestLibraryExport : public QObject
{
    Q_OBJECT

    std::unique_ptr<DataFolder> data;

    QString target() const { return QString::fromStdString(data->support / "my notes"); }
    CommandLineResult exportTo(ExportFolder::Existing existing = ExportFolder::Existing::keep) const
    {
        return exportLibrary(*data, {target(), existing});
    }

private Q_SLOTS:
    void init()
    {
        data = std::make_unique<DataFolder>();
        PelkoDocument page = PageText::page({PageText::block('A', BlockType::textLarge, u"Ridge"_s)});
        page.blocks << PageText::image('B');
        DataFolder::put(data->file(), dataFileText({page}).constData());
    }

    void allPagesAreWritten()
    {
        const CommandLineResult expected{u"Exported 1 page and 1 picture to %1\n"_s.arg(target())};
        QCOMPARE(exportTo(), expected);
        QCOMPARE(DataFolder::filesIn(data->support / "my notes" / "work"),
                 (QStringList{u"Ridge 1.bin"_s, u"Ridge.md"_s}));
    }

    void aSecondTimeItHasToBeAskedToReplace()
    {
        exportTo();
        QCOMPARE(exportTo(),
                 (CommandLineResult{u"pelko: work/Ridge.md and 1 more are there already. Nothing was "
                                    "written; --overwrite replaces files.\n"_s,
                                    1}));
        QCOMPARE(exportTo(ExportFolder::Existing::replace).exitCode, 0);
    }

    void anEmptyLibraryIsExportedToo()
    {
        std::filesystem::remove(data->file());
        QCOMPARE(exportTo(), CommandLineResult{u"Exported 0 pages to %1\n"_s.arg(target())});
    }

    void unreadableFileIsNotExported()
    {
        DataFolder::put(data->file(), "[not json");
        QCOMPARE(exportTo(), (CommandLineResult{u"pelko: Failed to load your documents.\n"_s, 1}));
        QVERIFY(!std::filesystem::exists(data->support / "my notes"));
    }

    void writeErrorIsReported()
    {
        DataFolder::put(data->support / "my notes", "a file");
        QCOMPARE(exportTo(), (CommandLineResult{u"pelko: Export failed: Not a directory\n"_s, 1}));
    }

    // The last one: the signal is remembered.
    void interruptLeavesNoFiles()
    {
        exportTo(); // from here on signals are taken note of
        std::filesystem::remove_all(data->support / "my notes");
        std::raise(SIGTERM);
        QCOMPARE(exportTo(),
                 (CommandLineResult{u"pelko: Export failed: Operation canceled\n"_s, 128 + SIGTERM}));
        QVERIFY(!std::filesystem::exists(data->support / "my notes"));
    }
};

PELKO_TEST(TestLibraryExport)
#include "tst_LibraryExport.moc"
