#pragma once

#include <string>
#include <sys/socket.h>
#include <sys/un.h>

/// The address of the socket at which the program listens that has a data folder open. It lies beside the
/// data, so that whoever finds the one finds the other. The object has to live while the address is used.
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
