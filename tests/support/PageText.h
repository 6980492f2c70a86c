#pragma once

#include "Editor/BlockSelection.h"
#include "Editor/Edit.h"

/// Pages for tests. Blocks and checklist entries have letters as ids, and a page can be written as text with
/// all its fields, one line per block:
///
///     B quote "said he"
///     C sticky "" todos(x[ ] "milk", +[x] "")
///
/// Other ids are written as "+".
namespace PageText
{

inline constexpr BlockType body = BlockType::textSmall;
inline constexpr BlockType heading = BlockType::textLarge;

QUuid idOf(char letter);
/// As the view models use it.
QString id(char letter);
/// Returns the address of a block, or of an entry of its checklist.
TextAddress address(char block, std::optional<char> part = std::nullopt);
QString nameOf(const QUuid &id);

Block block(char letter, BlockType type = BlockType::textSmall, const QString &content = {});
Block image(char letter, std::optional<bool> isFullWidth = std::nullopt);
Block sticky(char letter, const QList<TodoItem> &todos);
TodoItem todo(char letter, const QString &text = {}, bool done = false);
PelkoDocument page(const QList<Block> &blocks);

QString line(const Block &block);
QStringList lines(const PelkoDocument &document);
/// Returns the letters of the blocks, such as "AB+C".
QString letters(const PelkoDocument &document);
/// Returns a selection from a position in one block to a position in another.
BlockSelection between(char first, int from, char last, int to);
/// Returns "B@3", "B.x@end" for an entry of a checklist, or an empty text.
QString focus(const std::optional<FocusTarget> &target);

} // namespace PageText
