#include "Platform/LocalPictureFiles.h"
#include "Platform/Unprivileged.h"
#include "support/TestProgram.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <filesystem>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class TestLocalPictureFiles : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> folder;

    std::filesystem::path path(const QString &name) const
    {
        return QFile::encodeName(folder->filePath(name)).toStdString();
    }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// Returns the result, which must arrive soon.
    static std::optional<QByteArray> read(const std::filesystem::path &file)
    {
        LocalPictureFiles files;
        bool isDone = false;
        std::optional<QByteArray> result;
        const ScheduledCall request = files.read(file, [&](const std::optional<QByteArray> &bytes) {
            result = bytes;
            isDone = true;
        });
        [&] { QTRY_VERIFY(isDone); }();
        return result;
    }

private Q_SLOTS:
    void init() { folder = std::make_unique<QTemporaryDir>(); }

    void theBytesAreHandedOverAsTheyAre()
    {
        QByteArray bytes;
        for (int i = 0; i < 3'000'000; ++i)
            bytes.append(char(i * 7));
        write(u"photo.jpg"_s, bytes);
        QCOMPARE(read(path(u"photo.jpg"_s)), bytes);
    }

    void anEmptyFileHasNoBytesButIsRead()
    {
        write(u"empty.png"_s, {});
        const auto bytes = read(path(u"empty.png"_s));
        QVERIFY(bytes.has_value());
        QVERIFY(bytes->isEmpty());
    }

    void aNameThatIsNoTextIsFoundAllTheSame()
    {
        const std::filesystem::path odd = path({}) / "odd\xff name.png";
        const FILE *made = std::fopen(odd.c_str(), "w");
        QVERIFY(made);
        std::fclose(const_cast<FILE *>(made));
        const bool isRead = read(odd).has_value();
        std::filesystem::remove(odd); // which the temporary folder could not name
        QVERIFY(isRead);
    }

    void refusesUnreadableFiles_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"missing", "folder", "pipe", "socket", "/dev/zero", "/dev/tty"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
    }

    void refusesUnreadableFiles()
    {
        QFETCH(const QString, kind);
        const std::filesystem::path file =
            kind.startsWith(u'/') ? std::filesystem::path(kind.toStdString()) : path(kind);
        if (kind == u"folder")
            QCOMPARE(::mkdir(file.c_str(), 0700), 0);
        if (kind == u"pipe")
            QCOMPARE(::mkfifo(file.c_str(), 0600), 0);
        if (kind == u"socket") {
            sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
            std::strncpy(address.sun_path, file.c_str(), sizeof(address.sun_path) - 1);
            QCOMPARE(::bind(::socket(AF_UNIX, SOCK_STREAM, 0), reinterpret_cast<sockaddr *>(&address),
                            sizeof(address)),
                     0);
        }
        QCOMPARE(read(file), std::nullopt);
    }

    void aFileThatOnlyOthersMayReadIsRefused()
    {
        QCOMPARE(::chmod(path({}).c_str(), 0755), 0);
        write(u"open"_s, "shared");
        write(u"forbidden"_s, "secret");
        QCOMPARE(::chmod(path(u"forbidden"_s).c_str(), 0), 0);
        const Unprivileged user;
        QVERIFY(user.worked);
        QVERIFY(read(path(u"open"_s)));
        QCOMPARE(read(path(u"forbidden"_s)), std::nullopt);
    }

    void aFileLargerThanTheDataFileCanHoldIsRefusedAtOnce()
    {
        write(u"huge"_s, {});
        QCOMPARE(::truncate(path(u"huge"_s).c_str(), off_t(200) << 30), 0);
        QElapsedTimer time;
        time.start();
        QCOMPARE(read(path(u"huge"_s)), std::nullopt);
        QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed())));
    }

    void askingReturnsBeforeTheFileIsRead()
    {
        write(u"large"_s, {});
        QCOMPARE(::truncate(path(u"large"_s).c_str(), 300 << 20), 0);
        LocalPictureFiles files;
        bool isDone = false;
        const ScheduledCall request =
            files.read(path(u"large"_s), [&](const std::optional<QByteArray> &) { isDone = true; });
        QVERIFY(!isDone);
        QTRY_VERIFY_WITH_TIMEOUT(isDone, 20'000);
    }

    void aDroppedRequestIsNeverAnswered()
    {
        write(u"photo.jpg"_s, "bytes");
        bool isDone = false;
        {
            LocalPictureFiles files;
            ScheduledCall request =
                files.read(path(u"photo.jpg"_s), [&](const std::optional<QByteArray> &) { isDone = true; });
            request.cancel();
        } // waits for the reading thread
        QCoreApplication::processEvents();
        QVERIFY(!isDone);
    }
};

PELKO_TEST(TestLocalPictureFiles)
#include "tst_LocalPictureFiles.moc"
