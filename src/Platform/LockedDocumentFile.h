#pragma once

#include "Services/DocumentFile.h"

#include <functional>

class SingleInstance;

/// The data file in the folder that this process has locked. A folder that was removed, or replaced by
/// another one, is locked again before anything is written into it; while another process has it, every save
/// fails.
class LockedDocumentFile : public DocumentFile
{
public:
    /// Both must outlive this object.
    LockedDocumentFile(DocumentFile &file, SingleInstance &instance);

    /// Sets the action that is called after another folder was locked and before the file is written there.
    void onFolderChanged(std::function<void()> action) { m_folderChanged = std::move(action); }
    /// Locks the folder again if it is another one than before.
    [[nodiscard]] std::optional<FileError> followFolder();

    Contents read() override;
    [[nodiscard]] std::optional<FileError> replace(const Producer &produce) override;
    /// Also an error if the folder was removed after the write.
    [[nodiscard]] std::optional<FileError> confirm() override;
    bool canReplace() const override;

private:
    DocumentFile &m_file;
    SingleInstance &m_instance;
    std::function<void()> m_folderChanged = [] {};
};
