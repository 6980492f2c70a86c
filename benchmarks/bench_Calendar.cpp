// Looking through calendars that are files, against reading the bytes of the same files.

#include "Platform/Calendar/CalendarFile.h"
#include "Platform/Calendar/CalendarFolders.h"
#include "support/RatioTable.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace
{
/// An event of the sort that programs write, one in five of them repeating, spread over four years.
QByteArray ordinaryEvent(int number)
{
    static const QByteArray rules[]{"FREQ=WEEKLY;BYDAY=MO,WE", "FREQ=DAILY;UNTIL=20250101T000000Z",
                                    "FREQ=MONTHLY;BYDAY=-1FR", "FREQ=YEARLY"};
    const QDate day = QDate(2023, 1, 1).addDays(number * 7919 % 1461);
    const QByteArray date = day.toString(u"yyyyMMdd"_s).toLatin1();
    QByteArray event =
        "BEGIN:VEVENT\r\nUID:" + QByteArray::number(number) + "-5f1c@example.org\r\nDTSTAMP:" + date +
        "T080000Z\r\nCREATED:20230101T080000Z\r\nSUMMARY:Meeting of the group " + QByteArray::number(number) +
        "\r\nLOCATION:Room 7\r\nDTSTART;TZID=Europe/Berlin:" + date +
        "T100000\r\nDTEND;TZID=Europe/Berlin:" + date + "T110000\r\n";
    if (number % 5 == 0)
        event += "RRULE:" + rules[number / 5 % 4] + "\r\n";
    return event +
           "DESCRIPTION:We talk about what there is to do and who does it\\, and in the end\r\n  about "
           "lunch.\r\nBEGIN:VALARM\r\nACTION:DISPLAY\r\nTRIGGER:-PT15M\r\nEND:VALARM\r\nEND:VEVENT\r\n";
}

QByteArray shortEvent(int number)
{
    const QByteArray day = QDate(2023, 1, 1).addDays(number * 7919 % 1461).toString(u"yyyyMMdd"_s).toLatin1();
    return "BEGIN:VEVENT\r\nUID:" + QByteArray::number(number) + "\r\nDTSTART:" + day +
           "T100000Z\r\nDTEND:" + day + "T110000Z\r\nSUMMARY:Meeting " + QByteArray::number(number) +
           "\r\nEND:VEVENT\r\n";
}

class Calendars
{
public:
    explicit Calendars(const QString &name) : m_folder(u"./bench_Calendar-XXXXXX"_s)
    {
        fs::create_directories(home() / ".calendars" / name.toStdString());
        m_calendar = home() / ".calendars" / name.toStdString();
    }

    void put(const std::string &name, const QByteArray &events)
    {
        QFile file(m_calendar / name);
        if (file.open(QIODevice::WriteOnly))
            file.write("BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + events + "END:VCALENDAR\r\n");
    }

    qsizetype look() const
    {
        const auto receiver = std::make_shared<int>();
        const Timestamp noon = 817'041'600;
        const auto answer = CalendarFolders::events(
            {.home = home()}, {.from = noon, .to = noon + 86400, .zone = QTimeZone("Europe/Berlin")},
            FetchDeadline(60s, receiver, receiver));
        return answer ? answer->size() : 0;
    }

    qsizetype readBytes() const
    {
        CalendarFile file;
        qsizetype bytes = 0;
        for (const auto &entry : fs::directory_iterator(m_calendar))
            bytes += file.read(entry.path()).size();
        return bytes;
    }

private:
    fs::path home() const { return m_folder.path().toStdString(); }

    QTemporaryDir m_folder;
    fs::path m_calendar;
};

template <typename Work>
void add(const char *name, const std::shared_ptr<Calendars> &calendars, Work work)
{
    benchmark::RegisterBenchmark(name,
                                 [calendars, work](benchmark::State &state) {
                                     for (auto _ : state) {
                                         if (std::invoke(work, *calendars) == 0)
                                             state.SkipWithError("nothing was found");
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(5);
}

void addBoth(const std::string &row, const std::shared_ptr<Calendars> &calendars)
{
    add((row + "/floor").c_str(), calendars, &Calendars::readBytes);
    add((row + "/look").c_str(), calendars, &Calendars::look);
}
} // namespace

int main(int argc, char **argv)
{
    const auto files = std::make_shared<Calendars>(u"files"_s);
    for (int number = 0; number < 10'000; ++number)
        files->put(std::to_string(number) + ".ics", ordinaryEvent(number));
    const auto one = std::make_shared<Calendars>(u"one"_s);
    QByteArray events;
    for (int number = 0; number < 100'000; ++number)
        events += shortEvent(number);
    one->put("all.ics", events);

    addBoth("calendar/10,000 files", files);
    addBoth("calendar/100,000 events", one);
    return runAndPrintRatios(argc, argv);
}
