#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace BlockTypes
{
Q_NAMESPACE

/// The kinds of block. All kinds before `divider` are text-like. The data file uses these names.
enum class BlockType { textLarge, textSmall, quote, code, divider, image, sticky };
Q_ENUM_NS(BlockType)
} // namespace BlockTypes

using BlockTypes::BlockType;

/// A text-like block consists of editable text.
constexpr bool isTextLike(BlockType type)
{
    return type < BlockType::divider;
}

/// Returns the name of the kind in the data file.
QString rawValue(BlockType type);

/// Returns the kind with this exact name, or std::nullopt.
std::optional<BlockType> blockTypeFromRawValue(QAnyStringView raw);
