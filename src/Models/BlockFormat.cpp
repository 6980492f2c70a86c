#include "Models/BlockFormat.h"

std::optional<QString> BlockFormat::text(const QString &content, TextForm form)
{
    if (content.isEmpty() && m_emptyBlocks == EmptyBlocks::omitted)
        return std::nullopt;
    return (this->*form)(content);
}

std::optional<QString> BlockFormat::operator()(const Block &block)
{
    const QList<TodoItem> todos = block.todos.value_or(QList<TodoItem>{});
    switch (block.type) {
    case BlockType::textLarge:
        return text(block.content, &BlockFormat::heading);
    case BlockType::textSmall:
        return text(block.content, &BlockFormat::body);
    case BlockType::quote:
        return text(block.content, &BlockFormat::quote);
    case BlockType::code:
        return text(block.content, &BlockFormat::code);
    case BlockType::divider:
        return divider();
    case BlockType::image:
        return picture(block);
    case BlockType::sticky:
        if (todos.isEmpty() && m_emptyBlocks == EmptyBlocks::omitted)
            return std::nullopt;
        return checklist(todos);
    }
    Q_UNREACHABLE();
}
