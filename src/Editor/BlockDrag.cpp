#include "Editor/BlockDrag.h"

#include "Editor/BlockOperations.h"
#include "Store/AppState.h"

#include <algorithm>
#include <utility>

BlockDrag::BlockDrag(AppState &appState, QObject *parent) : QObject(parent), m_appState(appState) {}

QString BlockDrag::draggingBlockID() const
{
    return m_draggingBlockID ? m_draggingBlockID->toString(QUuid::WithoutBraces) : QString();
}

void BlockDrag::begin(const QString &blockID)
{
    const std::optional<PelkoDocument> page = m_appState.openDocument();
    const qsizetype row = page ? BlockOperations::indexOf(*page, QUuid(blockID)) : -1;
    if (row < 0)
        return;
    m_origin = row;
    m_draggingBlockID = page->blocks.at(row).id;
    Q_EMIT draggingBlockIDChanged();
}

void BlockDrag::enter(const QString &blockID)
{
    const std::optional<PelkoDocument> page = m_appState.openDocument();
    const qsizetype row = page ? BlockOperations::indexOf(*page, QUuid(blockID)) : -1;
    if (row >= 0)
        BlockDropDelegate{page->blocks.at(row), *page, m_appState, m_draggingBlockID}.dropEntered();
}

void BlockDrag::drop()
{
    if (!m_draggingBlockID)
        return;
    const PelkoDocument page = m_appState.openDocument().value_or(PelkoDocument());
    const qsizetype row = BlockOperations::indexOf(page, *m_draggingBlockID);
    BlockDropDelegate{row < 0 ? Block() : page.blocks.at(row), page, m_appState, m_draggingBlockID}
        .performDrop();
    Q_EMIT draggingBlockIDChanged();
}

void BlockDrag::cancel()
{
    const std::optional<QUuid> dragged = std::exchange(m_draggingBlockID, std::nullopt);
    if (!dragged)
        return;
    if (const std::optional<PelkoDocument> page = m_appState.openDocument())
        m_appState.moveBlock(page->id, BlockOperations::indexOf(*page, *dragged), origin(*page));
    Q_EMIT draggingBlockIDChanged();
}

qsizetype BlockDrag::origin(const PelkoDocument &page) const
{
    return std::min(m_origin, page.blocks.size() - 1);
}
