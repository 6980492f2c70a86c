#pragma once

#include "Services/FileChooser.h"
#include "Shell/FolderEntryModel.h"

#include <QObject>
#include <QStringList>

/// A file chooser of the program, for desktops that offer none. It shows the user's folders and the pictures
/// in them, and starts in the last folder.
class FolderChooser : public QObject, public FileChooser
{
    Q_OBJECT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)
    Q_PROPERTY(bool wantsFolder READ wantsFolder NOTIFY wantsFolderChanged)
    Q_PROPERTY(QString folder READ folder NOTIFY folderChanged)
    Q_PROPERTY(QString folderName READ folderName NOTIFY folderChanged)
    Q_PROPERTY(bool canGoUp READ canGoUp NOTIFY folderChanged)
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)
    Q_PROPERTY(bool isListing READ isListing NOTIFY isListingChanged)
    Q_PROPERTY(QObject *entries READ entries CONSTANT)
    Q_PROPERTY(QStringList places READ places CONSTANT)
    Q_PROPERTY(int place READ place NOTIFY folderChanged)

public:
    explicit FolderChooser(PictureFolders &folders);

    ScheduledCall choose(Target target, Completion completion) override;

    bool isOpen() const { return m_isOpen; }
    /// Whether a folder is chosen; then no pictures are shown.
    bool wantsFolder() const { return m_target == Target::folder; }
    /// The path of the shown folder.
    QString folder() const;
    /// The last component of the path.
    QString folderName() const { return PictureFolders::nameOf(m_folder); }
    bool canGoUp() const { return m_folder.has_relative_path(); }
    /// Why the folder cannot be shown; otherwise empty.
    QString problem() const { return m_problem.description(); }
    bool isListing() const { return m_isListing; }
    QObject *entries() { return &m_entries; }
    /// The names of the user's standard folders.
    QStringList places() const;
    /// The index of the shown folder in `places`, or -1.
    int place() const;

    /// Opens the folder in the row, or chooses the picture.
    Q_INVOKABLE void take(int row);
    /// Chooses the shown folder.
    Q_INVOKABLE void takeFolder();
    Q_INVOKABLE void goUp();
    Q_INVOKABLE void goToPlace(int place);
    /// Opens the folder of a typed path, or chooses the file. "~" is the home folder.
    Q_INVOKABLE void goTo(const QString &path);
    Q_INVOKABLE int rowStartingWith(const QString &text, int from) const;
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void isOpenChanged();
    void wantsFolderChanged();
    void folderChanged();
    void problemChanged();
    void isListingChanged();
    /// Another folder is shown. `row` is the one to select.
    void listed(int row);

private:
    void list(const std::filesystem::path &folder, const std::filesystem::path &cameFrom = {});
    void show(QList<PictureFolders::Entry> entries, const std::filesystem::path &folder,
              const std::filesystem::path &cameFrom);
    void finish(const Choice &choice);
    void close();
    void setIsListing(bool listing);
    void setProblem(const FileError &problem);

    PictureFolders &m_folders;
    FolderEntryModel m_entries;
    const QList<std::filesystem::path> m_places;
    std::filesystem::path m_folder;
    FileError m_problem;
    Target m_target = Target::picture;
    bool m_isOpen = false;
    bool m_isListing = false;
    ScheduledCall m_listing;
    std::weak_ptr<Completion> m_request;
};
