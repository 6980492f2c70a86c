#pragma once

#include <QByteArrayList>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// One thing that happened to the files of a folder, as far as it matters for what a power cut leaves.
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

/// While it lives, the system calls of this program that change files in `folder` are noted down. One at a
/// time.
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

/// A disk that keeps for certain only what was synchronised.
class CrashedDisk
{
public:
    /// The data file holds `contents`, safely.
    explicit CrashedDisk(const QByteArray &contents);

    void apply(const DiskEvent &event);

    /// What the data file may hold when the current comes back: for each of the files that it may be, no
    /// byte, half and all of what was not synchronised, and zeros in the place of what was lost.
    QByteArrayList survivors() const;

private:
    struct File {
        QByteArray bytes;
        qsizetype safe = 0;
    };

    std::map<std::string, File> m_files;
    std::vector<std::string> m_candidates; // the file that certainly has the name, then later ones
};
