#include "Models/LocalTime.h"
#include "Platform/UserPreferences.h"
#include "support/TestProgram.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace
{
const Timestamp midnight = timestampOf(QDateTime(QDate(2026, 11, 21), QTime(0, 0), QTimeZone::utc()));
} // namespace

class TestUserPreferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void setPersistsToTheNextRun();
    void setWritesToTheDiskAtOnce();
    void startsEmpty();
    void aValueOfAnotherKindIsAbsent_data();
    void aValueOfAnotherKindIsAbsent();
    void aFolderThatCannotBeWrittenIsBorne();
    void theFileLiesInTheFolderForConfiguration();

private:
    QString file() const { return m_folder.filePath(u"Pelko.ini"_s); }
    void write(const QByteArray &text) const;

    QTemporaryDir m_folder;
};

void TestUserPreferences::initTestCase()
{
    QVERIFY(m_folder.isValid());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.path()));
}

void TestUserPreferences::write(const QByteArray &text) const
{
    QFile::remove(file());
    QFile written(file());
    QVERIFY(written.open(QIODevice::WriteOnly));
    written.write(text);
}

void TestUserPreferences::setPersistsToTheNextRun()
{
    {
        UserPreferences preferences(file());
        preferences.setInteger(u"pelko.currentStreak"_s, -9'000'000'000);
        preferences.setDate(u"pelko.lastWriteDate"_s, midnight);
    }
    const UserPreferences preferences(file());
    QCOMPARE(preferences.integer(u"pelko.currentStreak"_s), -9'000'000'000);
    QCOMPARE(preferences.date(u"pelko.lastWriteDate"_s), midnight);
}

void TestUserPreferences::setWritesToTheDiskAtOnce()
{
    UserPreferences preferences(file());
    preferences.setInteger(u"pelko.currentStreak"_s, 12);
    preferences.setDate(u"pelko.lastWriteDate"_s, midnight);

    QFile written(file());
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QByteArray text = written.readAll();
    QVERIFY2(text.contains("pelko.currentStreak=12\n"), text);
    QVERIFY2(text.contains("pelko.lastWriteDate=2026-11-21T00:00:00.000Z\n"), text);
}

void TestUserPreferences::startsEmpty()
{
    const UserPreferences preferences(m_folder.filePath(u"none.ini"_s));
    QCOMPARE(preferences.integer(u"pelko.currentStreak"_s), std::nullopt);
    QCOMPARE(preferences.date(u"pelko.lastWriteDate"_s), std::nullopt);
}

void TestUserPreferences::aValueOfAnotherKindIsAbsent_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("words") << QByteArray("yesterday");
    QTest::newRow("a fraction") << QByteArray("1.5");
    QTest::newRow("beyond 64 bits") << QByteArray("9223372036854775808");
    QTest::newRow("a list") << QByteArray("1, 2");
    QTest::newRow("no such day") << QByteArray("2026-02-30T00:00:00Z");
    QTest::newRow("nothing") << QByteArray("");
    QTest::newRow("bytes") << QByteArray("@ByteArray(3)");
    QTest::newRow("something serialised") << QByteArray("@Variant(\\0\\0\\0\\x7f)");
}

void TestUserPreferences::aValueOfAnotherKindIsAbsent()
{
    QFETCH(const QByteArray, text);
    write("[General]\nvalue=" + text + "\n");

    const UserPreferences preferences(file());
    QCOMPARE(preferences.integer(u"value"_s), std::nullopt);
    QCOMPARE(preferences.date(u"value"_s), std::nullopt);
}

void TestUserPreferences::aFolderThatCannotBeWrittenIsBorne()
{
    write("in the way"); // a file where a folder would have to be
    UserPreferences preferences(file() + u"/Pelko.ini"_s);
    preferences.setInteger(u"pelko.currentStreak"_s, 3);
    QCOMPARE(preferences.integer(u"pelko.currentStreak"_s), 3);
}

void TestUserPreferences::theFileLiesInTheFolderForConfiguration()
{
    UserPreferences preferences;
    preferences.setInteger(u"pelko.currentStreak"_s, 7);

    const UserPreferences kept(m_folder.filePath(u"Pelko/Pelko.ini"_s));
    QCOMPARE(kept.integer(u"pelko.currentStreak"_s), 7);
}

PELKO_TEST(TestUserPreferences)
#include "tst_UserPreferences.moc"
