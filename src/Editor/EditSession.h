#pragma once

#include "Editor/EditHistory.h"
#include "Services/Scheduler.h"

class AppState;

/// The editing of one page: stores every change of it and records it for undo. A change of another page is
/// stored only.
class EditSession
{
public:
    EditSession(AppState &appState, Scheduler &scheduler, const QUuid &documentID);

    /// Sets the text that has the focus, or had it last, and its caret.
    void goTo(const FocusTarget &place) { m_place = place; }
    const std::optional<FocusTarget> &place() const { return m_place; }

    /// Stores the changed page as one step of the history.
    void commit(const Edit &edit);
    /// Takes the page from the store. Changes made elsewhere since the last call, such as by the tasks panel
    /// or a drag, become a step of their own.
    void follow(const PelkoDocument &page);
    /// Stores the text of `field` after a key; `field.caret` is the caret after the key. Consecutive keys are
    /// undone together, word by word, unless there was a pause between them.
    void commitTyping(const Edit &edit, const FocusTarget &field);

    /// Undoes the last step, or redoes it. Returns std::nullopt if there is none.
    std::optional<Edit> undo();
    std::optional<Edit> redo();

private:
    /// Returns the stored version of the page, or nullptr if it is not the page of this session.
    const PelkoDocument *stored(const PelkoDocument &page) const;
    std::optional<Edit> travel(std::optional<Edit> (EditHistory::*step)(PelkoDocument));

    AppState &m_appState;
    Scheduler &m_scheduler;
    const QUuid m_documentID;
    EditHistory m_history;
    std::optional<FocusTarget> m_place;
    ScheduledCall m_pause;
};
