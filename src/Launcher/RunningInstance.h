#pragma once

#include <optional>
#include <string>
#include <vector>

/// The reply of the running program to a command line.
struct InstanceReply {
    /// Reserved exit code: the caller must run the command itself.
    static constexpr int runInCaller = 254;

    /// Reserved exit code: the running program was asked and does not answer.
    static constexpr int silent = 253;

    int exitCode = 0;
    /// For standard output, or for standard error when the exit code is not 0.
    std::string text;
};

/// Environment variable of the program that is started: the running one was asked already and does not
/// answer.
constexpr const char *unansweredVariable = "PELKO_UNANSWERED";

/// Sends the arguments of a command line, without the program's name, to the program that has `dataFolder`
/// open, and waits for its reply. Returns std::nullopt if there is none. Uses no Qt, so that a call from a
/// key binding starts fast.
std::optional<InstanceReply> askRunningInstance(const std::string &dataFolder,
                                                const std::vector<std::string> &arguments);

/// Returns the request: the activation token of the new process, then the arguments, each followed by a null
/// character.
std::string instanceRequest(const std::string &activationToken, const std::vector<std::string> &arguments);
