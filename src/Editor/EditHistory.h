#pragma once

#include "Editor/Edit.h"
#include "Editor/PageChange.h"
#include "Editor/TypingRun.h"

/// The undo history of one page, a value. It keeps the page as it last saw it: a change made elsewhere
/// becomes a step of its own before anything else happens, so it can be undone as well. The size is bounded:
/// the oldest steps are dropped first, and the latest is always kept.
class EditHistory
{
public:
    struct Limits {
        qsizetype steps = 10'000;
        qsizetype textBytes = 8 << 20;
        qsizetype pictureBytes = 256 << 20;
    };

    /// The focus before and after a step.
    struct Places {
        std::optional<FocusTarget> before;
        std::optional<FocusTarget> after;
    };

    EditHistory() = default;
    explicit EditHistory(const Limits &limits) : m_limits(limits) {}

    qsizetype steps() const { return m_past.size() + m_future.size(); }

    /// Records changes that were made elsewhere, if any, as one step.
    void follow(const QList<Block> &blocks, const Places &places = {});
    /// Records a change as one step.
    void record(const PelkoDocument &before, const PelkoDocument &after, const Places &places);
    /// Records a typed change of the text at `places.after`, joined with the keys just before it.
    void recordTyping(const PelkoDocument &before, const PelkoDocument &after, const Places &places);
    /// Makes the next key begin a new step.
    void endRun() { m_run.reset(); }

    /// Returns the page before the last step, or std::nullopt if there is none. `page` is the present page.
    std::optional<Edit> undo(PelkoDocument page);
    /// Returns the page after the step that was undone last, or std::nullopt if there is none.
    std::optional<Edit> redo(PelkoDocument page);

private:
    struct Step {
        PageChange change;
        Places places;
    };

    void push(const Step &step);
    void weigh(const Step &step, qsizetype sign);
    void trim();

    Limits m_limits;
    QList<Step> m_past;
    QList<Step> m_future; // the step that was undone last is the last one
    PageChange::Size m_pastSize;
    std::optional<QList<Block>> m_present;
    std::optional<TypingRun> m_run;
};
