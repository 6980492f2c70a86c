#include "Editor/EditSession.h"

#include "Store/AppState.h"

using namespace std::chrono_literals;

namespace
{
constexpr auto typingPause = 1s;
} // namespace

EditSession::EditSession(AppState &appState, Scheduler &scheduler, const QUuid &documentID)
    : m_appState(appState)
    , m_scheduler(scheduler)
    , m_documentID(documentID)
{
}

void EditSession::commit(const Edit &edit)
{
    if (const PelkoDocument *before = stored(edit.document))
        m_history.record(*before, edit.document,
                         {.before = m_place, .after = edit.focus ? edit.focus : m_place});
    m_appState.updateDocument(edit.document);
}

void EditSession::follow(const PelkoDocument &page)
{
    m_history.follow(page.blocks, {.before = m_place, .after = m_place});
}

void EditSession::commitTyping(const Edit &edit, const FocusTarget &field)
{
    const PelkoDocument *before = stored(edit.document);
    if (before && edit.asTyped) {
        m_history.recordTyping(*before, *edit.asTyped, {.before = m_place, .after = field});
        m_history.record(*edit.asTyped, edit.document, {.before = field, .after = edit.focus});
    } else if (before && edit.focus) {
        m_history.record(*before, edit.document, {.before = m_place, .after = edit.focus});
    } else if (before) {
        m_history.recordTyping(*before, edit.document, {.before = m_place, .after = field});
        m_pause = m_scheduler.after(typingPause, [this] { m_history.endRun(); });
    }
    m_place = field;
    m_appState.updateDocument(edit.document);
}

std::optional<Edit> EditSession::undo()
{
    return travel(&EditHistory::undo);
}

std::optional<Edit> EditSession::redo()
{
    return travel(&EditHistory::redo);
}

const PelkoDocument *EditSession::stored(const PelkoDocument &page) const
{
    return page.id == m_documentID ? m_appState.document(m_documentID) : nullptr;
}

std::optional<Edit> EditSession::travel(std::optional<Edit> (EditHistory::*step)(PelkoDocument))
{
    const PelkoDocument *page = m_appState.document(m_documentID);
    auto edit = page ? (m_history.*step)(*page) : std::nullopt;
    if (edit)
        m_appState.updateDocument(edit->document);
    return edit;
}
