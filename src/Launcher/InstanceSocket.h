#pragma once

#include <string>
#include <sys/socket.h>
#include <sys/un.h>

/// The address of the local socket of the process that has a data folder open. The socket is a file in that
/// folder. The address is valid as long as this object lives.
class InstanceSocket
{
public:
    explicit InstanceSocket(const std::string &dataFolder);
    InstanceSocket(const InstanceSocket &) = delete;
    InstanceSocket &operator=(const InstanceSocket &) = delete;
    ~InstanceSocket();

    const sockaddr *address() const { return reinterpret_cast<const sockaddr *>(&m_address); }
    socklen_t size() const { return sizeof m_address; }
    const char *path() const { return m_address.sun_path; }

private:
    sockaddr_un m_address = {};
    int m_folder = -1;
};
