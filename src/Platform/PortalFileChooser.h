#pragma once

#include "Services/FileChooser.h"

#include <QDBusConnection>

/// The file chooser that the desktop itself offers to all programs, asked for over the session bus. Where the
/// desktop offers none, another chooser is shown in its place.
class PortalFileChooser : public FileChooser
{
public:
    /// Names the window that the chooser belongs to, in the way the desktop names windows; empty for none.
    using ParentWindow = std::function<QString()>;

    /// `replyTimeout`: how long the portal may take to accept a request before `otherwise` is shown.
    /// Starting the service is part of it, showing the dialog is not.
    PortalFileChooser(QDBusConnection bus, ParentWindow parentWindow, FileChooser &otherwise,
                      std::chrono::milliseconds replyTimeout = std::chrono::seconds(10));

    ScheduledCall choose(Target target, Completion completion) override;

private:
    const QDBusConnection m_bus;
    const ParentWindow m_parentWindow;
    FileChooser &m_otherwise;
    const std::chrono::milliseconds m_replyTimeout;
};
