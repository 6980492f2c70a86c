#pragma once

#include "Shell/CommandLine.h"

#include <QObject>

class AppState;
class PomodoroTimer;

/// Files the spark at once. The answer says whether it reached the disk; it is in the store either way.
CommandLineResult captureSpark(AppState &appState, const SparkCommand &command);

/// What other processes may ask of the running program: command lines that were given to a second one.
class RemoteControl : public QObject
{
    Q_OBJECT

public:
    RemoteControl(AppState &appState, PomodoroTimer &timer, QObject *parent = nullptr);

    /// Does what the arguments ask for and says what came of it. The first names the program.
    CommandLineResult answer(const QStringList &arguments);

Q_SIGNALS:
    /// The window has to come to the front.
    void openRequested();

private:
    /// An export reads the file, which anybody may; it has to hold the latest words.
    CommandLineResult allowExport();
    CommandLineResult controlPomodoro(PomodoroCommand::Verb verb);
    QString pomodoroStatus() const;

    AppState &m_appState;
    PomodoroTimer &m_timer;
};
