#pragma once

#include "Services/ImageChooser.h"

#include <QDBusConnection>

/// The file chooser that the desktop itself offers to all programs, asked for over the session bus. Where the
/// desktop offers none, another chooser is shown in its place.
class PortalImageChooser : public ImageChooser
{
public:
    /// Names the window that the chooser belongs to, in the way the desktop names windows; empty for none.
    using ParentWindow = std::function<QString()>;

    PortalImageChooser(QDBusConnection bus, ParentWindow parentWindow, ImageChooser &otherwise);

    ScheduledCall choose(Completion completion) override;

private:
    const QDBusConnection m_bus;
    const ParentWindow m_parentWindow;
    ImageChooser &m_otherwise;
};
