#pragma once

#include <QByteArrayList>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// A change of the files in a folder that matters after a power cut.
struct DiskEvent {
    enum class Kind {
        written, ///< `bytes` were appended to `file`
        fileSynchronised,
        renamed, ///< `file` took the place of the data file
        folderSynchronised,
        returned, ///< the program was told that its version is safe
    };

    Kind kind = Kind::returned;
    std::string file = {}; ///< the name that it was made under
    QByteArray bytes = {};
};

/// Records the system calls of this process that change files in `folder`, as long as it lives. Only one
/// object at a time.
class RecordedDisk
{
public:
    explicit RecordedDisk(const std::filesystem::path &folder);
    ~RecordedDisk();
    RecordedDisk(const RecordedDisk &) = delete;
    RecordedDisk &operator=(const RecordedDisk &) = delete;

    void add(DiskEvent event) { m_events.push_back(std::move(event)); }
    const std::vector<DiskEvent> &events() const { return m_events; }
    const std::filesystem::path &folder() const { return m_folder; }

private:
    std::filesystem::path m_folder;
    std::vector<DiskEvent> m_events;
};

/// Models a disk that keeps only synchronised data after a power cut.
class CrashedDisk
{
public:
    /// The data file contains `contents`, synchronised.
    explicit CrashedDisk(const QByteArray &contents);

    void apply(const DiskEvent &event);

    /// Returns the possible contents of the data file after a power cut: for each file that may have the
    /// name, none, half or all of the unsynchronised bytes, and zeros in place of the lost ones.
    QByteArrayList survivors() const;

private:
    struct File {
        QByteArray bytes;
        qsizetype safe = 0;
    };

    std::map<std::string, File> m_files;
    std::vector<std::string> m_candidates; // the file that has the name for certain, then later ones
};
