// The executable "pelko". If a running Pelko has the data folder open, sends it the command line and exits
// without loading Qt. Otherwise replaces this process by "pelko-window".

#include "Launcher/RunningInstance.h"
#include "Launcher/UserDataFolder.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace
{
std::string ownFolder()
{
    char path[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path);
    const std::string program(path, std::size_t(length > 0 ? length : 0));
    return program.substr(0, program.rfind('/'));
}

/// --help and --version are answered by this installation: the running Pelko may be of another version.
bool asksAboutTheProgram(const std::vector<std::string> &arguments)
{
    return std::ranges::any_of(arguments, [](const std::string &argument) {
        return argument == "--help" || argument == "-h" || argument == "--version" || argument == "-v";
    });
}

/// Calls exec on pelko-window: in the same folder in a build tree, in libexec when installed. Returns only on
/// failure.
int execMainProgram(char *argv[])
{
    const std::string folder = ownFolder();
    for (const char *place : {"/pelko-window", "/../libexec/pelko-window"})
        ::execv((folder + place).c_str(), argv);
    std::fprintf(stderr, "pelko: %s/../libexec/pelko-window: %s\n", folder.c_str(), std::strerror(errno));
    return 1;
}
} // namespace

int main(int argc, char *argv[])
{
    const std::vector<std::string> arguments(argv + (argc > 0), argv + argc);
    if (const auto folder = asksAboutTheProgram(arguments) ? std::nullopt : userDataFolder()) {
        const auto answer = askRunningInstance(*folder + "/Pelko", arguments);
        if (answer && answer->exitCode == InstanceReply::silent) {
            // The program reports it in the user's language.
            ::setenv(unansweredVariable, "1", 1);
            return execMainProgram(argv);
        }
        if (answer && answer->exitCode != InstanceReply::runInCaller) {
            std::fputs(answer->text.c_str(), answer->exitCode == 0 ? stdout : stderr);
            return answer->exitCode;
        }
    }
    return execMainProgram(argv);
}
