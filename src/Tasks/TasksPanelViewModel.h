#pragma once

#include "Services/Scheduler.h"
#include "Tasks/LibrarySummary.h"
#include "Tasks/TaskListModel.h"
#include "Tasks/TasksServices.h"
#include "Tasks/UpcomingEvents.h"

class AppState;

/// The view model of the tasks panel while it is open. It updates with the store and once a minute, counted
/// from its opening; the shown minute may be up to 59 seconds old. While the panel is hidden, the clock, the
/// streak and the events are not updated. Ids are strings in QML.
class TasksPanelViewModel : public QObject
{
    Q_OBJECT
    // QML has no 64-bit integers, so numbers are doubles or 32-bit integers here.
    Q_PROPERTY(bool hasOpenDocument READ hasOpenDocument NOTIFY openDocumentChanged)
    Q_PROPERTY(QString openDocumentText READ openDocumentText NOTIFY openDocumentChanged)
    Q_PROPERTY(QString time READ time NOTIFY currentTimeChanged)
    Q_PROPERTY(QString timeMarker READ timeMarker NOTIFY currentTimeChanged)
    Q_PROPERTY(QString dateString READ dateString NOTIFY currentTimeChanged)
    Q_PROPERTY(QObject *tasks READ tasks CONSTANT)
    Q_PROPERTY(int pendingCount READ pendingCount NOTIFY pendingCountChanged)
    Q_PROPERTY(QString newTaskText READ newTaskText NOTIFY newTaskTextChanged)
    Q_PROPERTY(double wordTotal READ wordTotal NOTIFY wordTotalChanged)
    Q_PROPERTY(double wordGoal READ wordGoal CONSTANT)
    Q_PROPERTY(double wordProgress READ wordProgress NOTIFY wordTotalChanged)
    Q_PROPERTY(double currentStreak READ currentStreak NOTIFY currentStreakChanged)
    Q_PROPERTY(QString streakUnit READ streakUnit NOTIFY currentStreakChanged)
    Q_PROPERTY(UpcomingEvents *upcomingEvents READ upcomingEvents CONSTANT)

public:
    TasksPanelViewModel(AppState &appState, const TasksServices &services, QObject *parent = nullptr);

    bool hasOpenDocument() const { return !m_openDocumentText.isEmpty(); }
    /// The word count of the open page and the time since its last edit, such as "107 words · 5m ago".
    const QString &openDocumentText() const { return m_openDocumentText; }
    /// The time, such as "7:42", and "AM" or "PM".
    QString time() const;
    QString timeMarker() const;
    /// Such as "Thursday, Oct 16".
    QString dateString() const;
    /// A TaskListModel.
    QObject *tasks() { return &m_tasks; }
    qint64 pendingCount() const { return m_pendingCount; }
    /// The text of the field for a new task.
    const QString &newTaskText() const { return m_newTaskText; }
    /// The word count of the whole library.
    qint64 wordTotal() const { return m_wordTotal; }
    qint64 wordGoal() const;
    /// From 0 to 1.
    double wordProgress() const;
    /// In days.
    qint64 currentStreak() const { return m_currentStreak; }
    /// "day" or "days".
    QString streakUnit() const;
    /// Fetched when the panel becomes visible, and again when they are outdated.
    UpcomingEvents *upcomingEvents() { return &m_upcomingEvents; }

    /// Set by the view: whether the panel and its window are visible. Initially true.
    Q_INVOKABLE void setSeen(bool isSeen);
    /// Called by the view when the text of the field changes.
    Q_INVOKABLE void typed(const QString &text);
    /// Adds a task with the text of the field and clears it. Does nothing if the text is blank.
    Q_INVOKABLE void submitNewTask();
    /// Adds an entry to the open document; does nothing when none is open.
    Q_INVOKABLE void addQuickTask(const QString &text);
    Q_INVOKABLE void toggleTodo(const QString &docID, const QString &blockID, const QString &todoID);
    Q_INVOKABLE void deleteTodo(const QString &docID, const QString &blockID, const QString &todoID);

    /// Return the row of the next, previous or nearest task, or -1. Nearest to a heading is the task below
    /// it.
    Q_INVOKABLE int taskAfter(int row) const { return m_tasks.taskFrom(row + 1, 1); }
    Q_INVOKABLE int taskBefore(int row) const { return m_tasks.taskFrom(row - 1, -1); }
    Q_INVOKABLE int taskNear(int row) const;

Q_SIGNALS:
    void openDocumentChanged();
    void currentTimeChanged();
    void pendingCountChanged();
    void newTaskTextChanged();
    void wordTotalChanged();
    void currentStreakChanged();

private:
    void tick();
    void followClock();
    void followStore();
    void followOpenDocument();
    void followStreak();

    AppState &m_appState;
    const TasksServices m_services;
    LibrarySummary m_library;
    quint64 m_lastChange = 0;
    TaskListModel m_tasks;
    qint64 m_pendingCount = 0;
    QString m_openDocumentText;
    QString m_newTaskText;
    qint64 m_wordTotal = 0;
    qint64 m_currentStreak = 0;
    bool m_isSeen = true;
    Timestamp m_currentTime;
    UpcomingEvents m_upcomingEvents;
    QTimeZone m_zone;
    ScheduledCall m_timeTimer;
};
