#pragma once

#include "Services/ExportFolder.h"

#include <QStringList>

#include <variant>

/// What the program says to its command line.
struct CommandLineResult {
    /// In the place of an exit code: nothing is against it, and the process that was given the command line
    /// carries it out itself.
    static constexpr int runInCaller = 254;

    /// For standard output, or for standard error when the exit code is not 0.
    QString text;
    int exitCode = 0;

    bool operator==(const CommandLineResult &) const = default;
};

/// To show the window.
struct OpenCommand {
    bool operator==(const OpenCommand &) const = default;
};

/// To file one line as a spark. The text is not blank.
struct SparkCommand {
    QString text;

    bool operator==(const SparkCommand &) const = default;
};

/// To work the pomodoro of the running program.
struct PomodoroCommand {
    enum class Verb { start, pause, reset, status };
    Verb verb = Verb::status;

    bool operator==(const PomodoroCommand &) const = default;
};

/// To write all pages into a folder. Its path is not empty.
struct ExportCommand {
    QString folder;
    ExportFolder::Existing existing = ExportFolder::Existing::keep;

    bool operator==(const ExportCommand &) const = default;
};

using ParsedCommandLine =
    std::variant<CommandLineResult, OpenCommand, SparkCommand, PomodoroCommand, ExportCommand>;

/// What `arguments`, the first of which names the program, ask for, or the answer to them where that is
/// already known. Needs no application object, so it works where there is no display.
ParsedCommandLine parseCommandLine(const QStringList &arguments);
