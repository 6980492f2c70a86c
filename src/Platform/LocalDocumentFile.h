#pragma once

#include "Services/DataLocation.h"
#include "Services/DocumentFile.h"

#include <future>

/// "data.json" in the folder "Pelko" of the application-support directory. Every operation determines the
/// path again and creates the folder if it is missing. A folder, pipe or device in the place of the file is
/// an error and stays untouched.
class LocalDocumentFile : public DocumentFile
{
public:
    explicit LocalDocumentFile(const DataLocation &location);

    Contents read() override;
    [[nodiscard]] std::optional<FileError> replace(const Producer &produce) override;
    [[nodiscard]] std::optional<FileError> confirm() override;
    /// Checks the permissions, and the free space for a file as large as the present one.
    bool canReplace() const override;

private:
    std::optional<std::filesystem::path> path() const;

    const DataLocation &m_location;
    std::future<std::optional<FileError>> m_settling; // the destructor waits for it
};
