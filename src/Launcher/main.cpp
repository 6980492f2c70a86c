// What is started as "pelko". Another Pelko may have the data open already: then it gets the command line and
// this process ends before it has loaded anything but the system's library. Otherwise the program itself
// takes this process over.

#include "Launcher/RunningInstance.h"
#include "Launcher/UserDataFolder.h"

#include <algorithm>
#include <climits>
#include <cstdio>
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

/// Help and version need no other Pelko, which may be of another version.
bool asksAboutTheProgram(const std::vector<std::string> &arguments)
{
    return std::ranges::any_of(arguments, [](const std::string &argument) {
        return argument == "--help" || argument == "-h" || argument == "--version" || argument == "-v";
    });
}

/// Beside this one where both are built, below libexec where they are installed.
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
        if (answer && answer->exitCode != InstanceReply::runInCaller) {
            std::fputs(answer->text.c_str(), answer->exitCode == 0 ? stdout : stderr);
            return answer->exitCode;
        }
    }
    return execMainProgram(argv);
}
