#include "Platform/SystemDataLocation.h"

#include "Launcher/UserDataFolder.h"

#include <QFile>
#include <QStandardPaths>

namespace
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
std::optional<std::filesystem::path> dataFolder()
{
    const auto folder = userDataFolder();
    return folder ? std::optional<std::filesystem::path>(*folder) : std::nullopt;
}
#else
std::optional<std::filesystem::path> dataFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return folder.isEmpty() ? std::nullopt : std::optional(QFile(folder).filesystemFileName());
}
#endif
} // namespace

std::optional<std::filesystem::path> SystemDataLocation::applicationSupportDirectory() const
{
    return dataFolder();
}
