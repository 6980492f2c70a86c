#include "Editor/EditorViewModel.h"

#include "Editor/BlockOperations.h"
#include "Editor/TodoOperations.h"
#include "Editor/TypingRules.h"
#include "Store/AppState.h"
#include "Store/ChangeScope.h"

using namespace std::chrono_literals;

namespace
{

QString text(const QUuid &id)
{
    return id.toString(QUuid::WithoutBraces);
}

// The field of a block that was just made needs a moment to slide into view.
constexpr auto newBlockFocusDelay = 180ms;
constexpr auto bannerFocusDelay = 100ms;

} // namespace

EditorViewModel::EditorViewModel(AppState &appState, Scheduler &scheduler, const QUuid &documentID,
                                 QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_scheduler(scheduler)
    , m_documentID(documentID)
    , m_drag(appState)
{
    connect(&m_appState, &AppState::documentsChanged, this, &EditorViewModel::refresh);
    connect(&m_appState, &AppState::focusModeChanged, this, &EditorViewModel::focusInFocusMode);
    refresh();
}

const PelkoDocument *EditorViewModel::document() const
{
    return m_appState.document(m_documentID);
}

std::optional<PelkoDocument> EditorViewModel::documentToMutate() const
{
    if (auto open = m_appState.openDocument())
        return open;
    const PelkoDocument *own = document();
    return own ? std::optional(*own) : std::nullopt;
}

void EditorViewModel::refresh()
{
    static const PelkoDocument nothing;
    const PelkoDocument *found = document();
    const PelkoDocument &shown = found ? *found : nothing;
    ChangeScope scope(*this);
    m_blocks.publish(shown);
    scope.assign(m_title, shown.title(), &EditorViewModel::titleChanged);
    scope.assign(m_firstBlockIsBanner, BlockOperations::firstBlockIsBanner(shown),
                 &EditorViewModel::firstBlockIsBannerChanged);
    scope.assign(m_offersDelete, BlockOperations::offersDelete(shown), &EditorViewModel::offersDeleteChanged);
    if (rowOf(m_focusedBlockID) < 0)
        scope.assign(m_focusedBlockID, QString(), &EditorViewModel::focusedBlockIDChanged);
}

int EditorViewModel::rowOf(const QString &blockID) const
{
    const PelkoDocument *found = document();
    return found ? static_cast<int>(BlockOperations::indexOf(*found, QUuid(blockID))) : -1;
}

void EditorViewModel::addBlock(const QString &kind)
{
    const auto type = blockTypeFromRawValue(kind);
    const PelkoDocument *own = document();
    if (!type || !own)
        return;
    const Edit edit = BlockOperations::addBlock(*own, *type);
    m_appState.updateDocument(edit.document);
    setScrollTarget(text(edit.document.blocks.last().id));
    if (edit.focus)
        focusAfter(newBlockFocusDelay, *edit.focus);
}

void EditorViewModel::deleteBlock(const QString &blockID)
{
    if (auto page = documentToMutate())
        commit(BlockOperations::deleteBlock(*std::move(page), QUuid(blockID)));
}

void EditorViewModel::moveBlock(const QString &blockID, int rows)
{
    if (auto page = documentToMutate())
        commit(BlockOperations::moveBlock(*std::move(page), QUuid(blockID), rows));
}

void EditorViewModel::toggleFullWidth(const QString &blockID)
{
    auto page = documentToMutate();
    if (!page)
        return;
    auto edit = BlockOperations::toggleFullWidth(*std::move(page), QUuid(blockID));
    if (!edit)
        return;
    m_appState.updateDocument(edit->document);
    if (edit->focus)
        focusAfter(bannerFocusDelay, *edit->focus);
}

void EditorViewModel::typed(const QString &blockID, const QString &value, int caret)
{
    if (auto page = documentToMutate())
        commit(TypingRules::apply(*std::move(page), QUuid(blockID), value, caret));
}

void EditorViewModel::typedTodo(const QString &blockID, const QString &todoID, const QString &value,
                                int caret)
{
    if (auto page = documentToMutate())
        commit(TodoOperations::setText(*std::move(page), QUuid(blockID), QUuid(todoID), value, caret));
}

void EditorViewModel::toggleTodo(const QString &blockID, const QString &todoID)
{
    if (auto page = documentToMutate())
        commit(TodoOperations::toggle(*std::move(page), QUuid(blockID), QUuid(todoID)));
}

void EditorViewModel::appendTodo(const QString &blockID)
{
    if (auto page = documentToMutate())
        commit(TodoOperations::append(*std::move(page), QUuid(blockID)));
}

void EditorViewModel::removeTodo(const QString &blockID, const QString &todoID)
{
    if (auto page = documentToMutate())
        commit(TodoOperations::remove(*std::move(page), QUuid(blockID), QUuid(todoID)));
}

void EditorViewModel::commit(std::optional<Edit> edit)
{
    if (!edit)
        return;
    m_appState.updateDocument(std::move(edit->document));
    if (edit->focus)
        focus(*edit->focus);
}

void EditorViewModel::appeared()
{
    const PelkoDocument *page = document();
    const auto empty = page ? BlockOperations::firstEmptyTextBlock(*page) : std::nullopt;
    if (empty)
        focusAfter(0ms, {.blockID = *empty});
}

void EditorViewModel::focusInFocusMode()
{
    const PelkoDocument *page = document();
    if (!m_appState.focusMode() || !m_focusedBlockID.isEmpty() || !page)
        return;
    if (const auto first = BlockOperations::firstTextBlock(*page))
        focus({.blockID = *first});
}

void EditorViewModel::focus(const FocusTarget &target)
{
    if (rowOf(text(target.blockID)) < 0) // deleted since, or on another page
        return;
    setFocusedBlockID(text(target.blockID));
    Q_EMIT focusRequested(m_focusedBlockID, target.todoID ? text(*target.todoID) : QString(), target.caret);
}

void EditorViewModel::focusAfter(std::chrono::milliseconds delay, const FocusTarget &target)
{
    m_delayedFocus = m_scheduler.after(delay, [this, target] { focus(target); });
}

void EditorViewModel::focusGained(const QString &blockID)
{
    setFocusedBlockID(blockID);
}

void EditorViewModel::focusLost(const QString &blockID)
{
    if (m_focusedBlockID == blockID)
        setFocusedBlockID({});
}

void EditorViewModel::scrolled()
{
    setScrollTarget({});
}

void EditorViewModel::release()
{
    m_appState.disconnect(this);
    m_delayedFocus.cancel();
    deleteLater();
}

void EditorViewModel::setFocusedBlockID(const QString &blockID)
{
    ChangeScope(*this).assign(m_focusedBlockID, blockID, &EditorViewModel::focusedBlockIDChanged);
}

void EditorViewModel::setScrollTarget(const QString &blockID)
{
    ChangeScope(*this).assign(m_scrollTarget, blockID, &EditorViewModel::scrollTargetChanged);
}
