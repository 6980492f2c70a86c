#include "Editor/PageSelection.h"

#include "Editor/BlockForms.h"
#include "Editor/Excerpt.h"
#include "Editor/SelectionOperations.h"
#include "Services/Pasteboard.h"

using namespace Qt::StringLiterals;

PageSelection::PageSelection(Pasteboard &pasteboard, Apply apply)
    : m_pasteboard(pasteboard)
    , m_apply(std::move(apply))
{
}

const Passages &PageSelection::passages() const
{
    if (!m_passages)
        m_passages.emplace(m_document);
    return *m_passages;
}

void PageSelection::publish(const PelkoDocument &document)
{
    if (m_selection && document.blocks == m_document.blocks)
        return;
    m_document = document;
    m_passages.reset();
    clear();
}

bool PageSelection::select(const BlockSelection &selection)
{
    if (m_selection == selection)
        return true;
    SelectedParts parts(passages(), selection);
    if (!parts.isCrossing()) {
        clear();
        return false;
    }
    m_selection = selection;
    m_parts = std::move(parts);
    Q_EMIT changed();
    return true;
}

void PageSelection::clear()
{
    if (!m_selection)
        return;
    m_selection.reset();
    m_parts = {};
    Q_EMIT changed();
}

void PageSelection::copy() const
{
    if (!m_selection)
        return;
    const QList<Block> blocks = excerpt(m_document, *m_selection);
    m_pasteboard.put({.text = BlockForms::plainText(blocks),
                      .markdown = BlockForms::markdown(blocks),
                      .html = BlockForms::html(blocks)});
}

void PageSelection::cut()
{
    copy();
    remove();
}

void PageSelection::remove()
{
    if (const auto selected = m_selection) {
        m_apply([&](PelkoDocument page) { return SelectionOperations::remove(std::move(page), *selected); });
    }
}

void PageSelection::replace(const QString &text)
{
    if (const auto selected = m_selection) {
        m_apply([&](PelkoDocument page) {
            return SelectionOperations::replace(std::move(page), *selected, text);
        });
    }
}

void PageSelection::paste()
{
    QString text = m_pasteboard.text();
    text.replace("\r\n"_L1, "\n"_L1);
    if (!text.isEmpty())
        replace(text);
}
