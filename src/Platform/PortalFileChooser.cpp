#include "Platform/PortalFileChooser.h"

#include "Platform/PortalRequest.h"

PortalFileChooser::PortalFileChooser(QDBusConnection bus, ParentWindow parentWindow, FileChooser &otherwise,
                                     std::chrono::milliseconds replyTimeout)
    : m_bus(std::move(bus))
    , m_parentWindow(std::move(parentWindow))
    , m_otherwise(otherwise)
    , m_replyTimeout(replyTimeout)
{
}

ScheduledCall PortalFileChooser::choose(Target target, Completion completion)
{
    const auto request = std::make_shared<PortalRequest>(m_bus, target, std::move(completion), m_otherwise);
    request->send(m_parentWindow(), m_replyTimeout);
    return ScheduledCall(request);
}
