#include "Editor/EditorViewModel.h"

#include "Editor/BlockOperations.h"
#include "Editor/ImageOperations.h"
#include "Editor/TextOperations.h"
#include "Editor/TodoOperations.h"
#include "Services/Pasteboard.h"
#include "Store/AppState.h"
#include "Store/ChangeScope.h"

using namespace std::chrono_literals;

namespace
{
QString text(const QUuid &id)
{
    return id.toString(QUuid::WithoutBraces);
}

// The field of a new block needs a moment to slide into view.
constexpr auto newBlockFocusDelay = 180ms;
constexpr auto bannerFocusDelay = 100ms;
} // namespace

template <typename Operation, typename... Arguments>
void EditorViewModel::change(const Operation &operation, const Arguments &...arguments)
{
    if (auto page = documentToMutate())
        commit(operation(*std::move(page), arguments...));
}

EditorViewModel::EditorViewModel(AppState &appState, const EditorServices &services, const QUuid &documentID,
                                 QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_scheduler(services.scheduler)
    , m_pasteboard(services.pasteboard)
    , m_documentID(documentID)
    , m_session(appState, services.scheduler, documentID)
    , m_drag(appState)
    , m_selection(services.pasteboard, [this](const EditOperation &operation) { change(operation); })
    , m_keys([this](const EditOperation &operation) { change(operation); })
    , m_imageImport(services, [this](const QUuid &id, const QByteArray &bytes) { storePicture(id, bytes); })
{
    connect(&m_appState, &AppState::documentsChanged, this, &EditorViewModel::refresh);
    connect(&m_appState, &AppState::focusModeChanged, this, &EditorViewModel::focusInFocusMode);
    connect(&m_appState, &AppState::showNavChanged, this, &EditorViewModel::focusAfterNavigation);
    connect(&m_appState, &AppState::openDocumentIDAboutToChange, this, &EditorViewModel::settleRequested);
    refresh();
}

const PelkoDocument *EditorViewModel::document() const
{
    return m_appState.document(m_documentID);
}

std::optional<PelkoDocument> EditorViewModel::documentToMutate()
{
    Q_EMIT settleRequested();
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
    // A drag is one step, which the drop records.
    if (found && m_drag.draggingBlockID().isEmpty())
        m_session.follow(*found);
    m_selection.publish(shown);
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
    Q_EMIT settleRequested();
    const PelkoDocument *own = document();
    if (type && own)
        commit(BlockOperations::addBlock(*own, *type), newBlockFocusDelay);
}

void EditorViewModel::deleteBlock(const QString &blockID)
{
    change(BlockOperations::deleteBlock, QUuid(blockID));
}

void EditorViewModel::moveBlock(const QString &blockID, int rows)
{
    change(BlockOperations::moveBlock, QUuid(blockID), rows);
}

void EditorViewModel::toggleFullWidth(const QString &blockID)
{
    if (auto page = documentToMutate())
        commit(BlockOperations::toggleFullWidth(*std::move(page), QUuid(blockID)), bannerFocusDelay);
}

void EditorViewModel::typed(const TextAddress &address, const QString &value, int caret)
{
    if (auto page = documentToMutate())
        commitTyping(TextOperations::typed(*std::move(page), address, value, caret),
                     {.address = address, .caret = caret});
}

bool EditorViewModel::pastePicture(const QString &blockID)
{
    const QByteArray bytes = m_pasteboard.picture();
    auto page = documentToMutate();
    if (bytes.isEmpty() || !page)
        return false;
    const auto edit = ImageOperations::insertImage(*std::move(page), QUuid(blockID), bytes);
    commit(edit);
    return edit.has_value();
}

void EditorViewModel::storePicture(const QUuid &blockID, const QByteArray &bytes)
{
    change(ImageOperations::setImageData, blockID, bytes);
}

void EditorViewModel::toggleTodo(const TextAddress &entry)
{
    change(TodoOperations::toggle, entry);
}

void EditorViewModel::appendTodo(const QString &blockID)
{
    change(TodoOperations::append, QUuid(blockID));
}

void EditorViewModel::removeTodo(const TextAddress &entry)
{
    change(TodoOperations::remove, entry, m_session.place());
}

void EditorViewModel::undo()
{
    Q_EMIT settleRequested();
    if (const auto edit = m_session.undo())
        goOn(*edit);
}

void EditorViewModel::redo()
{
    Q_EMIT settleRequested();
    if (const auto edit = m_session.redo())
        goOn(*edit);
}

void EditorViewModel::commit(const std::optional<Edit> &edit, std::chrono::milliseconds focusDelay)
{
    if (!edit)
        return;
    const PelkoDocument *before = m_appState.document(edit->document.id);
    if (before && before->blocks != edit->document.blocks) // otherwise only the focus has changed
        m_session.commit(*edit);
    goOn(*edit, focusDelay);
}

void EditorViewModel::commitTyping(const std::optional<Edit> &edit, const FocusTarget &field)
{
    if (!edit)
        return;
    m_session.commitTyping(*edit, field);
    goOn(*edit);
}

void EditorViewModel::goOn(const Edit &edit, std::chrono::milliseconds focusDelay)
{
    if (edit.scrollTo)
        setScrollTarget(text(*edit.scrollTo));
    if (!edit.focus)
        return;
    if (focusDelay > 0ms)
        focusAfter(focusDelay, *edit.focus);
    else
        focus(*edit.focus);
}

void EditorViewModel::appeared()
{
    const PelkoDocument *page = document();
    const auto empty = page ? BlockOperations::firstEmptyTextBlock(*page) : std::nullopt;
    if (empty)
        focusAfter(0ms, {.address = {.blockID = *empty}});
}

void EditorViewModel::focusInFocusMode()
{
    const PelkoDocument *page = document();
    if (!m_appState.focusMode() || !m_focusedBlockID.isEmpty() || !page)
        return;
    if (const auto first = BlockOperations::firstTextBlock(*page))
        focus({.address = {.blockID = *first}});
}

void EditorViewModel::focus(const FocusTarget &target)
{
    if (rowOf(target.address.blockName()) < 0) // deleted meanwhile, or on another page
        return;
    if (m_appState.showNav()) { // the navigation keeps the focus until it closes
        m_waitingFocus = target;
        return;
    }
    m_session.goTo(target);
    setFocusedBlockID(target.address.blockName());
    Q_EMIT focusRequested(target.address, target.caret);
}

void EditorViewModel::focusAfterNavigation()
{
    if (const auto waiting = m_appState.showNav() ? std::nullopt : std::exchange(m_waitingFocus, {}))
        focus(*waiting);
}

void EditorViewModel::focusAfter(std::chrono::milliseconds delay, const FocusTarget &target)
{
    m_delayedFocus = m_scheduler.after(delay, [this, target] { focus(target); });
}

void EditorViewModel::focusGained(const QString &blockID)
{
    const auto &known = m_session.place();
    if (!known || known->address.blockID != QUuid(blockID))
        m_session.goTo({.address = {.blockID = QUuid(blockID)}});
    setFocusedBlockID(blockID);
}

void EditorViewModel::caretMoved(const TextAddress &address, int caret)
{
    m_session.goTo({.address = address, .caret = caret});
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
    m_imageImport.cancel();
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
