#include "Platform/PortalImageChooser.h"

#include "Platform/PortalRequest.h"

PortalImageChooser::PortalImageChooser(QDBusConnection bus, ParentWindow parentWindow,
                                       ImageChooser &otherwise)
    : m_bus(std::move(bus))
    , m_parentWindow(std::move(parentWindow))
    , m_otherwise(otherwise)
{
}

ScheduledCall PortalImageChooser::choose(Completion completion)
{
    const auto request = std::make_shared<PortalRequest>(m_bus, std::move(completion), m_otherwise);
    request->send(m_parentWindow());
    return ScheduledCall(request);
}
