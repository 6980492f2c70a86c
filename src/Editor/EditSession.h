#pragma once

#include "Editor/EditHistory.h"
#include "Services/Scheduler.h"

class AppState;

/// The work of one editor on its page: every change of it is stored and remembered here, so that it can be
/// taken back. A change that reaches another page, because another one is open, is stored only.
class EditSession
{
public:
    EditSession(AppState &appState, Scheduler &scheduler, const QUuid &documentID);

    /// Where the writer is; after the focus has gone, where it was last.
    void goTo(const FocusTarget &place) { m_place = place; }
    const std::optional<FocusTarget> &place() const { return m_place; }

    /// Stores the changed page; undo takes it back in one step.
    void commit(const Edit &edit);
    /// The page as the store has it now. What was changed there by others since the last call, such as the
    /// tasks panel or a drag, becomes a step of its own.
    void follow(const PelkoDocument &page);
    /// Stores what a key made of the text of `field`, whose caret is the one after the key. Keys typed one
    /// after the other are taken back together, a word at a time, unless the writer paused between them.
    void commitTyping(const Edit &edit, const FocusTarget &field);

    /// Takes the last step back, or does it again. Nothing is returned when there is none.
    std::optional<Edit> undo();
    std::optional<Edit> redo();

private:
    /// The page as it is stored, if `page` is a version of it.
    const PelkoDocument *stored(const PelkoDocument &page) const;
    std::optional<Edit> travel(std::optional<Edit> (EditHistory::*step)(PelkoDocument));

    AppState &m_appState;
    Scheduler &m_scheduler;
    const QUuid m_documentID;
    EditHistory m_history;
    std::optional<FocusTarget> m_place;
    ScheduledCall m_pause;
};
