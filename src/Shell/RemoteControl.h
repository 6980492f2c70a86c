#pragma once

#include "Shell/CommandLine.h"

#include <QObject>

class AppState;
class PomodoroTimer;

/// Adds the spark and saves. Returns an error if it could not be saved; the store keeps it in any case.
CommandLineResult captureSpark(AppState &appState, const SparkCommand &command);

/// Runs the command lines that other processes send to this one.
class RemoteControl : public QObject
{
    Q_OBJECT

public:
    RemoteControl(AppState &appState, PomodoroTimer &timer, QObject *parent = nullptr);

    /// Runs a command line and returns its result. The first argument is the program name.
    CommandLineResult answer(const QStringList &arguments);

Q_SIGNALS:
    /// The window must be shown in front.
    void openRequested();

private:
    /// Saves, then returns the exit code that makes the caller export from the file.
    CommandLineResult allowExport();
    CommandLineResult controlPomodoro(PomodoroCommand::Verb verb);
    QString pomodoroStatus() const;

    AppState &m_appState;
    PomodoroTimer &m_timer;
};
