#pragma once

#include "Shell/FolderChooser.h"
#include "support/ManualPictureFolders.h"

#include <QtQml/qqml.h>

/// The program's own file chooser with folders in memory, and the chosen file.
class ChooserFixture : public QObject
{
    Q_OBJECT
    Q_PROPERTY(FolderChooser *chooser READ chooser CONSTANT)

public:
    FolderChooser *chooser() { return &m_chooser; }

    /// Opens the chooser for a picture.
    Q_INVOKABLE void choose()
    {
        m_request = m_chooser.choose(FileChooser::Target::picture, [this](const FileChooser::Choice &choice) {
            m_chosen = QStringLiteral("nothing");
            for (const std::filesystem::path &file : std::get<QList<std::filesystem::path>>(choice))
                m_chosen = QString::fromStdString(file.string());
        });
    }

    /// The path of the picture, "nothing" after cancellation, or empty while the chooser is open.
    Q_INVOKABLE QString chosen() const { return m_chosen; }

private:
    ManualPictureFolders m_folders;
    FolderChooser m_chooser{m_folders};
    ScheduledCall m_request;
    QString m_chosen;
};
