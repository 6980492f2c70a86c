#pragma once

#include "Models/LocalTime.h"
#include "Shell/MainViewModel.h"
#include "Store/AppState.h"
#include "Tasks/TasksViewModel.h"
#include "support/ManualCalendarStore.h"
#include "support/ManualClock.h"
#include "support/ManualDesktop.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualPreferences.h"
#include "support/ManualScheduler.h"

#include <QtQml/qqml.h>

/// A library with manual time and the tasks panel. A page is described by its title and its tasks, with "x"
/// before ticked ones and "-" before others.
class TasksFixture : public QObject
{
    Q_OBJECT
    Q_PROPERTY(MainViewModel *main READ mainViewModel CONSTANT)
    Q_PROPERTY(TasksViewModel *tasks READ tasks CONSTANT)

public:
    MainViewModel *mainViewModel() { return &m_main; }
    TasksViewModel *tasks() { return &m_tasks; }

    /// Adds a page and opens it.
    Q_INVOKABLE void add(const QString &title, const QStringList &tasks = {})
    {
        m_appState.createDocument(Space::work);
        PelkoDocument document = *m_appState.openDocument();
        document.blocks = {Block(BlockType::textLarge, title), Block(BlockType::sticky)};
        document.blocks.last().todos.emplace();
        for (const QString &task : tasks)
            document.blocks.last().todos->append({.text = task.mid(1), .done = task.startsWith(u'x')});
        m_appState.updateDocument(document);
    }

    /// Returns the tasks of a page.
    Q_INVOKABLE QStringList tasksOf(int page) const
    {
        QStringList tasks;
        for (const TodoItem &todo :
             m_appState.documents()[page].blocks.last().todos.value_or(QList<TodoItem>()))
            tasks << (todo.done ? u'x' : u'-') + todo.text;
        return tasks;
    }

    Q_INVOKABLE void closeDocument() { m_appState.setOpenDocumentID(std::nullopt); }
    Q_INVOKABLE void open(int page) { m_appState.setOpenDocumentID(m_appState.documents()[page].id); }
    Q_INVOKABLE void goTo(const QString &space) { m_appState.setCurrentSpace(*spaceFromRawValue(space)); }

    /// Sets the time on a Thursday in October.
    Q_INVOKABLE void setTime(int hour, int minute)
    {
        m_clock.time = timestampOf(QDateTime(QDate(2025, 10, 16), QTime(hour, minute), QTimeZone::utc()));
    }

    /// Sets the events; "20 Tea" is one in twenty minutes.
    Q_INVOKABLE void tellEvents(const QStringList &events)
    {
        QList<CalendarEvent> told;
        for (const QString &event : events) {
            const QString title = event.section(u' ', 1);
            told.append({.title = title.isEmpty() ? std::nullopt : std::optional(title),
                         .start = m_clock.time + event.section(u' ', 0, 0).toInt() * 60,
                         .identifier = event});
        }
        m_calendars.answer(told);
    }

    /// Returns how often events were fetched.
    Q_INVOKABLE int fetches() const { return int(m_calendars.windows.size()); }

    Q_INVOKABLE void passMinutes(int minutes)
    {
        for (int minute = 0; minute < minutes; ++minute) {
            m_clock.time += 60;
            m_scheduler.advance(std::chrono::seconds(60));
        }
    }

private:
    ManualScheduler m_scheduler;
    ManualClock m_clock;
    ManualDocumentFile m_file;
    ManualDesktop m_desktop;
    ManualPreferences m_preferences;
    ManualCalendarStore m_calendars;
    AppState m_appState{m_scheduler, m_clock, m_file};
    MainViewModel m_main{m_appState, m_clock, m_desktop.services(m_scheduler)};
    TasksViewModel m_tasks{
        m_appState, {m_scheduler, m_clock, m_preferences, m_calendars, QLocale(QStringLiteral("en_US"))}};
};
