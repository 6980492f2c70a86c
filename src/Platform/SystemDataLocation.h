#pragma once

#include "Services/DataLocation.h"

/// On free desktops $XDG_DATA_HOME or ~/.local/share, as far as the environment names them; elsewhere what
/// the system says.
class SystemDataLocation : public DataLocation
{
public:
    std::optional<std::filesystem::path> applicationSupportDirectory() const override;
};
