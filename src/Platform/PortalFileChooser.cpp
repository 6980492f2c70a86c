#include "Platform/PortalFileChooser.h"

#include "Platform/PortalRequest.h"

PortalFileChooser::PortalFileChooser(QDBusConnection bus, ParentWindow parentWindow, FileChooser &otherwise,
                                     std::chrono::milliseconds longestAnswer)
    : m_bus(std::move(bus))
    , m_parentWindow(std::move(parentWindow))
    , m_otherwise(otherwise)
    , m_longestAnswer(longestAnswer)
{
}

ScheduledCall PortalFileChooser::choose(Wanted wanted, Completion completion)
{
    const auto request = std::make_shared<PortalRequest>(m_bus, wanted, std::move(completion), m_otherwise);
    request->send(m_parentWindow(), m_longestAnswer);
    return ScheduledCall(request);
}
