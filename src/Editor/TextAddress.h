#pragma once

#include <QObject>
#include <QUuid>

#include <optional>

/// The address of a text on a page: a block, and the part of the block if it has several texts, such as the
/// entries of a checklist.
struct TextAddress {
    Q_GADGET
    Q_PROPERTY(QString blockID READ blockName)
    Q_PROPERTY(QString partID READ partName)

public:
    QUuid blockID;
    std::optional<QUuid> partID = std::nullopt;

    QString blockName() const { return blockID.toString(QUuid::WithoutBraces); }
    /// The id of the part; empty for the text of the block itself.
    QString partName() const { return partID ? partID->toString(QUuid::WithoutBraces) : QString(); }

    bool operator==(const TextAddress &) const = default;
};

inline std::size_t qHash(const TextAddress &address, std::size_t seed = 0)
{
    return qHashMulti(seed, address.blockID, address.partID.value_or(QUuid()));
}
