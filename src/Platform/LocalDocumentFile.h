#pragma once

#include "Services/DataLocation.h"
#include "Services/DocumentFile.h"

#include <future>

/// "data.json" in the folder "Pelko" of the application-support directory. The path is made afresh, and the
/// folder if need be, each time. Whatever else may lie in the file's place (a folder, a pipe, a device) is an
/// error and is neither waited for nor touched.
class LocalDocumentFile : public DocumentFile
{
public:
    explicit LocalDocumentFile(const DataLocation &location);

    Contents read() override;
    [[nodiscard]] std::optional<FileError> replace(const Producer &produce) override;
    [[nodiscard]] std::optional<FileError> confirm() override;
    /// Looks at the permissions and at the free space, for a file as large as the one that is there.
    bool canReplace() const override;

private:
    std::optional<std::filesystem::path> path() const;

    const DataLocation &m_location;
    std::future<std::optional<FileError>> m_settling; // waited for in the end
};
