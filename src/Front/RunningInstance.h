#pragma once

#include <optional>
#include <string>
#include <vector>

/// What the running program says to a command line that was handed to it.
struct InstanceAnswer {
    /// In the place of an exit code: the caller carries its command out itself.
    static constexpr int yours = 254;

    /// In the place of an exit code: the running program was asked and does not answer.
    static constexpr int silent = 253;

    int exitCode = 0;
    /// For standard output, or for standard error when the exit code is not 0.
    std::string text;
};

/// In the environment of the program that is started: the running one was asked already and does not answer.
constexpr const char *unansweredVariable = "PELKO_UNANSWERED";

/// Hands the arguments of a command line, without the program's name, to the program that has `dataFolder`
/// open, and waits for its answer. Nothing when there is no such program. Needs only the system's library,
/// so that a call from a key binding costs no more than it must.
std::optional<InstanceAnswer> askRunningInstance(const std::string &dataFolder,
                                                 const std::vector<std::string> &arguments);

/// What is sent: what the desktop gave the new process to come to the front with, then the arguments, each
/// ended by a null character.
std::string instanceRequest(const std::string &activationToken, const std::vector<std::string> &arguments);
