#include "Timers/PomodoroViewModel.h"

#include "Services/Pasteboard.h"
#include "Store/AppState.h"
#include "Store/ChangeScope.h"
#include "Timers/PomodoroText.h"
#include "Timers/PomodoroTimer.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
constexpr qint64 dotLimit = 4;
constexpr qsizetype cardLimit = 4;
constexpr auto focusDelayWhenShown = 150ms;
constexpr auto focusDelayAfterCapture = 50ms;
} // namespace

PomodoroViewModel::PomodoroViewModel(PomodoroTimer &timer, AppState &appState, Pasteboard &pasteboard,
                                     Scheduler &scheduler, QObject *parent)
    : QObject(parent)
    , m_timer(timer)
    , m_appState(appState)
    , m_pasteboard(pasteboard)
    , m_scheduler(scheduler)
{
    followTimer();
    connect(&m_appState, &AppState::documentsChanged, this, &PomodoroViewModel::refreshSparks);
    connect(&m_appState, &AppState::lastSaveErrorChanged, this, &PomodoroViewModel::followLastSave);
    refreshSparks();
}

void PomodoroViewModel::followTimer()
{
    connect(&m_timer, &PomodoroTimer::timeRemainingChanged, this, &PomodoroViewModel::timeChanged);
    // The progress depends on the length of the phase.
    connect(&m_timer, &PomodoroTimer::isFocusPhaseChanged, this, &PomodoroViewModel::timeChanged);
    connect(&m_timer, &PomodoroTimer::isFocusPhaseChanged, this, &PomodoroViewModel::phaseChanged);
    connect(&m_timer, &PomodoroTimer::isRunningChanged, this, &PomodoroViewModel::isRunningChanged);
    connect(&m_timer, &PomodoroTimer::sessionCountChanged, this, &PomodoroViewModel::sessionsChanged);
}

QString PomodoroViewModel::displayTime() const
{
    return m_timer.displayTime();
}

double PomodoroViewModel::progress() const
{
    return phaseProgress(m_timer);
}

bool PomodoroViewModel::isRunning() const
{
    return m_timer.isRunning();
}

QString PomodoroViewModel::phase() const
{
    //: What the timer measures, in capitals: time to write or time to rest.
    return m_timer.isFocusPhase() ? tr("FOCUS") : tr("BREAK");
}

int PomodoroViewModel::sessionCount() const
{
    return int(m_timer.sessionCount());
}

int PomodoroViewModel::sessionDots() const
{
    return int(std::min(m_timer.sessionCount(), dotLimit));
}

QString PomodoroViewModel::moreSessions() const
{
    const qint64 more = m_timer.sessionCount() - dotLimit;
    return more > 0 ? u"+%1"_s.arg(more) : QString();
}

bool PomodoroViewModel::canSubmit() const
{
    return !QStringView(m_quickNote).trimmed().isEmpty();
}

void PomodoroViewModel::shown()
{
    focusCaptureAfter(focusDelayWhenShown);
}

void PomodoroViewModel::startFresh()
{
    m_delayedFocus.cancel();
    m_lastCapturedID.reset();
    m_unsavedSpark.clear();
    refreshSparks();
    typed({});
    Q_EMIT startedFresh();
}

void PomodoroViewModel::toggleTimer()
{
    startOrPause(m_timer);
}

void PomodoroViewModel::resetTimer()
{
    m_timer.reset();
}

void PomodoroViewModel::typed(const QString &text)
{
    ChangeScope(*this).assign(m_quickNote, text, &PomodoroViewModel::quickNoteChanged);
    refreshCaptureError();
}

void PomodoroViewModel::submitSpark()
{
    if (!canSubmit())
        return;
    if (holdsUnsavedSpark())
        m_appState.saveChanges(); // clears the field when it succeeds
    else
        captureNote();
    focusCaptureAfter(focusDelayAfterCapture);
}

void PomodoroViewModel::captureNote()
{
    const QString text = m_quickNote.trimmed();
    const std::optional<PelkoDocument> spark = m_appState.captureSpark(text);
    if (!spark)
        return;
    m_lastCapturedID = spark->id;
    refreshSparks();
    if (!m_appState.lastSaveError()) {
        typed({});
        return;
    }
    m_unsavedSpark = text;
    refreshCaptureError();
}

bool PomodoroViewModel::holdsUnsavedSpark() const
{
    return !m_unsavedSpark.isEmpty() && m_quickNote.trimmed() == m_unsavedSpark;
}

void PomodoroViewModel::followLastSave()
{
    if (!m_appState.lastSaveError()) {
        const bool isDone = holdsUnsavedSpark();
        m_unsavedSpark.clear();
        if (isDone)
            typed({});
    }
    refreshCaptureError();
}

void PomodoroViewModel::refreshCaptureError()
{
    const QString error = holdsUnsavedSpark() ? m_appState.lastSaveError().value_or(QString()) : QString();
    ChangeScope(*this).assign(m_captureError, error, &PomodoroViewModel::captureErrorChanged);
}

void PomodoroViewModel::copySpark(const QString &sparkID)
{
    if (const PelkoDocument *spark = m_appState.document(QUuid(sparkID)))
        m_pasteboard.put({.text = sparkText(*spark)});
}

void PomodoroViewModel::deleteSpark(const QString &sparkID)
{
    if (const PelkoDocument *spark = m_appState.document(QUuid(sparkID)))
        m_appState.permanentlyDeleteDocument(*spark);
    focusCaptureAfter(focusDelayAfterCapture); // the removed card may have had the focus
}

void PomodoroViewModel::refreshSparks()
{
    RecentSparks recent = recentSparks(m_appState.documents(), cardLimit, m_lastCapturedID);
    m_sparks.publish(std::move(recent.cards));
    ChangeScope(*this).assign(m_sparkCount, int(recent.total), &PomodoroViewModel::sparkCountChanged);
}

void PomodoroViewModel::focusCaptureAfter(std::chrono::milliseconds delay)
{
    m_delayedFocus = m_scheduler.after(delay, [this] { Q_EMIT captureFocusRequested(); });
}
