#pragma once

#include <QStringList>

#include <optional>

/// What the program says to its command line instead of starting.
struct CommandLineAnswer {
    /// For standard output, or for standard error when the exit code is not 0.
    QString text;
    int exitCode = 0;

    bool operator==(const CommandLineAnswer &) const = default;
};

/// The answer to `arguments`, the first of which names the program; nothing when it is to start. Needs no
/// application object, so it works where there is no display.
std::optional<CommandLineAnswer> answerCommandLine(const QStringList &arguments);
