#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace BlockTypes
{
Q_NAMESPACE

/// The kinds of block, in the order that makes every kind before `divider` text-like. The data file has them
/// by these names.
enum class BlockType { textLarge, textSmall, quote, code, divider, image, sticky };
Q_ENUM_NS(BlockType)
} // namespace BlockTypes

using BlockTypes::BlockType;

/// A text-like block is edited as text; the others draw something else.
constexpr bool isTextLike(BlockType type)
{
    return type < BlockType::divider;
}

/// The name under which the kind stands in the data file.
QString rawValue(BlockType type);

/// Returns the kind with this exact name, or std::nullopt.
std::optional<BlockType> blockTypeFromRawValue(QAnyStringView raw);
