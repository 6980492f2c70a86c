#pragma once

#include "Platform/FileDescriptor.h"
#include "Shell/CommandLine.h"

#include <QObject>

#include <functional>
#include <memory>
#include <sys/types.h>

class QSocketNotifier;

/// Listens beside the data for command lines that were given to another process, and answers them. Only the
/// process that holds the lock of the folder may listen there. Where the file system knows no sockets nobody
/// is heard, and a second start says so.
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
    ino_t m_socketFile = 0; ///< that no other process's is removed in the end
    std::unique_ptr<QSocketNotifier> m_notifier;
};
