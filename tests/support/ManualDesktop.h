#pragma once

#include "Services/EditorServices.h"
#include "Services/FileChooser.h"
#include "Services/PictureFiles.h"
#include "support/ManualPasteboard.h"

#include <map>

/// A chooser that ends when the test calls `answer`.
class ManualFileChooser : public FileChooser
{
public:
    ScheduledCall choose(Target what, Completion completion) override
    {
        ++asked;
        target = what;
        const auto request = std::make_shared<Completion>(std::move(completion));
        m_request = request;
        return ScheduledCall(request);
    }

    bool isOpen() const { return !m_request.expired(); }

    /// Ends the dialog. Does nothing if the request was cancelled.
    void answer(const Choice &choice)
    {
        if (const auto request = m_request.lock())
            (*request)(choice);
    }

    int asked = 0;
    Target target = Target::picture;

private:
    std::weak_ptr<Completion> m_request;
};

/// Files in memory, returned at once or when the test calls `answer`.
class ManualPictureFiles : public PictureFiles
{
public:
    ScheduledCall read(const std::filesystem::path &file, Completion completion) override
    {
        const auto request = std::make_shared<Completion>(std::move(completion));
        m_requests.emplace_back(file, request);
        if (!isSlow)
            handOver();
        return ScheduledCall(request);
    }

    void handOver()
    {
        for (const auto &[file, waiting] : std::exchange(m_requests, {})) {
            const auto found = files.find(file);
            if (const auto request = waiting.lock())
                (*request)(found == files.end() ? std::nullopt : std::optional(found->second));
        }
    }

    std::map<std::filesystem::path, QByteArray> files;
    bool isSlow = false;

private:
    std::vector<std::pair<std::filesystem::path, std::weak_ptr<Completion>>> m_requests;
};

/// The desktop of a test.
struct ManualDesktop {
    ManualPasteboard pasteboard;
    ManualFileChooser fileChooser;
    ManualPictureFiles pictureFiles;

    EditorServices services(Scheduler &scheduler)
    {
        return {scheduler, pasteboard, fileChooser, pictureFiles};
    }
};
