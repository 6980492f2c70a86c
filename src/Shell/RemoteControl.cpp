#include "Shell/RemoteControl.h"

#include "Store/AppState.h"
#include "Timers/PomodoroTimer.h"

using namespace Qt::StringLiterals;

CommandLineResult captureSpark(AppState &appState, const SparkCommand &command)
{
    appState.captureSpark(command.text);
    appState.confirmSave();
    if (const std::optional<QString> error = appState.lastSaveError())
        return {u"pelko: %1\n"_s.arg(*error), 1};
    return {};
}

RemoteControl::RemoteControl(AppState &appState, PomodoroTimer &timer, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_timer(timer)
{
}

CommandLineResult RemoteControl::answer(const QStringList &arguments)
{
    const ParsedCommandLine commandLine = parseCommandLine(arguments);
    if (const auto *known = std::get_if<CommandLineResult>(&commandLine))
        return *known;
    if (const auto *spark = std::get_if<SparkCommand>(&commandLine))
        return captureSpark(m_appState, *spark);
    if (const auto *pomodoro = std::get_if<PomodoroCommand>(&commandLine))
        return controlPomodoro(pomodoro->verb);
    if (std::holds_alternative<ExportCommand>(commandLine))
        return allowExport();
    Q_EMIT openRequested();
    return {};
}

CommandLineResult RemoteControl::allowExport()
{
    m_appState.saveChanges();
    if (const std::optional<QString> error = m_appState.lastSaveError())
        return {u"pelko: %1\n"_s.arg(*error), 1};
    return {{}, CommandLineResult::runInCaller};
}

CommandLineResult RemoteControl::controlPomodoro(PomodoroCommand::Verb verb)
{
    switch (verb) {
    case PomodoroCommand::Verb::start:
        if (!m_timer.isRunning())
            m_timer.start();
        return {};
    case PomodoroCommand::Verb::pause:
        m_timer.pause();
        return {};
    case PomodoroCommand::Verb::reset:
        m_timer.reset();
        return {};
    case PomodoroCommand::Verb::status:
        break;
    }
    return {pomodoroStatus(), 0};
}

QString RemoteControl::pomodoroStatus() const
{
    return u"%1 %2 %3\n"_s.arg(m_timer.isFocusPhase() ? "focus"_L1 : "break"_L1, m_timer.displayTime(),
                               m_timer.isRunning() ? "running"_L1 : "paused"_L1); // for scripts
}
