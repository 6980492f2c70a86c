#include "Models/LocalTime.h"
#include "Tasks/ClockText.h"
#include "support/TestProgram.h"

using namespace Qt::StringLiterals;

namespace
{
const QLocale english(QLocale::English, QLocale::UnitedStates);

Timestamp at(const QString &time, const QTimeZone &zone = QTimeZone::utc())
{
    QDateTime moment = QDateTime::fromString(time, Qt::ISODate);
    moment.setTimeZone(zone);
    return timestampOf(moment);
}
} // namespace

class TestClockText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasADialOfTwelve_data();
    void hasADialOfTwelve();
    void namesTheDayInFullAndTheMonthInShort();
    void isReadWhereTheUserIs();
    void speaksTheLanguageOfTheUser();
};

void TestClockText::hasADialOfTwelve_data()
{
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("marker");

    QTest::newRow("midnight") << u"2026-10-15T00:00:00"_s << u"12:00"_s << u"AM"_s;
    QTest::newRow("no zero before the hour") << u"2026-10-15T07:42:59"_s << u"7:42"_s << u"AM"_s;
    QTest::newRow("a zero before the minute") << u"2026-10-15T09:05:00"_s << u"9:05"_s << u"AM"_s;
    QTest::newRow("last of the morning") << u"2026-10-15T11:59:59"_s << u"11:59"_s << u"AM"_s;
    QTest::newRow("noon") << u"2026-10-15T12:00:00"_s << u"12:00"_s << u"PM"_s;
    QTest::newRow("afternoon") << u"2026-10-15T13:01:00"_s << u"1:01"_s << u"PM"_s;
    QTest::newRow("last of the day") << u"2026-10-15T23:59:00"_s << u"11:59"_s << u"PM"_s;
}

void TestClockText::hasADialOfTwelve()
{
    QFETCH(const QString, moment);
    QFETCH(const QString, time);
    QFETCH(const QString, marker);

    QCOMPARE(ClockText::time(at(moment), QTimeZone::utc(), english), time);
    QCOMPARE(ClockText::marker(at(moment), QTimeZone::utc(), english), marker);
}

void TestClockText::namesTheDayInFullAndTheMonthInShort()
{
    QCOMPARE(ClockText::date(at(u"2025-10-16T07:42:00"_s), QTimeZone::utc(), english), u"Thursday, Oct 16"_s);
    QCOMPARE(ClockText::date(at(u"2026-03-07T07:42:00"_s), QTimeZone::utc(), english), u"Saturday, Mar 7"_s);
}

void TestClockText::isReadWhereTheUserIs()
{
    const QTimeZone auckland("Pacific/Auckland");
    const Timestamp noonInLondon = at(u"2026-07-01T11:00:00"_s);

    QCOMPARE(ClockText::time(noonInLondon, auckland, english), u"11:00"_s);
    QCOMPARE(ClockText::marker(noonInLondon, auckland, english), u"PM"_s);
    QCOMPARE(ClockText::date(noonInLondon + 3600, auckland, english), u"Thursday, Jul 2"_s);
}

void TestClockText::speaksTheLanguageOfTheUser()
{
    const QLocale german(QLocale::German, QLocale::Germany);

    QCOMPARE(ClockText::date(at(u"2026-03-07T07:42:00"_s), QTimeZone::utc(), german), u"Samstag, März 7"_s);
}

PELKO_TEST(TestClockText)
#include "tst_ClockText.moc"
