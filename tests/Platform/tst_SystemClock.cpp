#include "Platform/SystemClock.h"
#include "support/TestProgram.h"

#include <QDateTime>
#include <QTimeZone>

class TestSystemClock : public QObject
{
    Q_OBJECT

    static double secondsSinceReferenceDate()
    {
        const QDateTime referenceDate(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
        return double(referenceDate.msecsTo(QDateTime::currentDateTimeUtc())) / 1000;
    }

private Q_SLOTS:
    void timeCountsFromTheReferenceDate()
    {
        const double before = secondsSinceReferenceDate();
        const Timestamp now = SystemClock().now();
        QVERIFY(now >= before - 0.001);
        QVERIFY(now <= secondsSinceReferenceDate() + 0.001);
    }

    void theTimeZoneIsTheUsers() { QCOMPARE(SystemClock().timeZone(), QTimeZone::systemTimeZone()); }
};

PELKO_TEST(TestSystemClock)
#include "tst_SystemClock.moc"
