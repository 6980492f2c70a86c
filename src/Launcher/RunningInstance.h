#pragma once

#include <optional>
#include <string>
#include <vector>

/// The reply of the running program to a command line.
struct InstanceReply {
    /// Reserved exit code: the caller must run the command itself.
    static constexpr int runInCaller = 254;

    int exitCode = 0;
    /// For standard output, or for standard error when the exit code is not 0.
    std::string text;
};

/// UserInput the arguments of a command line, without the program's name, to the program that has
/// `dataFolder` open, and waits for its answer. Nothing when there is no such program. Needs only the
/// system's library, so that a call from a key binding costs no more than it must.
std::optional<InstanceReply> askRunningInstance(const std::string &dataFolder,
                                                const std::vector<std::string> &arguments);

/// Returns the request: the activation token of the new process, then the arguments, each followed by a null
/// character.
std::string instanceRequest(const std::string &activationToken, const std::vector<std::string> &arguments);
