#include "Platform/SingleInstance.h"

#include "Launcher/RunningInstance.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
constexpr auto longestWait = 10s;
constexpr auto betweenTries = 20ms;
static_assert(CommandLineResult::runInCaller == InstanceReply::runInCaller);

std::optional<CommandLineResult> ask(const std::filesystem::path &folder, const QStringList &arguments)
{
    std::vector<std::string> bytes;
    for (const QString &argument : arguments.mid(1))
        bytes.push_back(argument.toLocal8Bit().toStdString());
    const auto answer = askRunningInstance(folder, bytes);
    if (!answer)
        return std::nullopt;
    if (answer->exitCode == InstanceReply::silent)
        return SingleInstance::unanswered();
    return CommandLineResult{QString::fromLocal8Bit(answer->text), answer->exitCode};
}
} // namespace

SingleInstance::SingleInstance(std::filesystem::path dataFolder) : m_folder(std::move(dataFolder)) {}

std::optional<CommandLineResult> SingleInstance::lockOrForward(const QStringList &arguments)
{
    const auto deadline = std::chrono::steady_clock::now() + longestWait;
    do {
        if (tryToLock() != Attempt::taken)
            return std::nullopt;
        if (auto answer = ask(m_folder, arguments))
            return answer;
        std::this_thread::sleep_for(betweenTries);
    } while (std::chrono::steady_clock::now() < deadline);
    return CommandLineResult{
        u"pelko: %1\n"_s.arg(tr("Another Pelko has these documents open and does not answer.")), 1};
}

CommandLineResult SingleInstance::unanswered()
{
    return {u"pelko: %1\n"_s.arg(tr("The running Pelko does not answer.")), 1};
}

std::optional<QString> SingleInstance::warning() const
{
    if (m_error == 0 || m_error == EWOULDBLOCK)
        return std::nullopt;
    const QString reason = QString::fromLocal8Bit(std::strerror(m_error));
    return u"pelko: %1\n"_s.arg(
        tr("The documents cannot be locked (%1): do not open them in another Pelko meanwhile.").arg(reason));
}

bool SingleInstance::holdsFolder() const
{
    if (!isLocked())
        return true;
    struct stat held = {};
    struct stat there = {};
    return ::fstat(m_lock.number(), &held) == 0 && ::lstat(lockFile().c_str(), &there) == 0 &&
           held.st_dev == there.st_dev && held.st_ino == there.st_ino;
}

std::optional<FileError> SingleInstance::relock()
{
    if (tryToLock() != Attempt::taken)
        return std::nullopt; // the following read or write reports the error
    return FileError(FileError::Problem::openedElsewhere);
}

SingleInstance::Attempt SingleInstance::tryToLock()
{
    std::error_code ignored;
    std::filesystem::create_directories(m_folder.parent_path(), ignored);
    ::mkdir(m_folder.c_str(), S_IRWXU);
    FileDescriptor lock(
        ::open(lockFile().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
    if (!lock.isOpen() || ::flock(lock.number(), LOCK_EX | LOCK_NB) != 0) {
        m_error = errno;
        return m_error == EWOULDBLOCK ? Attempt::taken : Attempt::impossible;
    }
    m_error = 0;
    m_lock = std::move(lock);
    return Attempt::locked;
}
