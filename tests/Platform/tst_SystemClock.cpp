#include "Platform/SystemClock.h"

#include <QDateTime>
#include <QTest>
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
        QVERIFY(now >= before);
        QVERIFY(now <= secondsSinceReferenceDate() + 0.001);
    }

    void theTimeZoneIsTheUsers() { QCOMPARE(SystemClock().timeZone(), QTimeZone::systemTimeZone()); }
};

QTEST_GUILESS_MAIN(TestSystemClock)
#include "tst_SystemClock.moc"
