#include "Tasks/TasksPanelViewModel.h"

#include "Editor/TodoOperations.h"
#include "Services/Clock.h"
#include "Store/AppState.h"
#include "Store/ChangeScope.h"
#include "Tasks/ClockText.h"
#include "Tasks/TaskOperations.h"
#include "Tasks/WordGoal.h"
#include "Tasks/WritingStreak.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace
{
constexpr auto tickInterval = 60s;

/// Line breaks do not count as blanks here.
bool isBlankTask(const QString &text)
{
    return std::ranges::all_of(text, [](QChar character) {
        return character == u'\t' || character.category() == QChar::Separator_Space;
    });
}
} // namespace

TasksPanelViewModel::TasksPanelViewModel(AppState &appState, const TasksServices &services, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_services(services)
    , m_currentTime(services.clock.now())
    , m_upcomingEvents(services.eventStore, services.clock, services.locale)
    , m_zone(services.clock.timeZone())
    , m_timeTimer(services.scheduler.every(tickInterval, [this] { tick(); }))
{
    connect(&m_appState, &AppState::documentsChanged, this, &TasksPanelViewModel::followStore);
    connect(&m_appState, &AppState::openDocumentIDChanged, this, &TasksPanelViewModel::followOpenDocument);
    followStore();
    m_upcomingEvents.fetchEvents();
}

QString TasksPanelViewModel::time() const
{
    return ClockText::time(m_currentTime, m_zone, m_services.locale);
}

QString TasksPanelViewModel::timeMarker() const
{
    return ClockText::marker(m_currentTime, m_zone, m_services.locale);
}

QString TasksPanelViewModel::dateString() const
{
    return ClockText::date(m_currentTime, m_zone, m_services.locale);
}

qint64 TasksPanelViewModel::wordGoal() const
{
    return WordGoal::words;
}

double TasksPanelViewModel::wordProgress() const
{
    return WordGoal::progress(m_wordTotal);
}

QString TasksPanelViewModel::streakUnit() const
{
    //: Stands behind the number of the streak.
    return tr("day(s)", nullptr, static_cast<int>(m_currentStreak));
}

void TasksPanelViewModel::typed(const QString &text)
{
    ChangeScope(*this).assign(m_newTaskText, text, &TasksPanelViewModel::newTaskTextChanged);
}

void TasksPanelViewModel::submitNewTask()
{
    if (isBlankTask(m_newTaskText))
        return;
    addQuickTask(m_newTaskText);
    typed({});
}

void TasksPanelViewModel::addQuickTask(const QString &text)
{
    if (const std::optional<PelkoDocument> open = m_appState.openDocument())
        m_appState.updateDocument(TaskOperations::addQuickTask(*open, text));
}

void TasksPanelViewModel::toggleTodo(const QString &docID, const QString &blockID, const QString &todoID)
{
    const LibrarySummary::Page *page = m_library.page(QUuid(docID));
    if (!page)
        return;
    const TextAddress entry{.blockID = QUuid(blockID), .partID = QUuid(todoID)};
    if (auto changed = TodoOperations::toggle(page->doc, entry))
        m_appState.updateDocument(std::move(changed->document));
}

void TasksPanelViewModel::deleteTodo(const QString &docID, const QString &blockID, const QString &todoID)
{
    const LibrarySummary::Page *page = m_library.page(QUuid(docID));
    if (!page)
        return;
    if (auto changed = TaskOperations::deleteTodo(page->doc, QUuid(blockID), QUuid(todoID)))
        m_appState.updateDocument(*std::move(changed));
}

int TasksPanelViewModel::taskNear(int row) const
{
    const int below = m_tasks.taskFrom(std::max(row, 0), 1);
    return below >= 0 ? below : m_tasks.taskFrom(std::min(row, m_tasks.rowCount() - 1), -1);
}

void TasksPanelViewModel::setSeen(bool isSeen)
{
    if (std::exchange(m_isSeen, isSeen) == isSeen || !isSeen)
        return;
    followClock();
    m_upcomingEvents.fetchEvents();
}

void TasksPanelViewModel::tick()
{
    if (!m_isSeen)
        return;
    followClock();
    m_upcomingEvents.followClock();
}

void TasksPanelViewModel::followClock()
{
    m_currentTime = m_services.clock.now();
    m_zone = m_services.clock.timeZone();
    Q_EMIT currentTimeChanged();
    followOpenDocument();
    followStreak();
}

void TasksPanelViewModel::followStore()
{
    // replacedRow() is only valid if no earlier change was missed.
    const bool missedNone = m_appState.changeCount() == m_lastChange + 1;
    m_lastChange = m_appState.changeCount();
    if (m_library.read(m_appState.documents(), missedNone ? m_appState.replacedRow() : std::nullopt)) {
        const QList<TaskGroup> groups = m_library.todosByDoc();
        m_tasks.publish(taskRows(groups));
        ChangeScope(*this).assign(m_pendingCount, ::pendingCount(groups),
                                  &TasksPanelViewModel::pendingCountChanged);
    }
    ChangeScope(*this).assign(m_wordTotal, m_library.wordCount(), &TasksPanelViewModel::wordTotalChanged);
    followOpenDocument();
    followStreak();
}

void TasksPanelViewModel::followOpenDocument()
{
    const std::optional<QUuid> openID = m_appState.openDocumentID();
    QString text;
    if (const LibrarySummary::Page *open = openID ? m_library.page(*openID) : nullptr) {
        const QString date = open->doc.relativeDate(m_services.clock.now(), m_zone, m_services.locale);
        //: Length and age of the open page, such as "107 words · 5m ago".
        text = tr("%n words · %1", nullptr, static_cast<int>(open->words)).arg(date);
    }
    ChangeScope(*this).assign(m_openDocumentText, text, &TasksPanelViewModel::openDocumentChanged);
}

void TasksPanelViewModel::followStreak()
{
    if (!m_isSeen)
        return;
    const qint64 streak = WritingStreak::currentStreak(m_services.preferences, m_services.clock.now(),
                                                       m_services.clock.timeZone());
    ChangeScope(*this).assign(m_currentStreak, streak, &TasksPanelViewModel::currentStreakChanged);
}
