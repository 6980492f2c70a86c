#include "Models/BlockType.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{
const std::array<std::pair<BlockType, QString>, 7> &names()
{
    static const std::array<std::pair<BlockType, QString>, 7> table{{
        {BlockType::textLarge, u"textLarge"_s},
        {BlockType::textSmall, u"textSmall"_s},
        {BlockType::quote, u"quote"_s},
        {BlockType::code, u"code"_s},
        {BlockType::divider, u"divider"_s},
        {BlockType::image, u"image"_s},
        {BlockType::sticky, u"sticky"_s},
    }};
    return table;
}
} // namespace

QString rawValue(BlockType type)
{
    return names()[static_cast<std::size_t>(type)].second;
}

std::optional<BlockType> blockTypeFromRawValue(QAnyStringView raw)
{
    const auto found =
        std::ranges::find(names(), raw, [](const auto &name) { return QAnyStringView(name.second); });
    return found == names().end() ? std::nullopt : std::optional(found->first);
}
