#pragma once

#include "Models/PelkoDocument.h"

/// The texts that a reader of the page sees, in their order, the title among them. `visit` is given each as a
/// const QString & and says whether to go on.
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

/// A thought that was caught and never given a title: it goes by what it says.
bool isSpark(const PelkoDocument &page);

/// What names the page: its title as it stands, or what a spark says. May be of any length and have lines.
QString namingText(const PelkoDocument &page);

/// The beginning of a text in one line, with "…" where more follows.
QString oneLine(QStringView text);

/// What the page is called in lists and questions.
QString pageName(const PelkoDocument &page);
