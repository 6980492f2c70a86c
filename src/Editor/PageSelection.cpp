#include "Editor/PageSelection.h"

#include "Editor/ClipboardFormats.h"
#include "Editor/Excerpt.h"
#include "Editor/SelectionOperations.h"
#include "Services/Pasteboard.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

QByteArray firstPicture(const QList<Block> &blocks)
{
    const auto picture =
        std::ranges::find_if(blocks, [](const Block &block) { return block.imageData.has_value(); });
    return picture == blocks.end() ? QByteArray() : *picture->imageData;
}

} // namespace

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
    m_pasteboard.put({.text = ClipboardFormats::plainText(blocks),
                      .markdown = ClipboardFormats::markdown(blocks),
                      .html = ClipboardFormats::html(blocks),
                      .picture = firstPicture(blocks)});
}

void PageSelection::offer() const
{
    if (m_selection)
        m_pasteboard.putSelectedText(ClipboardFormats::plainText(excerpt(m_document, *m_selection)));
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

void PageSelection::split()
{
    if (const auto selected = m_selection) {
        m_apply([&](PelkoDocument page) { return SelectionOperations::split(std::move(page), *selected); });
    }
}

void PageSelection::breakLine()
{
    if (const auto selected = m_selection) {
        m_apply(
            [&](PelkoDocument page) { return SelectionOperations::breakLine(std::move(page), *selected); });
    }
}

void PageSelection::paste()
{
    const auto selected = m_selection;
    if (!selected || pasteText(*selected))
        return;
    const QByteArray picture = m_pasteboard.picture();
    if (picture.isEmpty())
        return;
    m_apply([&](PelkoDocument page) {
        return SelectionOperations::replaceByPicture(std::move(page), *selected, picture);
    });
}

QString PageSelection::textOf(const BlockSelection &selected) const
{
    const QList<SelectedPart> parts = SelectedParts(passages(), selected).all();
    return parts.isEmpty() ? QString() : parts.first().text().value_or(QString());
}

void PageSelection::offerText(const BlockSelection &selected) const
{
    const QString text = textOf(selected);
    if (!text.isEmpty())
        m_pasteboard.putSelectedText(text);
}

void PageSelection::copyText(const BlockSelection &selected) const
{
    const QString text = textOf(selected);
    if (!text.isEmpty())
        m_pasteboard.put({.text = text});
}

void PageSelection::cutText(const BlockSelection &selected)
{
    copyText(selected);
    m_apply([&](PelkoDocument page) { return SelectionOperations::remove(std::move(page), selected); });
}

bool PageSelection::pasteText(const BlockSelection &selected)
{
    return insert(m_pasteboard.text(), selected);
}

bool PageSelection::pasteSelectedText(const PagePosition &place)
{
    return insert(m_pasteboard.selectedText(), {.anchor = place, .head = place});
}

bool PageSelection::insert(QString text, const BlockSelection &selected)
{
    text.replace("\r\n"_L1, "\n"_L1);
    if (text.isEmpty())
        return false;
    m_apply(
        [&](PelkoDocument page) { return SelectionOperations::replace(std::move(page), selected, text); });
    return true;
}
