#include "Editor/Excerpt.h"

namespace
{

Block excerptOf(const Block &block, const SelectedParts &parts)
{
    Block cut = block;
    const SelectedPart *whole = parts.of({.blockID = block.id});
    if (isTextLike(block.type) && whole)
        cut.content = whole->text().value();
    else if (block.type == BlockType::image && whole && whole->text())
        cut.bannerTitle = whole->text();
    if (block.type != BlockType::sticky || !block.todos)
        return cut;
    cut.todos->clear();
    for (TodoItem todo : *block.todos) {
        if (const SelectedPart *part = parts.of({.blockID = block.id, .partID = todo.id})) {
            todo.text = part->text().value();
            cut.todos->append(todo);
        }
    }
    return cut;
}

} // namespace

QList<Block> excerpt(const PelkoDocument &document, const BlockSelection &selection)
{
    const SelectedParts parts(Passages(document), selection);
    QList<Block> blocks;
    if (parts.all().isEmpty())
        return blocks;
    const qsizetype end = parts.all().last().passage.row;
    for (qsizetype row = parts.all().first().passage.row; row <= end; ++row)
        blocks.append(excerptOf(document.blocks.at(row), parts));
    return blocks;
}
