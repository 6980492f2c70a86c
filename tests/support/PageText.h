#pragma once

#include "Editor/BlockSelection.h"
#include "Editor/Edit.h"

/// Pages in tests. Blocks and checklist entries are called by letters, and a page can be written down as
/// text, one line a block with every field that is present, so that a test can assert the whole of it:
///
///     B quote "said he"
///     C sticky "" todos(x[ ] "milk", +[x] "")
///
/// An id that was not made here, so a fresh one, is called "+".
namespace PageText
{

inline constexpr BlockType body = BlockType::textSmall;
inline constexpr BlockType heading = BlockType::textLarge;

QUuid idOf(char letter);
/// As the view models tell it.
QString id(char letter);
/// Of a block, or of an entry of its checklist.
TextAddress address(char block, std::optional<char> part = std::nullopt);
QString nameOf(const QUuid &id);

Block block(char letter, BlockType type = BlockType::textSmall, const QString &content = {});
Block image(char letter, std::optional<bool> isFullWidth = std::nullopt);
Block sticky(char letter, const QList<TodoItem> &todos);
TodoItem todo(char letter, const QString &text = {}, bool done = false);
PelkoDocument page(const QList<Block> &blocks);

QString line(const Block &block);
QStringList lines(const PelkoDocument &document);
/// Only the names of the blocks, such as "AB+C".
QString letters(const PelkoDocument &document);
/// A selection from a place in the text of one block to a place in another's.
BlockSelection between(char first, int from, char last, int to);
/// Such as "B@3", "B.x@end" for an entry of a checklist, or "" for none.
QString focus(const std::optional<FocusTarget> &target);

} // namespace PageText
