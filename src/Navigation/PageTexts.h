#pragma once

#include "Models/PelkoDocument.h"

/// Calls `visit` with each visible text of the page (a const QString &) in order, including the title, until
/// it returns false.
template <typename Visit>
void visitTexts(const PelkoDocument &page, Visit visit)
{
    for (const Block &block : page.blocks) {
        if (isTextLike(block.type) && !visit(block.content))
            return;
        if (block.type == BlockType::image && block.isFullWidth.value_or(false) && block.bannerTitle &&
            !visit(*block.bannerTitle))
            return;
        if (block.type != BlockType::sticky || !block.todos)
            continue;
        for (const TodoItem &todo : *block.todos) {
            if (!visit(todo.text))
                return;
        }
    }
}

/// Returns whether the page is a spark: captured text without a title. It is named by its text.
bool isSpark(const PelkoDocument &page);

/// Returns the title of the page as written, or the text of a spark. Of any length, possibly with line
/// breaks.
QString namingText(const PelkoDocument &page);

/// Returns the beginning of a text on one line, with "…" if it was cut.
QString oneLine(QStringView text);

/// Returns the name of the page in lists and questions.
QString pageName(const PelkoDocument &page);
