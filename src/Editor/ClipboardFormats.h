#pragma once

#include "Models/Block.h"

#include <QList>

/// Converts blocks to the clipboard formats for other programs.
namespace ClipboardFormats
{

/// Returns the text, with a line for each block and each entry of a checklist. Pictures are left out.
QString plainText(const QList<Block> &blocks);

/// Returns Markdown. Characters of the text are not escaped, so typed Markdown stays Markdown.
QString markdown(const QList<Block> &blocks);

/// Returns HTML elements without styles.
QString html(const QList<Block> &blocks);

} // namespace ClipboardFormats
