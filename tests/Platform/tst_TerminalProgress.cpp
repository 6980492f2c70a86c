#include "Platform/TerminalProgress.h"
#include "support/ManualClock.h"
#include "support/TestProgram.h"

#include <QTemporaryFile>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{
/// Both ends of a pseudoterminal.
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

QString exportingFiles(qsizetype done, qsizetype all)
{
    return u"Exporting %1 of %2 files"_s.arg(done).arg(all);
}

class TestTerminalProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aShortWorkShowsNoProgress()
    {
        const Terminal terminal;
        QVERIFY2(terminal.stream, "no pseudo terminal: is /dev/pts mounted?");
        ManualClock clock;
        {
            TerminalProgress progress(exportingFiles, clock, terminal.stream);
            clock.time += 0.39;
            progress.show(1, 2);
        }
        QCOMPARE(terminal.shown(), QByteArray());
    }

    void aLongWorkShowsItsProgressAndTakesItAway()
    {
        const Terminal terminal;
        QVERIFY2(terminal.stream, "no pseudo terminal: is /dev/pts mounted?");
        ManualClock clock;
        {
            TerminalProgress progress(exportingFiles, clock, terminal.stream);
            clock.time += 0.5;
            progress.show(12, 100);
            QCOMPARE(terminal.shown(), "\rExporting 12 of 100 files");
        }
        QCOMPARE(terminal.shown(), "\r\033[K");
    }

    void theLineChangesNoOftenerThanItIsRead()
    {
        const Terminal terminal;
        QVERIFY2(terminal.stream, "no pseudo terminal: is /dev/pts mounted?");
        ManualClock clock;
        TerminalProgress progress(exportingFiles, clock, terminal.stream);
        clock.time += 0.5;
        progress.show(12, 100);
        clock.time += 0.05;
        progress.show(13, 100);
        QCOMPARE(terminal.shown(), "\rExporting 12 of 100 files");
        clock.time += 0.1;
        progress.show(14, 100);
        QCOMPARE(terminal.shown(), "\rExporting 14 of 100 files");
    }

    void printsNoProgressToAFile()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        std::FILE *stream = std::fopen(qPrintable(file.fileName()), "w");
        ManualClock clock;
        {
            TerminalProgress progress(exportingFiles, clock, stream);
            clock.time += 0.5;
            progress.show(12, 100);
        }
        std::fclose(stream);
        QCOMPARE(file.readAll(), QByteArray());
    }
};

PELKO_TEST(TestTerminalProgress)
#include "tst_TerminalProgress.moc"
