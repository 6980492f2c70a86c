#pragma once

#include "Services/ExportFolder.h"

/// A folder that writes when the test calls it, with the result that the test sets.
class ManualExportFolder : public ExportFolder
{
public:
    ScheduledCall write(const std::filesystem::path &target, Producer produce, Existing what,
                        Completion completion) override
    {
        ++asked;
        folder = target;
        existing = what;
        m_produce = std::move(produce);
        const auto request = std::make_shared<Completion>(std::move(completion));
        m_request = request;
        return ScheduledCall(request);
    }

    bool isWaitedFor() const { return !m_request.expired(); }

    void answer(const Outcome &outcome)
    {
        if (const auto request = m_request.lock()) {
            files = m_produce();
            (*request)(outcome);
        }
    }

    int asked = 0;
    std::filesystem::path folder;
    Existing existing = Existing::keep;
    QList<ExportedFile> files;

private:
    Producer m_produce;
    std::weak_ptr<Completion> m_request;
};
