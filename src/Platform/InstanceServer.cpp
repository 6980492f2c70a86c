#include "Platform/InstanceServer.h"

#include "Launcher/InstanceSocket.h"

#include <QSocketNotifier>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr qsizetype longestRequest = 4 * 1024 * 1024; // more than a command line can hold
constexpr int waitingLine = 64;

ino_t inodeOf(const char *path)
{
    struct stat status = {};
    return ::lstat(path, &status) == 0 ? status.st_ino : 0;
}

/// The connection of one client: reads the whole request, then sends the reply.
class Client : public QObject
{
public:
    Client(FileDescriptor socket, InstanceServer::Answer answer, QObject *parent)
        : QObject(parent)
        , m_socket(std::move(socket))
        , m_answer(std::move(answer))
        , m_notifier(m_socket.number(), QSocketNotifier::Read)
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, &Client::receive);
    }

private:
    void receive()
    {
        char part[4096];
        const ssize_t count = ::recv(m_socket.number(), part, sizeof part, MSG_DONTWAIT);
        if (count < 0 && (errno == EAGAIN || errno == EINTR))
            return;
        if (count > 0 && m_request.size() < longestRequest) {
            m_request.append(part, count);
            return;
        }
        m_notifier.setEnabled(false);
        if (count == 0)
            reply();
        deleteLater();
    }

    void reply()
    {
        QList<QByteArray> parts = m_request.split('\0');
        if (parts.size() < 2)
            return;
        parts.removeLast(); // each part is ended by a null character
        if (!parts.first().isEmpty())
            qputenv("XDG_ACTIVATION_TOKEN", parts.first());
        QStringList arguments{QStringLiteral("pelko")};
        for (const QByteArray &argument : parts.mid(1))
            arguments.append(QString::fromLocal8Bit(argument));
        const CommandLineResult answer = m_answer(arguments);
        const QByteArray bytes = char(answer.exitCode) + answer.text.toLocal8Bit();
        // Replies are short enough for the socket buffer, so a slow client does not block.
        ::send(m_socket.number(), bytes.constData(), std::size_t(bytes.size()), MSG_NOSIGNAL | MSG_DONTWAIT);
    }

    FileDescriptor m_socket;
    InstanceServer::Answer m_answer;
    QSocketNotifier m_notifier;
    QByteArray m_request;
};
} // namespace

InstanceServer::InstanceServer(std::filesystem::path dataFolder, Answer answer, QObject *parent)
    : QObject(parent)
    , m_folder(std::move(dataFolder))
    , m_answer(std::move(answer))
{
    listen();
}

void InstanceServer::listen()
{
    m_notifier.reset();
    const InstanceSocket address(m_folder);
    ::unlink(address.path()); // left behind by one that was killed
    FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const mode_t mask = ::umask(S_IRWXG | S_IRWXO);
    const bool isBound = ::bind(socket.number(), address.address(), address.size()) == 0;
    ::umask(mask);
    if (!isBound || ::listen(socket.number(), waitingLine) != 0)
        return;
    m_socket = std::move(socket);
    m_socketFile = inodeOf(address.path());
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.number(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &InstanceServer::accept);
}

InstanceServer::~InstanceServer()
{
    const InstanceSocket address(m_folder);
    if (m_socket.isOpen() && inodeOf(address.path()) == m_socketFile)
        ::unlink(address.path());
}

void InstanceServer::accept()
{
    FileDescriptor client(::accept4(m_socket.number(), nullptr, nullptr, SOCK_CLOEXEC));
    if (client.isOpen())
        new Client(std::move(client), m_answer, this);
}
