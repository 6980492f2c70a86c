#include "Launcher/UserDataFolder.h"

#include <cstdlib>

namespace
{
std::optional<std::string> folderFromEnvironment(const char *name)
{
    const char *folder = std::getenv(name);
    return folder && *folder == '/' ? std::optional<std::string>(folder) : std::nullopt;
}
} // namespace

std::optional<std::string> userDataFolder()
{
    if (auto data = folderFromEnvironment("XDG_DATA_HOME"))
        return data;
    const auto home = folderFromEnvironment("HOME");
    return home ? std::optional(*home + "/.local/share") : std::nullopt;
}
