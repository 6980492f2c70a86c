#pragma once

#include <optional>
#include <string>
#include <vector>

/// What the running program says to a command line that was handed to it.
struct InstanceReply {
    /// In the place of an exit code: the caller carries its command out itself.
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

/// What is sent: what the desktop gave the new process to come to the front with, then the arguments, each
/// ended by a null character.
std::string instanceRequest(const std::string &activationToken, const std::vector<std::string> &arguments);
