#pragma once

#include "Editor/Edit.h"
#include "Editor/PageChange.h"
#include "Editor/TypingRun.h"

/// What was done on one page, to be taken back and done again: a value. It knows the page as it last saw it.
/// When the page has been changed behind its back, that change becomes a step of its own before anything
/// else happens, so nothing written elsewhere is ever overwritten without a way back. What is kept is
/// bounded: the oldest steps go first, the latest always stays.
class EditHistory
{
public:
    struct Limits {
        qsizetype steps = 10'000;
        qsizetype textBytes = 8 << 20;
        qsizetype pictureBytes = 256 << 20;
    };

    /// Where the writer was before a step and is after it.
    struct Places {
        std::optional<FocusTarget> before;
        std::optional<FocusTarget> after;
    };

    EditHistory() = default;
    explicit EditHistory(const Limits &limits) : m_limits(limits) {}

    bool canUndo() const { return !m_past.isEmpty(); }
    bool canRedo() const { return !m_future.isEmpty(); }
    qsizetype steps() const { return m_past.size() + m_future.size(); }

    /// Remembers what was changed behind its back, if anything, as one step.
    void follow(const QList<Block> &blocks, const Places &places = {});
    /// Remembers a change as one step.
    void record(const PelkoDocument &before, const PelkoDocument &after, const Places &places);
    /// Remembers what one key made of the text at `places.after`, together with the keys just before it.
    void recordTyping(const PelkoDocument &before, const PelkoDocument &after, const Places &places);
    /// The next key begins a step of its own.
    void endRun() { m_run.reset(); }

    /// Takes back the last step, or nothing. `page` is the page as it is now.
    std::optional<Edit> undo(PelkoDocument page);
    /// Does the step that was last taken back again, or nothing.
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
    QList<Step> m_future; // the step that was taken back last stands last
    PageChange::Size m_pastSize;
    std::optional<QList<Block>> m_present;
    std::optional<TypingRun> m_run;
};
