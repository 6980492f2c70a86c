#pragma once

#include "Services/PictureFolders.h"

#include <map>
#include <vector>

/// Folders in memory, listed at once or when the test calls `answer`. Paths without a folder are files, and a
/// folder named "locked" cannot be opened.
class ManualPictureFolders : public PictureFolders
{
public:
    QList<std::filesystem::path> places() const override { return {"/home/me", "/home/me/Pictures"}; }

    ScheduledCall list(const std::filesystem::path &folder, Completion completion) override
    {
        const auto request = std::make_shared<Completion>(std::move(completion));
        m_requests.emplace_back(folder, request);
        if (!isSlow)
            answer();
        return ScheduledCall(request);
    }

    /// Completes the pending listing.
    void answer()
    {
        for (const auto &[folder, waiting] : std::exchange(m_requests, {})) {
            if (const auto tell = waiting.lock())
                (*tell)(listing(folder));
        }
    }

    bool isSlow = false;

private:
    /// Returns more folders than a chooser shows at once; the last one is locked.
    static QList<Entry> manyFolders()
    {
        QList<Entry> folders;
        for (char letter = 'a'; letter <= 'z'; ++letter)
            folders.append({std::filesystem::path("/many") / std::string(1, letter), true});
        folders.append({"/many/zz locked", true});
        return folders;
    }

    static Listing listing(const std::filesystem::path &folder)
    {
        static const std::map<std::filesystem::path, QList<Entry>> folders{
            {"/home/me", {{"/home/me/Pictures", true}, {"/home/me/cat.png", false}}},
            {"/home/me/Pictures",
             {{"/home/me/Pictures/alp.jpg", false},
              {"/home/me/Pictures/Ant.jpg", false},
              {"/home/me/Pictures/bee.jpg", false}}},
            {"/home", {{"/home/empty", true}, {"/home/locked", true}, {"/home/me", true}}},
            {"/home/empty", {}},
            {"/", {{"/home", true}, {"/many", true}}},
            {"/many", manyFolders()}};
        if (folder.filename().string().ends_with("locked"))
            return FileError{QStringLiteral("Permission denied")};
        const auto found = folders.find(folder);
        return found == folders.end() ? Listing(File{}) : Listing(found->second);
    }

    std::vector<std::pair<std::filesystem::path, std::weak_ptr<Completion>>> m_requests;
};
