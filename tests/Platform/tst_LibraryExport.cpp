#include "DataFolder.h"
#include "Platform/LibraryExport.h"
#include "Platform/TerminalProgress.h"
#include "support/DataFileText.h"
#include "support/PageText.h"
#include "support/TestProgram.h"

#include <QTemporaryFile>

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{
/// Both ends of a line to a screen.
struct Terminal {
    Terminal() : master(::posix_openpt(O_RDWR | O_NOCTTY))
    {
        ::grantpt(master);
        ::unlockpt(master);
        stream = std::fopen(::ptsname(master), "w");
    }
    ~Terminal()
    {
        if (stream)
            std::fclose(stream);
        ::close(master);
    }
    Q_DISABLE_COPY_MOVE(Terminal)

    QByteArray shown() const
    {
        char text[256];
        ::fcntl(master, F_SETFL, O_NONBLOCK);
        const ssize_t count = ::read(master, text, sizeof text);
        return {text, std::max<ssize_t>(count, 0)};
    }

    int master;
    std::FILE *stream = nullptr;
};
} // namespace

class TestLibraryExport : public QObject
{
    Q_OBJECT

    std::unique_ptr<DataFolder> data;

    QString target() const { return QString::fromStdString(data->support / "my notes"); }
    CommandLineAnswer exportTo(ExportFolder::Existing existing = ExportFolder::Existing::keep) const
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
        const CommandLineAnswer expected{u"Exported 1 page and 1 picture to %1\n"_s.arg(target())};
        QCOMPARE(exportTo(), expected);
        QCOMPARE(DataFolder::filesIn(data->support / "my notes" / "work"),
                 (QStringList{u"Ridge 1.bin"_s, u"Ridge.md"_s}));
    }

    void aSecondTimeItHasToBeAskedToReplace()
    {
        exportTo();
        QCOMPARE(exportTo(),
                 (CommandLineAnswer{u"pelko: work/Ridge.md and 1 more are there already. Nothing was "
                                    "written; --overwrite replaces files.\n"_s,
                                    1}));
        QCOMPARE(exportTo(ExportFolder::Existing::replace).exitCode, 0);
    }

    void anEmptyLibraryIsExportedToo()
    {
        std::filesystem::remove(data->file());
        QCOMPARE(exportTo(), CommandLineAnswer{u"Exported 0 pages to %1\n"_s.arg(target())});
    }

    void whatCannotBeReadIsNotExported()
    {
        DataFolder::put(data->file(), "[not json");
        QCOMPARE(exportTo(), (CommandLineAnswer{u"pelko: Failed to load your documents.\n"_s, 1}));
        QVERIFY(!std::filesystem::exists(data->support / "my notes"));
    }

    void whatCannotBeWrittenIsTold()
    {
        DataFolder::put(data->support / "my notes", "a file");
        QCOMPARE(exportTo(), (CommandLineAnswer{u"pelko: Export failed: Not a directory\n"_s, 1}));
    }

    void aShortWorkShowsNoProgress()
    {
        const Terminal terminal;
        QVERIFY2(terminal.stream, "no pseudo terminal: is /dev/pts mounted?");
        {
            TerminalProgress progress(u"Exporting"_s, u"files"_s, terminal.stream);
            progress.show(1, 2);
        }
        QCOMPARE(terminal.shown(), QByteArray());
    }

    void aLongWorkShowsItsProgressAndTakesItAway()
    {
        const Terminal terminal;
        QVERIFY2(terminal.stream, "no pseudo terminal: is /dev/pts mounted?");
        {
            TerminalProgress progress(u"Exporting"_s, u"files"_s, terminal.stream);
            QTest::qSleep(450); // the patience of whoever waits
            progress.show(12, 100);
            progress.show(13, 100);
            QCOMPARE(terminal.shown(), "\rExporting 12 of 100 files");
        }
        QCOMPARE(terminal.shown(), "\r\033[K");
    }

    void nobodyReadsProgressInAFile()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        std::FILE *stream = std::fopen(qPrintable(file.fileName()), "w");
        {
            TerminalProgress progress(u"Exporting"_s, u"files"_s, stream);
            QTest::qSleep(450);
            progress.show(12, 100);
        }
        std::fclose(stream);
        QCOMPARE(file.readAll(), QByteArray());
    }

    // The last one: the signal is remembered.
    void anInterruptLeavesNothing()
    {
        exportTo(); // from here on signals are taken note of
        std::filesystem::remove_all(data->support / "my notes");
        std::raise(SIGTERM);
        QCOMPARE(exportTo(),
                 (CommandLineAnswer{u"pelko: Export failed: Operation canceled\n"_s, 128 + SIGTERM}));
        QVERIFY(!std::filesystem::exists(data->support / "my notes"));
    }
};

PELKO_TEST(TestLibraryExport)
#include "tst_LibraryExport.moc"
