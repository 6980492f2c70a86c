#include "Calendar/RecurrenceRule.h"
#include "support/TestProgram.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QTimeZone>

#include <map>

using namespace Qt::StringLiterals;

namespace
{
const auto never = [] { return false; };

qint64 seconds(const QString &text)
{
    return QDateTime::fromString(text, u"yyyyMMdd'T'HHmmss"_s).toSecsSinceEpoch() +
           QDateTime::fromString(text, u"yyyyMMdd'T'HHmmss"_s).offsetFromUtc();
}

CalendarTime newYork(const QString &text)
{
    static const auto zone = std::make_shared<SystemTimeZone>(QTimeZone("America/New_York"));
    return {.wall = seconds(text), .zone = zone};
}

/// Returns days of a month as "2-11,15".
QString runs(const QList<int> &days)
{
    QStringList parts;
    for (qsizetype first = 0, last = 0; first < days.size(); first = last + 1) {
        for (last = first; last + 1 < days.size() && days[last + 1] == days[last] + 1;)
            ++last;
        const bool isLong = last - first > 1;
        last = isLong ? last : first;
        const QString number = QString::number(days[first]);
        parts << (isLong ? number + u'-' + QString::number(days[last]) : number);
    }
    return parts.join(u',');
}

/// Returns times as "1997 Sep 2-11 Oct 4; 1998 Jan 1". Times of day other than nine o'clock are included:
/// "1997 Sep 2 at 09:00,12:00".
QString written(const std::vector<qint64> &times)
{
    std::map<int, std::map<int, QList<int>>> years;
    std::map<QDate, QStringList> hours;
    for (const qint64 time : times) {
        const QDateTime moment = QDateTime::fromSecsSinceEpoch(time, QTimeZone::utc());
        const QDate day = moment.date();
        hours[day] << moment.toString(u"HH:mm"_s);
        if (hours[day].size() == 1)
            years[day.year()][day.month()] << day.day();
    }
    QStringList texts;
    for (const auto &[year, months] : years) {
        QString text = QString::number(year);
        for (const auto &[month, days] : months) {
            text += u' ' + QLocale::c().standaloneMonthName(month, QLocale::ShortFormat) + u' ' + runs(days);
            const QStringList &first = hours[QDate(year, month, days.first())];
            if (first != QStringList{u"09:00"_s})
                text += u" at "_s + first.join(u',');
        }
        texts << text;
    }
    return texts.join(u"; "_s);
}

void row(const char *rule, const QString &start, const QString &end, const QString &days)
{
    QTest::newRow(rule) << start << end << days;
}

std::vector<qint64> timesOf(const char *rule, const QString &start, const QString &from, const QString &to)
{
    const auto parsed = RecurrenceRule::parse(rule);
    if (!parsed)
        return {-1};
    return parsed->times(newYork(start), {.from = seconds(from), .to = seconds(to)}, never);
}
} // namespace

/// Rules and the days that they select.
class TestRecurrenceRule : public QObject
{
    Q_OBJECT

    void addExamples();
    void addFurtherExamples();
    void addOwnRules();
    void addUncommonRules();

private Q_SLOTS:
    void ruleSelectsItsDays_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("days");
        addExamples();
        addFurtherExamples();
        addOwnRules();
        addUncommonRules();
    }
    void ruleSelectsItsDays()
    {
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(QString, days);
        const char *rule = QTest::currentDataTag();
        const auto all = timesOf(rule, start, start, end);
        QCOMPARE(written(all), days);

        // A query for the later part only has the same times.
        for (const double part : {0.25, 0.5, 0.9}) {
            if (all.empty())
                break;
            const qint64 from = all.front() + qint64(double(all.back() - all.front()) * part);
            std::vector<qint64> later;
            std::ranges::copy_if(all, std::back_inserter(later),
                                 [from](qint64 time) { return time >= from; });
            const auto found =
                RecurrenceRule::parse(rule)->times(newYork(start), {.from = from, .to = seconds(end)}, never);
            QCOMPARE(written(found), written(later));
        }
    }

    void refusesMalformedRules()
    {
        for (const char *rule : {"",
                                 "FREQ",
                                 "FREQ=",
                                 "FREQ=OFTEN",
                                 "BYDAY=MO",
                                 "FREQ=DAILY;INTERVAL=0",
                                 "FREQ=DAILY;INTERVAL=-1",
                                 "FREQ=DAILY;COUNT=0",
                                 "FREQ=DAILY;BYHOUR=25",
                                 "FREQ=YEARLY;BYDAY=XX",
                                 "FREQ=YEARLY;RSCALE=HEBREW;BYMONTH=5L;SKIP=FORWARD",
                                 "FREQ=WEEKLY;BYMONTHDAY=1",
                                 "FREQ=WEEKLY;BYDAY=1MO",
                                 "FREQ=DAILY;BYDAY=-1MO",
                                 "FREQ=MONTHLY;BYWEEKNO=1",
                                 "FREQ=MONTHLY;BYYEARDAY=1",
                                 "FREQ=YEARLY;BYWEEKNO=1;BYDAY=1MO",
                                 "FREQ=MONTHLY;BYMONTHDAY=0",
                                 "FREQ=MONTHLY;BYDAY=0MO",
                                 "FREQ=DAILY;UNTIL=soon",
                                 "FREQ=DAILY;WKST=X",
                                 "FREQ=YEARLY;BYMONTH=13",
                                 "FREQ=DAILY;INTERVAL=99999999999"})
            QVERIFY2(!RecurrenceRule::parse(rule), rule);
    }

    void noRuleTakesLong_data()
    {
        QTest::addColumn<QString>("start");
        for (const char *rule : {"FREQ=SECONDLY",
                                 "FREQ=MINUTELY",
                                 "FREQ=MINUTELY;BYDAY=MO",
                                 "FREQ=DAILY",
                                 "FREQ=SECONDLY;COUNT=2000000000",
                                 "FREQ=MINUTELY;BYDAY=MO;COUNT=2000000000",
                                 "FREQ=HOURLY;BYHOUR=9;COUNT=2000000000",
                                 "FREQ=HOURLY;INTERVAL=2;BYHOUR=9",
                                 "FREQ=MINUTELY;INTERVAL=2;BYMINUTE=1",
                                 "FREQ=DAILY;BYMONTH=2;BYMONTHDAY=30",
                                 "FREQ=DAILY;COUNT=5;BYMONTH=2;BYMONTHDAY=30",
                                 "FREQ=MONTHLY;BYMONTHDAY=30;BYMONTH=2",
                                 "FREQ=MONTHLY;BYDAY=6MO",
                                 "FREQ=MONTHLY;BYDAY=MO;BYSETPOS=6",
                                 "FREQ=MONTHLY;BYDAY=1MO;BYMONTHDAY=20",
                                 "FREQ=MONTHLY;INTERVAL=12;BYMONTH=5",
                                 "FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30",
                                 "FREQ=YEARLY;BYDAY=54MO",
                                 "FREQ=YEARLY;BYYEARDAY=366;INTERVAL=4",
                                 "FREQ=YEARLY;BYWEEKNO=53;BYMONTH=6",
                                 "FREQ=YEARLY;BYMONTH=4;BYMONTHDAY=31;BYHOUR=1,2,3,4,5,6;BYMINUTE=1,2,3,4",
                                 "FREQ=WEEKLY;BYMONTH=2;INTERVAL=32000;BYDAY=MO",
                                 "FREQ=YEARLY;INTERVAL=32000",
                                 "FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30;COUNT=2",
                                 "FREQ=SECONDLY;INTERVAL=2;BYSECOND=9;COUNT=2",
                                 "FREQ=YEARLY;INTERVAL=2147483647",
                                 "FREQ=SECONDLY;INTERVAL=2147483647",
                                 "FREQ=DAILY;COUNT=2000000000;BYMONTH=1"})
            QTest::newRow(rule) << u"20210102T080000"_s;
        QTest::newRow("FREQ=WEEKLY") << u"00010102T080000"_s;
        QTest::newRow("FREQ=YEARLY") << u"00010102T080000"_s;
        QTest::newRow("FREQ=MONTHLY;COUNT=30000") << u"00010102T080000"_s;
        QTest::newRow("FREQ=WEEKLY;BYDAY=TU") << u"99981231T080000"_s;
    }
    void noRuleTakesLong()
    {
        QFETCH(QString, start);
        QElapsedTimer timer;
        timer.start();
        const auto times =
            timesOf(QTest::currentDataTag(), start, u"20261121T000000"_s, u"20261123T000000"_s);
        QVERIFY(times.size() <= 10'000);
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }

    void lookingForDaysCanBeGivenUp()
    {
        int asked = 0;
        const auto rule = RecurrenceRule::parse("FREQ=DAILY");
        const auto times =
            rule->times(newYork(u"20260101T090000"_s),
                        {.from = seconds(u"20260101T000000"_s), .to = seconds(u"20270101T000000"_s)},
                        [&asked] { return ++asked > 3; });
        QCOMPARE(written(times), u"2026 Jan 1-3"_s);
    }
};

/// The examples of RFC 5545, in New York.
void TestRecurrenceRule::addExamples()
{
    row("FREQ=DAILY;COUNT=10", u"19970902T090000"_s, u"19990101T000000"_s, u"1997 Sep 2-11"_s);
    row("FREQ=DAILY;UNTIL=19971224T000000Z", u"19970902T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 2-30 Oct 1-31 Nov 1-30 Dec 1-23"_s);
    row("FREQ=DAILY;INTERVAL=2", u"19970902T090000"_s, u"19971015T000000"_s,
        u"1997 Sep 2,4,6,8,10,12,14,16,18,20,22,24,26,28,30 Oct 2,4,6,8,10,12,14"_s);
    row("FREQ=DAILY;INTERVAL=10;COUNT=5", u"19970902T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 2,12,22 Oct 2,12"_s);
    row("FREQ=YEARLY;UNTIL=20000131T140000Z;BYMONTH=1;BYDAY=SU,MO,TU,WE,TH,FR,SA", u"19980101T090000"_s,
        u"20020101T000000"_s, u"1998 Jan 1-31; 1999 Jan 1-31; 2000 Jan 1-31"_s);
    row("FREQ=DAILY;UNTIL=20000131T140000Z;BYMONTH=1", u"19980101T090000"_s, u"20020101T000000"_s,
        u"1998 Jan 1-31; 1999 Jan 1-31; 2000 Jan 1-31"_s);
    row("FREQ=WEEKLY;COUNT=10", u"19970902T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 2,9,16,23,30 Oct 7,14,21,28 Nov 4"_s);
    row("FREQ=WEEKLY;UNTIL=19971224T000000Z", u"19970902T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 2,9,16,23,30 Oct 7,14,21,28 Nov 4,11,18,25 Dec 2,9,16,23"_s);
    row("FREQ=WEEKLY;INTERVAL=2;WKST=SU", u"19970902T090000"_s, u"19980218T000000"_s,
        u"1997 Sep 2,16,30 Oct 14,28 Nov 11,25 Dec 9,23; 1998 Jan 6,20 Feb 3,17"_s);
    row("FREQ=WEEKLY;UNTIL=19971007T000000Z;WKST=SU;BYDAY=TU,TH", u"19970902T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 2,4,9,11,16,18,23,25,30 Oct 2"_s);
    row("FREQ=WEEKLY;COUNT=10;WKST=SU;BYDAY=TU,TH", u"19970902T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 2,4,9,11,16,18,23,25,30 Oct 2"_s);
    row("FREQ=WEEKLY;INTERVAL=2;UNTIL=19971224T000000Z;WKST=SU;BYDAY=MO,WE,FR", u"19970901T090000"_s,
        u"19990101T000000"_s,
        u"1997 Sep 1,3,5,15,17,19,29 Oct 1,3,13,15,17,27,29,31 Nov 10,12,14,24,26,28 Dec 8,10,12,22"_s);
    row("FREQ=WEEKLY;INTERVAL=2;COUNT=8;WKST=SU;BYDAY=TU,TH", u"19970902T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 2,4,16,18,30 Oct 2,14,16"_s);
    row("FREQ=MONTHLY;COUNT=10;BYDAY=1FR", u"19970905T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 5 Oct 3 Nov 7 Dec 5; 1998 Jan 2 Feb 6 Mar 6 Apr 3 May 1 Jun 5"_s);
    row("FREQ=MONTHLY;UNTIL=19971224T000000Z;BYDAY=1FR", u"19970905T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 5 Oct 3 Nov 7 Dec 5"_s);
    row("FREQ=MONTHLY;INTERVAL=2;COUNT=10;BYDAY=1SU,-1SU", u"19970907T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 7,28 Nov 2,30; 1998 Jan 4,25 Mar 1,29 May 3,31"_s);
    row("FREQ=MONTHLY;COUNT=6;BYDAY=-2MO", u"19970922T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 22 Oct 20 Nov 17 Dec 22; 1998 Jan 19 Feb 16"_s);
    row("FREQ=MONTHLY;BYMONTHDAY=-3", u"19970928T090000"_s, u"19980301T000000"_s,
        u"1997 Sep 28 Oct 29 Nov 28 Dec 29; 1998 Jan 29 Feb 26"_s);
    row("FREQ=MONTHLY;COUNT=10;BYMONTHDAY=2,15", u"19970902T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 2,15 Oct 2,15 Nov 2,15 Dec 2,15; 1998 Jan 2,15"_s);
    row("FREQ=MONTHLY;COUNT=10;BYMONTHDAY=1,-1", u"19970930T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 30 Oct 1,31 Nov 1,30 Dec 1,31; 1998 Jan 1,31 Feb 1"_s);
}

void TestRecurrenceRule::addFurtherExamples()
{
    row("FREQ=MONTHLY;INTERVAL=18;COUNT=10;BYMONTHDAY=10,11,12,13,14,15", u"19970910T090000"_s,
        u"20020101T000000"_s, u"1997 Sep 10-15; 1999 Mar 10-13"_s);
    row("FREQ=MONTHLY;INTERVAL=2;BYDAY=TU", u"19970902T090000"_s, u"19980401T000000"_s,
        u"1997 Sep 2,9,16,23,30 Nov 4,11,18,25; 1998 Jan 6,13,20,27 Mar 3,10,17,24,31"_s);
    row("FREQ=YEARLY;COUNT=10;BYMONTH=6,7", u"19970610T090000"_s, u"20100101T000000"_s,
        u"1997 Jun 10 Jul 10; 1998 Jun 10 Jul 10; 1999 Jun 10 Jul 10; 2000 Jun 10 Jul 10; 2001 Jun 10 Jul 10"_s);
    row("FREQ=YEARLY;INTERVAL=2;COUNT=10;BYMONTH=1,2,3", u"19970310T090000"_s, u"20100101T000000"_s,
        u"1997 Mar 10; 1999 Jan 10 Feb 10 Mar 10; 2001 Jan 10 Feb 10 Mar 10; 2003 Jan 10 Feb 10 Mar 10"_s);
    row("FREQ=YEARLY;INTERVAL=3;COUNT=10;BYYEARDAY=1,100,200", u"19970101T090000"_s, u"20100101T000000"_s,
        u"1997 Jan 1 Apr 10 Jul 19; 2000 Jan 1 Apr 9 Jul 18; 2003 Jan 1 Apr 10 Jul 19; 2006 Jan 1"_s);
    row("FREQ=YEARLY;BYDAY=20MO", u"19970519T090000"_s, u"20000101T000000"_s,
        u"1997 May 19; 1998 May 18; 1999 May 17"_s);
    row("FREQ=YEARLY;BYWEEKNO=20;BYDAY=MO", u"19970512T090000"_s, u"20000101T000000"_s,
        u"1997 May 12; 1998 May 11; 1999 May 17"_s);
    row("FREQ=YEARLY;BYMONTH=3;BYDAY=TH", u"19970313T090000"_s, u"20000101T000000"_s,
        u"1997 Mar 13,20,27; 1998 Mar 5,12,19,26; 1999 Mar 4,11,18,25"_s);
    row("FREQ=YEARLY;BYDAY=TH;BYMONTH=6,7,8", u"19970605T090000"_s, u"19990101T000000"_s,
        u"1997 Jun 5,12,19,26 Jul 3,10,17,24,31 Aug 7,14,21,28; 1998 Jun 4,11,18,25 Jul 2,9,16,23,30 Aug 6,13,20,27"_s);
    row("FREQ=MONTHLY;BYDAY=FR;BYMONTHDAY=13", u"19970902T090000"_s, u"20010101T000000"_s,
        u"1998 Feb 13 Mar 13 Nov 13; 1999 Aug 13; 2000 Oct 13"_s);
    row("FREQ=MONTHLY;BYDAY=SA;BYMONTHDAY=7,8,9,10,11,12,13", u"19970913T090000"_s, u"19980701T000000"_s,
        u"1997 Sep 13 Oct 11 Nov 8 Dec 13; 1998 Jan 10 Feb 7 Mar 7 Apr 11 May 9 Jun 13"_s);
    row("FREQ=YEARLY;INTERVAL=4;BYMONTH=11;BYDAY=TU;BYMONTHDAY=2,3,4,5,6,7,8", u"19961105T090000"_s,
        u"20050101T000000"_s, u"1996 Nov 5; 2000 Nov 7; 2004 Nov 2"_s);
    row("FREQ=MONTHLY;COUNT=3;BYDAY=TU,WE,TH;BYSETPOS=3", u"19970904T090000"_s, u"19990101T000000"_s,
        u"1997 Sep 4 Oct 7 Nov 6"_s);
    row("FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-2", u"19970929T090000"_s, u"19980401T000000"_s,
        u"1997 Sep 29 Oct 30 Nov 27 Dec 30; 1998 Jan 29 Feb 26 Mar 30"_s);
    row("FREQ=HOURLY;INTERVAL=3;UNTIL=19970902T210000Z", u"19970902T090000"_s, u"19980101T000000"_s,
        u"1997 Sep 2 at 09:00,12:00,15:00"_s);
    row("FREQ=MINUTELY;INTERVAL=15;COUNT=6", u"19970902T090000"_s, u"19980101T000000"_s,
        u"1997 Sep 2 at 09:00,09:15,09:30,09:45,10:00,10:15"_s);
    row("FREQ=MINUTELY;INTERVAL=90;COUNT=4", u"19970902T090000"_s, u"19980101T000000"_s,
        u"1997 Sep 2 at 09:00,10:30,12:00,13:30"_s);
    row("FREQ=DAILY;BYHOUR=9,10;BYMINUTE=0,20,40", u"19970902T090000"_s, u"19970904T000000"_s,
        u"1997 Sep 2,3 at 09:00,09:20,09:40,10:00,10:20,10:40"_s);
    row("FREQ=MINUTELY;INTERVAL=20;BYHOUR=9,10", u"19970902T090000"_s, u"19970904T000000"_s,
        u"1997 Sep 2,3 at 09:00,09:20,09:40,10:00,10:20,10:40"_s);
    row("FREQ=WEEKLY;INTERVAL=2;COUNT=4;BYDAY=TU,SU;WKST=MO", u"19970805T090000"_s, u"19990101T000000"_s,
        u"1997 Aug 5,10,19,24"_s);
    row("FREQ=WEEKLY;INTERVAL=2;COUNT=4;BYDAY=TU,SU;WKST=SU", u"19970805T090000"_s, u"19990101T000000"_s,
        u"1997 Aug 5,17,19,31"_s);
    row("FREQ=MONTHLY;BYMONTHDAY=15,30;COUNT=5", u"20070115T090000"_s, u"20090101T000000"_s,
        u"2007 Jan 15,30 Feb 15 Mar 15,30"_s);
}

/// Expected days computed by hand.
void TestRecurrenceRule::addOwnRules()
{
    row("FREQ=YEARLY", u"20240229T090000"_s, u"20330101T000000"_s,
        u"2024 Feb 29; 2028 Feb 29; 2032 Feb 29"_s);
    row("FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=-1", u"20230228T090000"_s, u"20260101T000000"_s,
        u"2023 Feb 28; 2024 Feb 29; 2025 Feb 28"_s);
    row("FREQ=YEARLY;INTERVAL=4;BYMONTH=2;BYMONTHDAY=29", u"20240229T090000"_s, u"20330101T000000"_s,
        u"2024 Feb 29; 2028 Feb 29; 2032 Feb 29"_s);
    row("FREQ=MONTHLY", u"20260131T090000"_s, u"20270101T000000"_s,
        u"2026 Jan 31 Mar 31 May 31 Jul 31 Aug 31 Oct 31 Dec 31"_s);
    row("FREQ=MONTHLY;BYMONTHDAY=29", u"20260101T090000"_s, u"20260601T000000"_s,
        u"2026 Jan 29 Mar 29 Apr 29 May 29"_s);
    row("FREQ=MONTHLY;BYMONTHDAY=-1", u"20260131T090000"_s, u"20260501T000000"_s,
        u"2026 Jan 31 Feb 28 Mar 31 Apr 30"_s);
    row("FREQ=MONTHLY;INTERVAL=3;BYMONTHDAY=1", u"20260101T090000"_s, u"20270101T000000"_s,
        u"2026 Jan 1 Apr 1 Jul 1 Oct 1"_s);
    row("FREQ=MONTHLY;BYDAY=5FR", u"20260130T090000"_s, u"20270101T000000"_s,
        u"2026 Jan 30 May 29 Jul 31 Oct 30"_s);
    row("FREQ=MONTHLY;BYDAY=-1FR", u"20260130T090000"_s, u"20260701T000000"_s,
        u"2026 Jan 30 Feb 27 Mar 27 Apr 24 May 29 Jun 26"_s);
    row("FREQ=MONTHLY;BYDAY=MO;BYSETPOS=1,-1", u"20261102T090000"_s, u"20270101T000000"_s,
        u"2026 Nov 2,30 Dec 7,28"_s);
    row("FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-1", u"20260130T090000"_s, u"20260701T000000"_s,
        u"2026 Jan 30 Feb 27 Mar 31 Apr 30 May 29 Jun 30"_s);
    row("FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=1", u"20260101T090000"_s, u"20260701T000000"_s,
        u"2026 Jan 1 Feb 2 Mar 2 Apr 1 May 1 Jun 1"_s);
    row("FREQ=YEARLY;BYYEARDAY=-1", u"20241231T090000"_s, u"20270101T000000"_s,
        u"2024 Dec 31; 2025 Dec 31; 2026 Dec 31"_s);
    row("FREQ=YEARLY;BYYEARDAY=366", u"20241231T090000"_s, u"20330101T000000"_s,
        u"2024 Dec 31; 2028 Dec 31; 2032 Dec 31"_s);
    row("FREQ=YEARLY;BYYEARDAY=60", u"20240229T090000"_s, u"20270101T000000"_s,
        u"2024 Feb 29; 2025 Mar 1; 2026 Mar 1"_s);
    row("FREQ=YEARLY;BYMONTH=11;BYDAY=4TH", u"20241128T090000"_s, u"20280101T000000"_s,
        u"2024 Nov 28; 2025 Nov 27; 2026 Nov 26; 2027 Nov 25"_s);
    row("FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU", u"20240331T090000"_s, u"20280101T000000"_s,
        u"2024 Mar 31; 2025 Mar 30; 2026 Mar 29; 2027 Mar 28"_s);
    row("FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU", u"20241027T090000"_s, u"20280101T000000"_s,
        u"2024 Oct 27; 2025 Oct 26; 2026 Oct 25; 2027 Oct 31"_s);
    row("FREQ=YEARLY;BYDAY=1MO", u"20240101T090000"_s, u"20270101T000000"_s,
        u"2024 Jan 1; 2025 Jan 6; 2026 Jan 5"_s);
    row("FREQ=YEARLY;BYDAY=-1SU", u"20241229T090000"_s, u"20270101T000000"_s,
        u"2024 Dec 29; 2025 Dec 28; 2026 Dec 27"_s);
    row("FREQ=YEARLY;BYWEEKNO=53;BYDAY=TH", u"20201231T090000"_s, u"20270101T000000"_s,
        u"2020 Dec 31; 2026 Dec 31"_s);
    row("FREQ=YEARLY;BYMONTH=1,7;BYMONTHDAY=1", u"20260101T090000"_s, u"20280101T000000"_s,
        u"2026 Jan 1 Jul 1; 2027 Jan 1 Jul 1"_s);
    row("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR", u"20261116T090000"_s, u"20261130T000000"_s,
        u"2026 Nov 16-20,23-27"_s);
    row("FREQ=WEEKLY;INTERVAL=3;BYDAY=MO", u"20261102T090000"_s, u"20270101T000000"_s,
        u"2026 Nov 2,23 Dec 14"_s);
    row("FREQ=WEEKLY;INTERVAL=2;BYDAY=SU;WKST=SU", u"20261101T090000"_s, u"20261201T000000"_s,
        u"2026 Nov 1,15,29"_s);
    row("FREQ=WEEKLY;INTERVAL=2;BYDAY=SA,SU;WKST=MO", u"20261107T090000"_s, u"20261207T000000"_s,
        u"2026 Nov 7,8,21,22 Dec 5,6"_s);
    row("FREQ=WEEKLY;INTERVAL=2;BYDAY=SA,SU;WKST=SU", u"20261107T090000"_s, u"20261207T000000"_s,
        u"2026 Nov 7,15,21,29 Dec 5"_s);
    row("freq=weekly;byday=mo", u"20261102T090000"_s, u"20261201T000000"_s, u"2026 Nov 2,9,16,23,30"_s);
    row("FREQ=DAILY;BYDAY=SA,SU", u"20261101T090000"_s, u"20261116T000000"_s, u"2026 Nov 1,7,8,14,15"_s);
    row("FREQ=DAILY;INTERVAL=3;BYMONTH=12", u"20261129T090000"_s, u"20270401T000000"_s,
        u"2026 Dec 2,5,8,11,14,17,20,23,26,29"_s);
    row("FREQ=DAILY;BYMONTHDAY=13", u"20261113T090000"_s, u"20270201T000000"_s,
        u"2026 Nov 13 Dec 13; 2027 Jan 13"_s);
    row("FREQ=DAILY;COUNT=1", u"20261101T090000"_s, u"20270101T000000"_s, u"2026 Nov 1"_s);
    row("FREQ=DAILY;UNTIL=20261103", u"20261101T090000"_s, u"20270101T000000"_s, u"2026 Nov 1-3"_s);
    row("FREQ=DAILY;UNTIL=20261103T090000", u"20261101T090000"_s, u"20270101T000000"_s, u"2026 Nov 1-3"_s);
    row("FREQ=DAILY;UNTIL=20261103T140000Z", u"20261101T090000"_s, u"20270101T000000"_s, u"2026 Nov 1-3"_s);
    row("FREQ=DAILY;UNTIL=20261103T135959Z", u"20261101T090000"_s, u"20270101T000000"_s, u"2026 Nov 1,2"_s);
    row("FREQ=DAILY;UNTIL=20261031T090000", u"20261101T090000"_s, u"20270101T000000"_s, u""_s);
    row("FREQ=HOURLY;INTERVAL=12", u"20261101T090000"_s, u"20261103T000000"_s,
        u"2026 Nov 1,2 at 09:00,21:00"_s);
    row("FREQ=DAILY;BYHOUR=8,20", u"20261101T080000"_s, u"20261104T000000"_s,
        u"2026 Nov 1-3 at 08:00,20:00"_s);
    row("FREQ=HOURLY;BYDAY=MO;BYHOUR=9,17", u"20261101T090000"_s, u"20261108T000000"_s,
        u"2026 Nov 2 at 09:00,17:00"_s);
}

/// BYSETPOS, week numbers, rules within a day, and unsorted values.
void TestRecurrenceRule::addUncommonRules()
{
    row("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=1", u"20261102T090000"_s, u"20261201T000000"_s,
        u"2026 Nov 2,9,16,23,30"_s);
    row("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-1", u"20261106T090000"_s, u"20261201T000000"_s,
        u"2026 Nov 6,13,20,27"_s);
    row("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,SU;WKST=SU;BYSETPOS=2", u"20261102T090000"_s, u"20261201T000000"_s,
        u"2026 Nov 2,16,30"_s);
    row("FREQ=DAILY;BYHOUR=9,12,15;BYSETPOS=2", u"20261101T120000"_s, u"20261104T000000"_s,
        u"2026 Nov 1-3 at 12:00"_s);
    row("FREQ=DAILY;COUNT=3;BYHOUR=9,17;BYSETPOS=-1", u"20261101T090000"_s, u"20261201T000000"_s,
        u"2026 Nov 1-3 at 17:00"_s);
    row("FREQ=HOURLY;INTERVAL=6;BYMINUTE=0,20,40;BYSETPOS=-1", u"20261101T090000"_s, u"20261102T000000"_s,
        u"2026 Nov 1 at 09:40,15:40,21:40"_s);
    row("FREQ=MINUTELY;INTERVAL=480;BYSECOND=0,30;BYSETPOS=1", u"20261101T090000"_s, u"20261102T000000"_s,
        u"2026 Nov 1 at 09:00,17:00"_s);
    row("FREQ=MONTHLY;BYDAY=MO;BYHOUR=9,17;BYSETPOS=-1", u"20261101T090000"_s, u"20270101T000000"_s,
        u"2026 Nov 30 at 17:00 Dec 28 at 17:00"_s);
    row("FREQ=MONTHLY;BYMONTHDAY=1;BYMINUTE=0,30;BYSETPOS=2", u"20261101T090000"_s, u"20270101T000000"_s,
        u"2026 Nov 1 at 09:30 Dec 1 at 09:30"_s);
    row("FREQ=YEARLY;BYMONTH=11;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-1", u"20261101T090000"_s, u"20290201T000000"_s,
        u"2026 Nov 30; 2027 Nov 30; 2028 Nov 30"_s);
    row("FREQ=YEARLY;BYWEEKNO=20", u"19970512T090000"_s, u"20000101T000000"_s,
        u"1997 May 12; 1998 May 11; 1999 May 17"_s);
    row("FREQ=YEARLY;BYWEEKNO=1", u"20251229T090000"_s, u"20290101T000000"_s,
        u"2025 Dec 29; 2027 Jan 4; 2028 Jan 3"_s);
    row("FREQ=YEARLY;BYWEEKNO=-1;BYDAY=FR", u"20261101T090000"_s, u"20290201T000000"_s,
        u"2027 Jan 1 Dec 31; 2028 Dec 29"_s);
    row("FREQ=YEARLY;BYWEEKNO=1,2;BYDAY=SU;WKST=SU", u"20260101T090000"_s, u"20280101T000000"_s,
        u"2026 Jan 4,11; 2027 Jan 3,10"_s);
    row("FREQ=DAILY;BYMONTHDAY=-1", u"20261130T090000"_s, u"20270401T000000"_s,
        u"2026 Nov 30 Dec 31; 2027 Jan 31 Feb 28 Mar 31"_s);
    row("FREQ=DAILY;INTERVAL=2;BYMONTHDAY=1,-1", u"20261101T090000"_s, u"20270401T000000"_s,
        u"2026 Nov 1 Dec 1,31; 2027 Feb 1 Mar 1,31"_s);
    row("FREQ=HOURLY;INTERVAL=5;BYHOUR=9,14", u"20261101T090000"_s, u"20261108T000000"_s,
        u"2026 Nov 1,6 at 09:00,14:00"_s);
    row("FREQ=HOURLY;INTERVAL=12;BYMINUTE=0,30", u"20261101T090000"_s, u"20261103T000000"_s,
        u"2026 Nov 1,2 at 09:00,09:30,21:00,21:30"_s);
    row("FREQ=MINUTELY;INTERVAL=45;BYHOUR=9", u"20261101T090000"_s, u"20261104T000000"_s,
        u"2026 Nov 1-3 at 09:00,09:45"_s);
    row("FREQ=MINUTELY;INTERVAL=7;BYHOUR=9;BYMINUTE=0,7,14,15", u"20261101T090000"_s, u"20261102T000000"_s,
        u"2026 Nov 1 at 09:00,09:07,09:14"_s);
    row("FREQ=MINUTELY;INTERVAL=480;BYMINUTE=0", u"20261101T090000"_s, u"20261102T000000"_s,
        u"2026 Nov 1 at 09:00,17:00"_s);
    row("FREQ=WEEKLY;BYDAY=FR,MO,MO,WE", u"20261102T090000"_s, u"20261116T000000"_s,
        u"2026 Nov 2,4,6,9,11,13"_s);
    row("FREQ=MONTHLY;BYMONTHDAY=20,10,10", u"20261101T090000"_s, u"20270101T000000"_s,
        u"2026 Nov 10,20 Dec 10,20"_s);
    row("FREQ=YEARLY;BYMONTH=12,3,3", u"20260301T090000"_s, u"20280101T000000"_s,
        u"2026 Mar 1 Dec 1; 2027 Mar 1 Dec 1"_s);
    row("FREQ=YEARLY;BYYEARDAY=200,1,200", u"20260101T090000"_s, u"20280101T000000"_s,
        u"2026 Jan 1 Jul 19; 2027 Jan 1 Jul 19"_s);
    row("FREQ=DAILY;BYHOUR=20,8,8", u"20261101T080000"_s, u"20261104T000000"_s,
        u"2026 Nov 1-3 at 08:00,20:00"_s);
    row("FREQ=DAILY;BYMINUTE=30,0,30", u"20261101T080000"_s, u"20261103T000000"_s,
        u"2026 Nov 1,2 at 08:00,08:30"_s);
    row("FREQ=MONTHLY;BYDAY=2TU,1MO,1MO", u"20261101T090000"_s, u"20270101T000000"_s,
        u"2026 Nov 2,10 Dec 7,8"_s);
    row("FREQ=MONTHLY;BYDAY=SU,2TU", u"20261101T090000"_s, u"20261201T000000"_s,
        u"2026 Nov 1,8,10,15,22,29"_s);
    row("FREQ=HOURLY;BYMONTHDAY=31;BYHOUR=9", u"20260101T090000"_s, u"20260601T000000"_s,
        u"2026 Jan 31 Mar 31 May 31"_s);
    row("FREQ=HOURLY;BYYEARDAY=1;BYHOUR=9", u"20260101T090000"_s, u"20280601T000000"_s,
        u"2026 Jan 1; 2027 Jan 1; 2028 Jan 1"_s);
    row("FREQ=MINUTELY;BYMONTH=12;BYMONTHDAY=24;BYHOUR=18;BYMINUTE=0", u"20251224T180000"_s,
        u"20270101T000000"_s, u"2025 Dec 24 at 18:00; 2026 Dec 24 at 18:00"_s);
    row("FREQ=SECONDLY;BYHOUR=3;BYMINUTE=7;BYSECOND=0", u"20261101T030700"_s, u"20261104T000000"_s,
        u"2026 Nov 1-3 at 03:07"_s);
    row(" FREQ = DAILY ; COUNT = 3  ", u"20261101T090000"_s, u"20261201T000000"_s, u"2026 Nov 1-3"_s);
    row("FREQ=DAILY;UNTIL=20261103T090000 ", u"20261101T090000"_s, u"20261201T000000"_s, u"2026 Nov 1-3"_s);
    row("FREQ=DAILY;COUNT=2;RSCALE=GREGORIAN;SKIP=OMIT", u"20261101T090000"_s, u"20261201T000000"_s,
        u"2026 Nov 1,2"_s);
}

PELKO_TEST(TestRecurrenceRule)
#include "tst_RecurrenceRule.moc"
