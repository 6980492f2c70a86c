#include "Platform/SystemDataLocation.h"

#include <QFile>
#include <QStandardPaths>

namespace
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
/// A relative path in the environment is to be ignored.
std::optional<std::filesystem::path> folderFromEnvironment(const char *name)
{
    const std::filesystem::path folder = qgetenv(name).toStdString();
    return folder.is_absolute() ? std::optional(folder) : std::nullopt;
}

// QStandardPaths is not asked: without a HOME it answers with a folder below "/".
std::optional<std::filesystem::path> userDataFolder()
{
    if (const auto data = folderFromEnvironment("XDG_DATA_HOME"))
        return data;
    const auto home = folderFromEnvironment("HOME");
    return home ? std::optional(*home / ".local" / "share") : std::nullopt;
}
#else
std::optional<std::filesystem::path> userDataFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return folder.isEmpty() ? std::nullopt : std::optional(QFile(folder).filesystemFileName());
}
#endif
} // namespace

std::optional<std::filesystem::path> SystemDataLocation::applicationSupportDirectory() const
{
    return userDataFolder();
}
