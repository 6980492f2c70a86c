#include "Launcher/RunningInstance.h"

#include "Launcher/InstanceSocket.h"

#include <cstdlib>
#include <sys/time.h>
#include <unistd.h>

namespace
{
constexpr timeval answerTime{.tv_sec = 10, .tv_usec = 0};
const InstanceReply noAnswer{InstanceReply::silent, {}};

std::string activationToken()
{
    for (const char *name : {"XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"}) {
        if (const char *token = std::getenv(name))
            return token;
    }
    return {};
}

bool sendAll(int socket, const std::string &bytes)
{
    for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t count = ::send(socket, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count <= 0)
            return false;
        sent += std::size_t(count);
    }
    return ::shutdown(socket, SHUT_WR) == 0;
}

std::optional<std::string> receiveAll(int socket)
{
    std::string bytes;
    char part[4096];
    while (true) {
        const ssize_t count = ::recv(socket, part, sizeof part, 0);
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            return bytes;
        bytes.append(part, std::size_t(count));
    }
}

InstanceReply ask(int socket, const std::string &request)
{
    ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &answerTime, sizeof answerTime);
    ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &answerTime, sizeof answerTime);
    if (!sendAll(socket, request))
        return noAnswer;
    const std::optional<std::string> reply = receiveAll(socket);
    if (!reply || reply->empty())
        return noAnswer;
    return {static_cast<unsigned char>(reply->front()), reply->substr(1)};
}
} // namespace

std::optional<InstanceReply> askRunningInstance(const std::string &dataFolder,
                                                const std::vector<std::string> &arguments)
{
    const InstanceSocket address(dataFolder);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket < 0)
        return std::nullopt;
    std::optional<InstanceReply> answer;
    if (::connect(socket, address.address(), address.size()) == 0)
        answer = ask(socket, instanceRequest(activationToken(), arguments));
    ::close(socket);
    return answer;
}

std::string instanceRequest(const std::string &activationToken, const std::vector<std::string> &arguments)
{
    std::string request = activationToken + '\0';
    for (const std::string &argument : arguments)
        request += argument + '\0';
    return request;
}
