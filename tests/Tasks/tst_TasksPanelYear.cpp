#include "Store/AppState.h"
#include "Tasks/PanelModel.h"
#include "Tasks/TasksPanelViewModel.h"
#include "support/ManualCalendarStore.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualPreferences.h"
#include "support/ManualScheduler.h"
#include "support/RandomSeeds.h"
#include "support/TestProgram.h"

#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{
constexpr auto zeroTime = qint64(referenceDate);
constexpr qint64 day = 86400;

/// A user who uses the tasks panel at random for a year, also while travelling, and the model of the panel.
class RandomYear
{
public:
    explicit RandomYear(quint32 seed) : m_random(seed)
    {
        moveClock(1'790'000'000); // in September 2026
        restart();
    }

    bool isOver() const { return m_model.now > 1'790'000'000 + 365 * day; }

    /// Performs one random step and returns its name.
    QString step()
    {
        switch (m_random.bounded(20)) {
        case 0:
            restart();
            return u"restart"_s;
        case 1:
            openPanel();
            return u"open the panel"_s;
        case 2:
        case 3:
            see(!m_model.isSeen);
            return u"hide or show"_s;
        case 4:
            return travel();
        case 5:
            return setClockBack();
        case 6:
        case 7:
            return type();
        case 8:
        case 9:
            return answer();
        case 10:
        case 11:
        case 12:
        case 13:
            moveClock(m_model.now + m_random.bounded(60, int(2 * day)));
            return u"suspend"_s;
        default:
            return passTime(m_random.bounded(1, 7200));
        }
    }

    QString shown() const
    {
        return u"%1 %2 %3 | %4 %5 | stored %6 at %7 | %8 fetches"_s
            .arg(m_panel->time(), m_panel->timeMarker(), m_panel->dateString())
            .arg(m_panel->currentStreak())
            .arg(m_panel->streakUnit())
            .arg(m_preferences.integer(u"pelko.currentStreak"_s).value_or(-1))
            .arg(qint64(m_preferences.date(u"pelko.lastWriteDate"_s).value_or(-1)) + zeroTime)
            .arg(m_calendars.windows.size());
    }
    QString expected() const
    {
        return u"%1 | %2 %3 | stored %4 at %5 | %6 fetches"_s.arg(m_model.text)
            .arg(m_model.streak)
            .arg(m_model.streak == 1 ? u"day"_s : u"days"_s)
            .arg(m_model.streak)
            .arg(m_model.lastDay.value_or(-1))
            .arg(m_model.fetches);
    }

private:
    void moveClock(qint64 moment)
    {
        m_model.now = moment;
        m_clock.time = double(moment - zeroTime);
    }

    void restart()
    {
        m_panel.reset();
        m_appState = std::make_unique<AppState>(m_scheduler, m_clock, m_file);
        openPanel();
    }

    void openPanel()
    {
        m_panel.reset();
        m_model.open();
        m_untilTick = 60;
        m_panel = std::make_unique<TasksPanelViewModel>(
            *m_appState,
            TasksServices{m_scheduler, m_clock, m_preferences, m_calendars, QLocale(u"en_US"_s)});
    }

    void see(bool isSeen)
    {
        m_model.setSeen(isSeen);
        m_panel->setSeen(isSeen);
    }

    QString travel()
    {
        static const std::array zones{"UTC",
                                      "Europe/Berlin",
                                      "America/New_York",
                                      "Pacific/Auckland",
                                      "America/Sao_Paulo",
                                      "Asia/Kathmandu",
                                      "Australia/Lord_Howe",
                                      "Pacific/Kiritimati",
                                      "Africa/Cairo"};
        const char *zone = zones[std::size_t(m_random.bounded(int(zones.size())))];
        m_clock.zone = QTimeZone(zone);
        m_model.zone = m_clock.zone;
        return u"travel to "_s + QLatin1StringView(zone);
    }

    QString setClockBack()
    {
        if (m_random.bounded(4) == 0)
            moveClock(m_model.now - m_random.bounded(60, int(3 * day)));
        return u"set the clock back"_s;
    }

    QString type()
    {
        if (m_appState->documents().size() < 3) {
            m_appState->createDocument(Space::work);
        } else {
            PelkoDocument document = m_appState->documents()[m_random.bounded(3)];
            document.blocks[0].content = QString::number(++m_typed);
            m_appState->updateDocument(document);
        }
        m_model.type();
        return u"type"_s;
    }

    QString answer()
    {
        if (!m_calendars.isWaitedFor())
            return u"no answer"_s;
        QList<CalendarEvent> events;
        m_model.ends.clear();
        for (int count = m_random.bounded(5); count > 0; --count) {
            const qint64 end = m_model.now + m_random.bounded(-3600, int(day));
            events.append({.start = double(end - zeroTime) - 1800, .end = double(end - zeroTime)});
            m_model.ends.push_back(end);
        }
        m_calendars.answer(events);
        return u"answer"_s;
    }

    QString passTime(int seconds)
    {
        while (seconds > 0) {
            const int part = std::min(seconds, m_untilTick);
            seconds -= part;
            m_untilTick -= part;
            moveClock(m_model.now + part);
            if (m_untilTick == 0) {
                m_untilTick = 60;
                m_model.tick();
            }
            m_scheduler.advance(std::chrono::seconds(part));
        }
        return u"time passes"_s;
    }

    QRandomGenerator m_random;
    PanelModel m_model;
    int m_untilTick = 60;
    int m_typed = 0;
    ManualScheduler m_scheduler;
    ManualClock m_clock;
    ManualDocumentFile m_file;
    ManualPreferences m_preferences;
    ManualCalendarStore m_calendars;
    std::unique_ptr<AppState> m_appState;
    std::unique_ptr<TasksPanelViewModel> m_panel;
};
} // namespace

/// Compares a year of the tasks panel with an independent model of streak, clock and fetches.
class TestTasksPanelYear : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aYearOfDaysZonesAndRestarts_data() { addRandomSeeds(); }
    void aYearOfDaysZonesAndRestarts()
    {
        QFETCH(quint32, seed);
        RandomYear year(seed);
        QStringList steps;
        while (!year.isOver()) {
            steps << year.step();
            if (year.shown() != year.expected())
                qInfo("%d steps, the last of them: %s", int(steps.size()),
                      qPrintable(steps.mid(std::max<qsizetype>(0, steps.size() - 8)).join(u", "_s)));
            QCOMPARE(year.shown(), year.expected());
        }
    }
};

PELKO_TEST(TestTasksPanelYear)
#include "tst_TasksPanelYear.moc"
