#pragma once

#include "Services/DataLocation.h"

/// On Unix $XDG_DATA_HOME or ~/.local/share; on other systems QStandardPaths.
class SystemDataLocation : public DataLocation
{
public:
    std::optional<std::filesystem::path> applicationSupportDirectory() const override;
};
