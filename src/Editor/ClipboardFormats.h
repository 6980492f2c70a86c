#pragma once

#include "Models/Block.h"

#include <QList>

/// Blocks as text for other programs.
namespace ClipboardFormats
{

/// What stands there, a line for each block and each entry of a checklist. Pictures say nothing.
QString plainText(const QList<Block> &blocks);

/// The kinds as marks. What the writer wrote is kept as it is: marks in it remain marks.
QString markdown(const QList<Block> &blocks);

/// The kinds as elements, without any look.
QString html(const QList<Block> &blocks);

} // namespace ClipboardFormats
