#include "Launcher/InstanceSocket.h"

#include <cstring>
#include <fcntl.h>
#include <unistd.h>

InstanceSocket::InstanceSocket(const std::string &dataFolder)
{
    std::string path = dataFolder + "/instance.socket";
    // An address holds about a hundred bytes. A longer path is reached through the opened folder.
    if (path.size() >= sizeof m_address.sun_path) {
        m_folder = ::open(dataFolder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
        path = "/proc/self/fd/" + std::to_string(m_folder) + "/instance.socket";
    }
    m_address.sun_family = AF_UNIX;
    std::memcpy(m_address.sun_path, path.c_str(), path.size() + 1);
}

InstanceSocket::~InstanceSocket()
{
    if (m_folder >= 0)
        ::close(m_folder);
}
