#include "Models/LocalTime.h"
#include "Tasks/WordGoal.h"
#include "Tasks/WritingStreak.h"
#include "support/ManualPreferences.h"
#include "support/TestProgram.h"

#include <limits>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{
const QString lastWriteDate = u"pelko.lastWriteDate"_s;
const QString currentStreak = u"pelko.currentStreak"_s;
const QTimeZone berlin("Europe/Berlin");

Timestamp timeIn(const QString &time, const QTimeZone &zone = berlin)
{
    QDateTime moment = QDateTime::fromString(time, Qt::ISODate);
    moment.setTimeZone(zone);
    return timestampOf(moment);
}

/// The preferences of a user.
struct User {
    ManualPreferences preferences;
    QTimeZone zone = berlin;

    qint64 uses(const QString &time)
    {
        return WritingStreak::currentStreak(preferences, timeIn(time, zone), zone);
    }
};
} // namespace

class TestWritingStreak : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstUseIsDayOne();
    void threeDaysInARowAreThree();
    void aDayLeftOutBeginsAnew();
    void aDayCountsOnce();
    void midnightMakesADay();
    void aYearEndsLikeAnyDay();
    void aClockSetBackBeginsAnew();
    void theDaysOfATimeChangeAreDays_data();
    void theDaysOfATimeChangeAreDays();
    void aDayWithoutMidnightBeginsWhereItBegins();
    void travelIsReadByTheNewZone();
    void valueThatIsNoDateCountsAsAbsent_data();
    void valueThatIsNoDateCountsAsAbsent();
    void valueThatIsNoNumberCountsAsZero();
    void aStoredZeroOfTodayStaysZero();
    void aDateBeyondAnyCalendarBeginsAnew();
    void aZoneThatIsNoneLeavesTheCountAlone();
    void anOverflowEndsTheProgram();
    void theGoalIsReachedAtFiveHundredAndStaysReached();
};

void TestWritingStreak::theFirstUseIsDayOne()
{
    User user;
    QCOMPARE(user.uses(u"2026-11-21T16:40:12"_s), 1);

    QCOMPARE(user.preferences.integer(currentStreak), 1);
    QCOMPARE(user.preferences.date(lastWriteDate), timeIn(u"2026-11-21T00:00:00"_s));
}

void TestWritingStreak::threeDaysInARowAreThree()
{
    User user;
    QCOMPARE(user.uses(u"2026-02-27T23:00:00"_s), 1);
    QCOMPARE(user.uses(u"2026-02-28T01:00:00"_s), 2);
    QCOMPARE(user.uses(u"2026-03-01T20:00:00"_s), 3);
    QCOMPARE(user.preferences.integer(currentStreak), 3);
    QCOMPARE(user.preferences.date(lastWriteDate), timeIn(u"2026-03-01T00:00:00"_s));
}

void TestWritingStreak::aDayLeftOutBeginsAnew()
{
    User user;
    user.uses(u"2026-11-19T12:00:00"_s);
    QCOMPARE(user.uses(u"2026-11-20T12:00:00"_s), 2);
    QCOMPARE(user.uses(u"2026-11-22T00:00:01"_s), 1);
    QCOMPARE(user.preferences.date(lastWriteDate), timeIn(u"2026-11-22T00:00:00"_s));
}

void TestWritingStreak::aDayCountsOnce()
{
    User user;
    user.uses(u"2026-11-19T12:00:00"_s);
    user.uses(u"2026-11-20T00:00:00"_s);
    user.preferences.writes = 0;
    for (const QString &time : {u"00:00:01"_s, u"12:00:00"_s, u"23:59:59"_s})
        QCOMPARE(user.uses(u"2026-11-20T"_s + time), 2);
    QCOMPARE(user.preferences.writes, 0);
}

void TestWritingStreak::midnightMakesADay()
{
    User user;
    QCOMPARE(user.uses(u"2026-11-20T23:59:59"_s), 1);
    QCOMPARE(user.uses(u"2026-11-21T00:00:00"_s), 2);
}

void TestWritingStreak::aYearEndsLikeAnyDay()
{
    User user;
    QCOMPARE(user.uses(u"2026-12-31T23:00:00"_s), 1);
    QCOMPARE(user.uses(u"2027-01-01T00:30:00"_s), 2);
}

void TestWritingStreak::aClockSetBackBeginsAnew()
{
    User user;
    user.uses(u"2026-11-20T12:00:00"_s);
    user.uses(u"2026-11-21T12:00:00"_s);
    QCOMPARE(user.uses(u"2026-11-20T12:00:00"_s), 1);
    QCOMPARE(user.preferences.date(lastWriteDate), timeIn(u"2026-11-20T00:00:00"_s));
}

void TestWritingStreak::theDaysOfATimeChangeAreDays_data()
{
    QTest::addColumn<QStringList>("uses");

    // 47 hours between two uses of neighbouring days in autumn, two hours in spring.
    QTest::newRow("clocks go forward") << QStringList{u"2026-03-28T23:30:00"_s, u"2026-03-29T23:30:00"_s,
                                                      u"2026-03-30T00:10:00"_s, u"2026-03-31T23:50:00"_s};
    QTest::newRow("clocks go back") << QStringList{u"2026-10-24T00:10:00"_s, u"2026-10-25T23:50:00"_s,
                                                   u"2026-10-26T00:10:00"_s, u"2026-10-27T12:00:00"_s};
}

void TestWritingStreak::theDaysOfATimeChangeAreDays()
{
    QFETCH(const QStringList, uses);

    User user;
    qint64 day = 0;
    for (const QString &time : uses)
        QCOMPARE(user.uses(time), ++day);
}

void TestWritingStreak::aDayWithoutMidnightBeginsWhereItBegins()
{
    User user;
    user.zone = QTimeZone("America/Sao_Paulo"); // on 2018-11-04 the clocks went from midnight to one
    QCOMPARE(user.uses(u"2018-11-03T12:00:00"_s), 1);
    QCOMPARE(user.uses(u"2018-11-04T12:00:00"_s), 2);
    QCOMPARE(user.preferences.date(lastWriteDate), timeIn(u"2018-11-04T01:00:00"_s, user.zone));
    QCOMPARE(user.uses(u"2018-11-05T12:00:00"_s), 3);
}

void TestWritingStreak::travelIsReadByTheNewZone()
{
    User user;
    user.uses(u"2026-11-20T10:00:00"_s);
    user.uses(u"2026-11-21T10:00:00"_s);

    // Midnight in Berlin was still the day before in New York: there it is the day after the last use.
    user.zone = QTimeZone("America/New_York");
    QCOMPARE(user.uses(u"2026-11-21T12:00:00"_s), 3);
    QCOMPARE(user.preferences.date(lastWriteDate), timeIn(u"2026-11-21T00:00:00"_s, user.zone));

    user.zone = QTimeZone("Pacific/Auckland");
    QCOMPARE(user.uses(u"2026-11-22T12:00:00"_s), 4);
}

void TestWritingStreak::valueThatIsNoDateCountsAsAbsent_data()
{
    QTest::addColumn<ManualPreferences::Value>("value");

    QTest::newRow("text") << ManualPreferences::Value(u"yesterday"_s);
    QTest::newRow("number") << ManualPreferences::Value(qint64(3));
}

void TestWritingStreak::valueThatIsNoDateCountsAsAbsent()
{
    QFETCH(const ManualPreferences::Value, value);

    User user;
    user.preferences.values = {{currentStreak, qint64(12)}, {lastWriteDate, value}};
    QCOMPARE(user.uses(u"2026-11-21T12:00:00"_s), 1);
    QCOMPARE(user.preferences.date(lastWriteDate), timeIn(u"2026-11-21T00:00:00"_s));
}

void TestWritingStreak::valueThatIsNoNumberCountsAsZero()
{
    User user;
    user.preferences.values = {{currentStreak, u"twelve"_s},
                               {lastWriteDate, timeIn(u"2026-11-20T00:00:00"_s)}};
    QCOMPARE(user.uses(u"2026-11-21T12:00:00"_s), 1);
    QCOMPARE(user.preferences.integer(currentStreak), 1);
}

void TestWritingStreak::aStoredZeroOfTodayStaysZero()
{
    User user;
    user.preferences.values = {{currentStreak, qint64(0)}, {lastWriteDate, timeIn(u"2026-11-21T00:00:00"_s)}};
    QCOMPARE(user.uses(u"2026-11-21T12:00:00"_s), 0);
    QCOMPARE(user.preferences.writes, 0);
}

void TestWritingStreak::aDateBeyondAnyCalendarBeginsAnew()
{
    for (const double date : {1e300, -1e300, std::numeric_limits<double>::infinity()}) {
        User user;
        user.preferences.values = {{currentStreak, qint64(5)}, {lastWriteDate, date}};
        QCOMPARE(user.uses(u"2026-11-21T12:00:00"_s), 1);
    }
}

void TestWritingStreak::aZoneThatIsNoneLeavesTheCountAlone()
{
    User user;
    user.preferences.values = {{currentStreak, qint64(5)}, {lastWriteDate, timeIn(u"2026-11-20T00:00:00"_s)}};
    user.preferences.writes = 0;
    QCOMPARE(WritingStreak::currentStreak(user.preferences, timeIn(u"2026-11-21T12:00:00"_s), QTimeZone()),
             5);
    QCOMPARE(user.preferences.writes, 0);
}

void TestWritingStreak::anOverflowEndsTheProgram()
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGABRT, SIG_DFL);
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        User user;
        user.preferences.values = {{currentStreak, std::numeric_limits<qint64>::max()},
                                   {lastWriteDate, timeIn(u"2026-11-20T00:00:00"_s)}};
        user.uses(u"2026-11-21T12:00:00"_s);
        _exit(0);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGABRT);
}

void TestWritingStreak::theGoalIsReachedAtFiveHundredAndStaysReached()
{
    QCOMPARE(WordGoal::words, 500);
    QCOMPARE(WordGoal::progress(0), 0.0);
    QCOMPARE(WordGoal::progress(250), 0.5);
    QCOMPARE(WordGoal::progress(499), 0.998);
    QCOMPARE(WordGoal::progress(500), 1.0);
    QCOMPARE(WordGoal::progress(1000), 1.0);
}

PELKO_TEST(TestWritingStreak)
#include "tst_WritingStreak.moc"
