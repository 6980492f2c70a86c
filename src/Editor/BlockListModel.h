#pragma once

#include "Editor/TodoListModel.h"
#include "ListModels/IdListModel.h"
#include "Models/PelkoDocument.h"

#include <map>

/// A block and what its display needs to know of its neighbours.
struct BlockRow {
    Block block;
    /// The kind of the block above; std::nullopt for the first block.
    std::optional<BlockType> above;
    bool isBanner = false;
    bool isBelowBanner = false;
    bool canDelete = false;
};

/// Returns the delegate of a kind of block: its raw name, or "text" for all text-like kinds, which share one,
/// so that a body block that becomes a heading keeps its field and its caret.
QString delegateName(BlockType type);

/// A block whose delegate changes counts as another row.
inline std::pair<QUuid, QString> rowKey(const BlockRow &row)
{
    return {row.block.id, delegateName(row.block.type)};
}

/// The blocks of a page for QML.
class BlockListModel : public IdListModel<BlockRow>
{
    Q_OBJECT

public:
    enum Role {
        AddressRole = Qt::UserRole,
        /// The raw name of the block's type.
        KindRole,
        /// The raw name of the type of the block above, or "banner"; empty for the first.
        KindAboveRole,
        /// See delegateName(); never changes while the row lives.
        DelegateRole,
        ContentRole,
        /// A PictureBytes.
        ImageDataRole,
        HasImageRole,
        IsFullWidthRole,
        /// Whether this is the picture shown as the banner of the page.
        IsBannerRole,
        BannerTitleRole,
        /// A model of the entries of a sticky block's checklist, null for other blocks.
        TodosRole,
        CanDeleteRole,
    };

    using IdListModel::IdListModel;

    void publish(const PelkoDocument &document);

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

protected:
    QList<int> changedRoles(const BlockRow &before, const BlockRow &after) const override;

private:
    /// For the usual case that no row is added, removed or moved: updates only the rows that differ. Returns
    /// whether it was possible.
    bool publishInPlace(const PelkoDocument &document);
    void publishTodos(const QList<Block> &blocks);

    std::map<QUuid, TodoListModel *> m_todos; // children of this model
};
