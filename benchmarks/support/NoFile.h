#pragma once

#include "Services/DocumentFile.h"

/// Holds nothing and takes everything: no benchmark of the editor waits for a disk.
class NoFile : public DocumentFile
{
public:
    Contents read() override { return Missing{}; }
    std::optional<FileError> replace(const Producer &) override { return std::nullopt; }
    std::optional<FileError> confirm() override { return std::nullopt; }
    bool canReplace() const override { return true; }
};
