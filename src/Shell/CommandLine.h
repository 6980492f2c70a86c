#pragma once

#include "Services/ExportFolder.h"

#include <QStringList>

#include <variant>

/// The output and exit code for a command line.
struct CommandLineResult {
    /// Reserved exit code: the process that received the command line must run the command itself.
    static constexpr int runInCaller = 254;

    /// For standard output, or for standard error when the exit code is not 0.
    QString text;
    int exitCode = 0;

    bool operator==(const CommandLineResult &) const = default;
};

/// Show the window.
struct OpenCommand {
    bool operator==(const OpenCommand &) const = default;
};

/// Save one line as a spark. The text is not blank.
struct SparkCommand {
    QString text;

    bool operator==(const SparkCommand &) const = default;
};

/// Control the pomodoro timer of the running program.
struct PomodoroCommand {
    enum class Verb { start, pause, reset, status };
    Verb verb = Verb::status;

    bool operator==(const PomodoroCommand &) const = default;
};

/// Export all pages into a folder. Its path is not empty.
struct ExportCommand {
    QString folder;
    ExportFolder::Existing existing = ExportFolder::Existing::keep;

    bool operator==(const ExportCommand &) const = default;
};

using ParsedCommandLine =
    std::variant<CommandLineResult, OpenCommand, SparkCommand, PomodoroCommand, ExportCommand>;

/// Parses the command line; the first argument is the program name. Returns a CommandLineResult for --help,
/// --version and errors. Needs no QCoreApplication.
ParsedCommandLine parseCommandLine(const QStringList &arguments);
