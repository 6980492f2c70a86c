#include "Models/BlockType.h"

#include <QMetaEnum>
#include <QStringList>

namespace
{

/// The name of each kind, indexed by its value.
const QStringList &names()
{
    static const QStringList names = [] {
        const auto kinds = QMetaEnum::fromType<BlockType>();
        QStringList found;
        for (int index = 0; index < kinds.keyCount(); ++index)
            found.append(QString::fromLatin1(kinds.key(index)));
        return found;
    }();
    return names;
}

} // namespace

QString rawValue(BlockType type)
{
    return names().at(static_cast<qsizetype>(type));
}

std::optional<BlockType> blockTypeFromRawValue(QAnyStringView raw)
{
    for (qsizetype index = 0; index < names().size(); ++index) {
        if (QAnyStringView(names().at(index)) == raw)
            return static_cast<BlockType>(index);
    }
    return std::nullopt;
}
