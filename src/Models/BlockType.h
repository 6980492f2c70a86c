#pragma once

#include <QString>

#include <optional>

/// The kinds of block, in the order that makes every kind before `divider` text-like.
enum class BlockType { textLarge, textSmall, quote, code, divider, image, sticky };

/// A text-like block is edited as text; the others draw something else.
constexpr bool isTextLike(BlockType type)
{
    return type < BlockType::divider;
}

/// The name under which the kind stands in the data file.
QString rawValue(BlockType type);

/// Returns the kind with this exact name, or std::nullopt.
std::optional<BlockType> blockTypeFromRawValue(QAnyStringView raw);
