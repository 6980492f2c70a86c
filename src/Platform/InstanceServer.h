#pragma once

#include "Platform/FileDescriptor.h"
#include "Shell/CommandLine.h"

#include <QObject>

#include <functional>
#include <memory>
#include <sys/types.h>

class QSocketNotifier;

/// Listens on a local socket in the data folder for the command lines of other processes, and replies to
/// them. Only the process that holds the folder's lock may listen. On file systems without sockets it does
/// not listen, and a second start reports that.
class InstanceServer : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<CommandLineResult(const QStringList &arguments)>;

    InstanceServer(std::filesystem::path dataFolder, Answer answer, QObject *parent = nullptr);
    ~InstanceServer() override;

    /// Listens in the folder that lies at the path now.
    void listen();

private:
    void accept();

    std::filesystem::path m_folder;
    Answer m_answer;
    FileDescriptor m_socket;
    ino_t m_socketFile = 0; ///< inode, so that only the own socket file is removed at the end
    std::unique_ptr<QSocketNotifier> m_notifier;
};
