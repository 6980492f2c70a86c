#include "DataFolder.h"
#include "Platform/QtScheduler.h"
#include "Platform/SystemClock.h"
#include "Store/AppState.h"
#include "Store/DocumentReader.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QThread>

#include <atomic>
#include <cstring>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
// Version N of the library consists of three pages that are computed from N, so a mixture of two versions is
// detected.

QString contentOf(int version, int page)
{
    const QString line = u"version %1, page %2\n"_s.arg(version).arg(page);
    return line + QString(version * 613 % 20'000, QChar(u'a' + (version + page) % 26));
}

/// Large, so that writing takes a while.
QByteArray pictureOf(int version)
{
    return QByteArray(3'000'000, char(version));
}

/// Returns std::nullopt for a library that is not one complete version.
std::optional<int> versionOf(const QList<PelkoDocument> &documents)
{
    if (documents.isEmpty())
        return 0; // before the first save
    static const QRegularExpression first(u"^version (\\d+),"_s);
    const int version = first.match(documents.first().blocks.first().content).captured(1).toInt();
    for (int page = 0; page < documents.size(); ++page) {
        const Block &block = documents[page].blocks.first();
        if (block.content != contentOf(version, page) || block.imageData != pictureOf(version))
            return std::nullopt;
    }
    return documents.size() == 3 ? std::optional(version) : std::nullopt;
}

/// The messages of the writing process about a version, in order.
struct Report {
    enum class Kind : int {
        typed,
        begun, ///< its save has begun
        saved,
        overdue, ///< its save should have begun
    };
    Kind kind = Kind::typed;
    int version = 0;
};

void tell(Report::Kind kind, int version)
{
    const Report report{kind, version};
    [[maybe_unused]] const ssize_t count = ::write(STDOUT_FILENO, &report, sizeof(report));
}

class ReportingFile : public DocumentFile
{
public:
    ReportingFile(DocumentFile &file, const int &version) : m_file(file), m_version(version) {}

    Contents read() override { return m_file.read(); }
    int begun() const { return m_begun; }
    [[nodiscard]] std::optional<FileError> replace(const Producer &produce) override
    {
        m_begun = m_version;
        tell(Report::Kind::begun, m_version);
        auto error = m_file.replace(produce);
        if (!error)
            tell(Report::Kind::saved, m_version);
        return error;
    }
    [[nodiscard]] std::optional<FileError> confirm() override { return m_file.confirm(); }
    bool canReplace() const override { return m_file.canReplace(); }

private:
    DocumentFile &m_file;
    const int &m_version;
    int m_begun = 0;
};

/// Types in bursts with pauses, like a user, until the process is killed.
class Typist
{
public:
    explicit Typist(const DataLocation &location) : m_disk(location), m_file(m_disk, m_version) {}

    int run()
    {
        m_version = versionOf(m_appState.documents()).value();
        while (m_appState.documents().size() < 3)
            m_appState.createDocument(Space::work);
        const ScheduledCall heartbeat = m_scheduler.every(20ms, [this] {
            if (m_version > m_file.begun() && m_sinceTyping.hasExpired(600))
                tell(Report::Kind::overdue, m_version);
        });
        type();
        return QCoreApplication::exec();
    }

private:
    void type()
    {
        ++m_version;
        for (int page = 0; page < 3; ++page) {
            PelkoDocument document = m_appState.documents()[page];
            document.blocks.first().content = contentOf(m_version, page);
            document.blocks.first().imageData = pictureOf(m_version);
            m_appState.updateDocument(document);
        }
        m_sinceTyping.start();
        tell(Report::Kind::typed, m_version);
        auto *random = QRandomGenerator::global();
        const bool pauses = random->bounded(8) == 0;
        m_next = m_scheduler.after(std::chrono::milliseconds(random->bounded(10, pauses ? 1'500 : 100)),
                                   [this] { type(); });
    }

    int m_version = 0;
    QtScheduler m_scheduler;
    SystemClock m_clock;
    LocalDocumentFile m_disk;
    ReportingFile m_file;
    AppState m_appState{m_scheduler, m_clock, m_file};
    QElapsedTimer m_sinceTyping;
    ScheduledCall m_next;
};

int typeUntilKilled(const char *folder)
{
    struct Location : DataLocation {
        std::filesystem::path folder;
        std::optional<std::filesystem::path> applicationSupportDirectory() const override { return folder; }
    } location;
    location.folder = folder;
    return Typist(location).run();
}

/// Starts a process that writes to a folder and kills it, repeatedly.
class Victims
{
public:
    explicit Victims(const QString &program) : m_program(program) {}

    /// Returns an error if the file is not a valid version after the kill, otherwise an empty text.
    QString killOne()
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(m_program, {u"--type"_s, QString::fromStdString(m_folder.support)});
        QByteArray told = waitForSomeMoment(process);
        process.kill();
        process.waitForFinished(-1);
        told += process.readAllStandardOutput();
        return verify(reportsIn(told));
    }

    int killedWhileSaving() const { return m_killedWhileSaving; }

private:
    /// Every other kill is aimed at a save.
    static QByteArray waitForSomeMoment(QProcess &process)
    {
        auto *random = QRandomGenerator::global();
        process.waitForReadyRead(-1);
        QByteArray told = process.readAllStandardOutput();
        if (random->bounded(2) == 0) {
            QThread::msleep(random->bounded(2'500));
            return told;
        }
        const auto begun = [&told] {
            return std::ranges::count(reportsIn(told), Report::Kind::begun, &Report::kind) > 0;
        };
        while (!begun() && process.waitForReadyRead(-1))
            told += process.readAllStandardOutput();
        QThread::usleep(random->bounded(20'000));
        return told;
    }

    static QList<Report> reportsIn(const QByteArray &told)
    {
        QList<Report> reports(told.size() / qsizetype(sizeof(Report)));
        if (!reports.isEmpty())
            std::memcpy(reports.data(), told.constData(), std::size_t(reports.size()) * sizeof(Report));
        return reports;
    }

    QString verify(const QList<Report> &reports)
    {
        int begun = m_version;
        int saved = m_version;
        int overdue = 0; // one is allowed: a process that was suspended handles all its timers at once
        for (const Report &report : reports) {
            overdue = report.kind == Report::Kind::overdue ? overdue + 1 : 0;
            if (overdue > 1)
                return u"version %1 was not saved in time"_s.arg(report.version);
            if (report.kind == Report::Kind::begun)
                begun = report.version;
            if (report.kind == Report::Kind::saved)
                saved = report.version;
        }
        m_killedWhileSaving += begun > saved;
        const auto documents = m_folder.isMissing() ? QList<PelkoDocument>() : readDocuments(m_folder.read());
        const auto version = documents ? versionOf(*documents) : std::nullopt;
        if (!version)
            return u"the file is torn"_s;
        if (*version != saved && *version != begun)
            return u"version %1 is left, %2 was saved and %3 begun"_s.arg(*version).arg(saved).arg(begun);
        m_version = *version;
        return {};
    }

    QString m_program;
    DataFolder m_folder;
    int m_version = 0;
    int m_killedWhileSaving = 0;
};
} // namespace

/// Kills a process that types and saves. The file must be one complete version: the last one whose save had
/// returned, or the one that was being saved; changes older than half a second must have been saved.
class TestKilledProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKillLeavesAWholeVersion()
    {
        constexpr int lanes = 8;
        const int kills = qEnvironmentVariableIntValue("PELKO_KILLS");
        const int killsEach = std::max(kills / lanes, 5);
        std::array<QString, lanes> faults;
        std::atomic<int> whileSaving = 0;
        std::vector<std::jthread> threads;
        for (QString &fault : faults) {
            threads.emplace_back([&fault, &whileSaving, killsEach] {
                Victims victims(QCoreApplication::applicationFilePath());
                for (int kill = 0; kill < killsEach && fault.isEmpty(); ++kill)
                    fault = victims.killOne();
                whileSaving += victims.killedWhileSaving();
            });
        }
        threads.clear(); // joins them
        for (const QString &fault : faults)
            QCOMPARE(fault, u""_s);
        qInfo("%d kills, %d of them while saving", lanes * killsEach, whileSaving.load());
    }
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "--type") == 0)
        return typeUntilKilled(argv[2]);
    qputenv("QTEST_FUNCTION_TIMEOUT", "3600000"); // ms; a thousand kills take longer than other tests may
    TestKilledProcess test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_KilledProcess.moc"
