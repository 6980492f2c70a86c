#pragma once

#include "Services/Scheduler.h"
#include "Timers/SparkListModel.h"

class AppState;
class Pasteboard;
class PomodoroTimer;

/// The view model of the pomodoro panel: the timer, the capture field and the latest sparks. The text of the
/// field and the highlighted spark are reset each time the panel opens.
class PomodoroViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString displayTime READ displayTime NOTIFY timeChanged)
    Q_PROPERTY(double progress READ progress NOTIFY timeChanged)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(QString phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(int sessionCount READ sessionCount NOTIFY sessionsChanged)
    Q_PROPERTY(int sessionDots READ sessionDots NOTIFY sessionsChanged)
    Q_PROPERTY(QString moreSessions READ moreSessions NOTIFY sessionsChanged)
    Q_PROPERTY(QString quickNote READ quickNote NOTIFY quickNoteChanged)
    Q_PROPERTY(QString captureError READ captureError NOTIFY captureErrorChanged)
    Q_PROPERTY(bool canSubmit READ canSubmit NOTIFY quickNoteChanged)
    Q_PROPERTY(int sparkCount READ sparkCount NOTIFY sparkCountChanged)
    Q_PROPERTY(QObject *sparks READ sparks CONSTANT)

public:
    PomodoroViewModel(PomodoroTimer &timer, AppState &appState, Pasteboard &pasteboard, Scheduler &scheduler,
                      QObject *parent = nullptr);

    QString displayTime() const;
    /// How much of the phase has passed, from 0 to 1.
    double progress() const;
    bool isRunning() const;
    /// "FOCUS" or "BREAK".
    QString phase() const;
    /// The number of completed sessions.
    int sessionCount() const;
    /// The number of dots: one for each completed session, at most four.
    int sessionDots() const;
    /// "+N" for the sessions without a dot; empty if there are none.
    QString moreSessions() const;
    /// The text of the capture field.
    const QString &quickNote() const { return m_quickNote; }
    bool canSubmit() const;
    /// The error of the last attempt to save the spark in the field; otherwise empty.
    const QString &captureError() const { return m_captureError; }
    /// The number of all sparks.
    int sparkCount() const { return m_sparkCount; }
    QObject *sparks() { return &m_sparks; }

    /// Called when the panel is shown; focuses the field after a delay.
    Q_INVOKABLE void shown();
    /// Called when the panel has closed; resets its state.
    Q_INVOKABLE void startFresh();
    Q_INVOKABLE void toggleTimer();
    Q_INVOKABLE void resetTimer();
    /// Called by the view when the text of the field changes.
    Q_INVOKABLE void typed(const QString &text);
    /// Captures the text of the field, unless it is blank. A spark that cannot be saved stays in the field;
    /// submitting the same text again tries to save it and does not add another spark.
    Q_INVOKABLE void submitSpark();
    /// Puts all of the spark's text on the pasteboard.
    Q_INVOKABLE void copySpark(const QString &sparkID);
    Q_INVOKABLE void deleteSpark(const QString &sparkID);

Q_SIGNALS:
    void timeChanged();
    void isRunningChanged();
    void phaseChanged();
    void sessionsChanged();
    void quickNoteChanged();
    void captureErrorChanged();
    void sparkCountChanged();
    void startedFresh();
    /// The view must give the focus to the capture field.
    void captureFocusRequested();

private:
    void followTimer();
    void refreshSparks();
    void captureNote();
    void followLastSave();
    void refreshCaptureError();
    bool holdsUnsavedSpark() const;
    void focusCaptureAfter(std::chrono::milliseconds delay);

    PomodoroTimer &m_timer;
    AppState &m_appState;
    Pasteboard &m_pasteboard;
    Scheduler &m_scheduler;
    SparkListModel m_sparks;
    int m_sparkCount = 0;
    QString m_quickNote;
    std::optional<QUuid> m_lastCapturedID;
    /// The text of the last spark when it was captured but could not be saved.
    QString m_unsavedSpark;
    QString m_captureError;
    ScheduledCall m_delayedFocus;
};
