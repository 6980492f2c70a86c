#include "Platform/SystemDataLocation.h"
#include "support/TestProgram.h"

using Directory = std::optional<std::filesystem::path>;

Q_DECLARE_METATYPE(Directory)

class TestSystemDataLocation : public QObject
{
    Q_OBJECT

    const QByteArray formerHome = qgetenv("HOME");
    const QByteArray formerData = qgetenv("XDG_DATA_HOME");

    static void setEnvironment(const char *name, const QByteArray &value)
    {
        if (value.isNull())
            qunsetenv(name);
        else
            qputenv(name, value);
    }

private Q_SLOTS:
    void cleanup()
    {
        setEnvironment("HOME", formerHome);
        setEnvironment("XDG_DATA_HOME", formerData);
    }

    void theEnvironmentNamesTheDirectory_data()
    {
        const QByteArray none, empty("");
        const Directory inHome("/home/a/.local/share");
        QTest::addColumn<QByteArray>("home");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<Directory>("directory");
        QTest::newRow("home only") << QByteArray("/home/a") << none << inHome;
        QTest::newRow("both") << QByteArray("/home/a") << QByteArray("/data") << Directory("/data");
        QTest::newRow("data only") << none << QByteArray("/data") << Directory("/data");
        QTest::newRow("empty data") << QByteArray("/home/a") << empty << inHome;
        QTest::newRow("relative data") << QByteArray("/home/a") << QByteArray("data") << inHome;
        QTest::newRow("neither") << none << none << Directory();
        QTest::newRow("both empty") << empty << empty << Directory();
        QTest::newRow("relative home") << QByteArray("a") << none << Directory();
        QTest::newRow("not UTF-8") << QByteArray("/\xF6") << none << Directory("/\xF6/.local/share");
    }

    void theEnvironmentNamesTheDirectory()
    {
        QFETCH(QByteArray, home);
        QFETCH(QByteArray, data);
        QFETCH(Directory, directory);
        setEnvironment("HOME", home);
        setEnvironment("XDG_DATA_HOME", data);
        QVERIFY(SystemDataLocation().applicationSupportDirectory() == directory);
    }
};

PELKO_TEST(TestSystemDataLocation)
#include "tst_SystemDataLocation.moc"
