#pragma once

#include "Shell/ExportViewModel.h"
#include "Shell/FolderChooser.h"
#include "Store/AppState.h"
#include "support/ManualClock.h"
#include "support/ManualDocumentFile.h"
#include "support/ManualExportFolder.h"
#include "support/ManualPasteboard.h"
#include "support/ManualScheduler.h"

#include <QtQml/qqml.h>

/// Two folders and a picture in memory.
class FewFolders : public PictureFolders
{
public:
    QList<std::filesystem::path> places() const override { return {"/home/me"}; }

    ScheduledCall list(const std::filesystem::path &folder, Completion completion) override
    {
        completion(
            QList<Entry>{{folder / "Attic", true}, {folder / "Notes", true}, {folder / "cat.png", false}});
        return {};
    }
};

/// An export without a disk, with the result that a test sets.
class ExportFixture : public QObject
{
    Q_OBJECT
    Q_PROPERTY(ExportViewModel *exports READ exports CONSTANT)
    Q_PROPERTY(FolderChooser *chooser READ chooser CONSTANT)

public:
    ExportFixture() { m_state.createDocument(Space::work); }

    ExportViewModel *exports() { return &m_exports; }
    FolderChooser *chooser() { return &m_chooser; }

    Q_INVOKABLE QString folder() const { return QString::fromStdString(m_folder.folder.string()); }
    Q_INVOKABLE bool isReplacing() const { return m_folder.existing == ExportFolder::Existing::replace; }
    Q_INVOKABLE bool isWaitedFor() const { return m_folder.isWaitedFor(); }
    Q_INVOKABLE void takeLong() { m_scheduler.advance(std::chrono::seconds(1)); }
    Q_INVOKABLE void succeed() { m_folder.answer(ExportFolder::Success{}); }
    Q_INVOKABLE void findTaken(const QStringList &paths) { m_folder.answer(ExportFolder::Conflicts{paths}); }
    Q_INVOKABLE void fail(const QString &why) { m_folder.answer(FileError{why}); }

private:
    ManualScheduler m_scheduler;
    ManualClock m_clock;
    ManualDocumentFile m_file;
    ManualPasteboard m_pasteboard;
    ManualExportFolder m_folder;
    FewFolders m_folders;
    FolderChooser m_chooser{m_folders};
    AppState m_state{m_scheduler, m_clock, m_file};
    ExportViewModel m_exports{m_state, {m_scheduler, m_chooser, m_folder, m_pasteboard}};
};
