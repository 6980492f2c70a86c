#include "Editor/BlockListModel.h"

#include "Editor/BlockOperations.h"
#include "Editor/PictureBytes.h"

using namespace Qt::StringLiterals;

QString delegateName(BlockType type)
{
    return isTextLike(type) ? u"text"_s : rawValue(type);
}

namespace
{

std::optional<BlockType> above(const PelkoDocument &document, qsizetype row)
{
    return row == 0 ? std::nullopt : std::optional(document.blocks.at(row - 1).type);
}

bool isBanner(const PelkoDocument &document, qsizetype row)
{
    return row == 0 && BlockOperations::firstBlockIsBanner(document);
}

BlockRow rowOf(const PelkoDocument &document, qsizetype row)
{
    return {.block = document.blocks.at(row),
            .above = above(document, row),
            .isBanner = isBanner(document, row),
            .isBelowBanner = isBanner(document, row - 1),
            .canDelete = BlockOperations::canDelete(document, row)};
}

bool isRowOf(const BlockRow &shown, const PelkoDocument &document, qsizetype row)
{
    return shown.block == document.blocks.at(row) && shown.above == above(document, row) &&
           shown.isBanner == isBanner(document, row) && shown.isBelowBanner == isBanner(document, row - 1) &&
           shown.canDelete == BlockOperations::canDelete(document, row);
}

QString nameOfAbove(const BlockRow &row)
{
    if (row.isBelowBanner)
        return u"banner"_s;
    return row.above ? rawValue(*row.above) : QString();
}

bool isKeyOf(const BlockRow &shown, const Block &block)
{
    return shown.block.id == block.id && delegateName(shown.block.type) == delegateName(block.type);
}

QList<BlockRow> rowsOf(const PelkoDocument &document)
{
    QList<BlockRow> rows;
    rows.reserve(document.blocks.size());
    for (qsizetype row = 0; row < document.blocks.size(); ++row)
        rows.append(rowOf(document, row));
    return rows;
}

} // namespace

void BlockListModel::publish(const PelkoDocument &document)
{
    publishTodos(document.blocks);
    if (!publishInPlace(document))
        IdListModel::publish(rowsOf(document));
}

bool BlockListModel::publishInPlace(const PelkoDocument &document)
{
    if (rows().size() != document.blocks.size())
        return false;
    QList<qsizetype> changed;
    for (qsizetype row = 0; row < rows().size(); ++row) {
        if (isRowOf(rows().at(row), document, row))
            continue;
        if (!isKeyOf(rows().at(row), document.blocks.at(row)))
            return false;
        changed.append(row);
    }
    for (const qsizetype row : changed)
        update(row, rowOf(document, row));
    return true;
}

void BlockListModel::publishTodos(const QList<Block> &blocks)
{
    decltype(m_todos) kept;
    for (const Block &block : blocks) {
        // Of checklists that share an id, edits reach only the first.
        if (block.type != BlockType::sticky || kept.contains(block.id))
            continue;
        auto node = m_todos.extract(block.id);
        TodoListModel *model = node.empty() ? new TodoListModel(block.id, this) : node.mapped();
        model->publish(block.todos.value_or(QList<TodoItem>{}));
        kept.insert_or_assign(block.id, model);
    }
    for (const auto &[id, model] : m_todos)
        model->deleteLater();
    m_todos = std::move(kept);
}

QVariant BlockListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const BlockRow &row = rows().at(index.row());
    const Block &block = row.block;
    switch (role) {
    case AddressRole:
        return QVariant::fromValue(TextAddress{.blockID = block.id});
    case KindRole:
        return rawValue(block.type);
    case KindAboveRole:
        return nameOfAbove(row);
    case DelegateRole:
        return delegateName(block.type);
    case ContentRole:
        return block.content;
    case ImageDataRole:
        return QVariant::fromValue(PictureBytes{block.imageData.value_or(QByteArray())});
    case HasImageRole:
        return block.type == BlockType::image && block.imageData.has_value();
    case IsFullWidthRole:
        return block.isFullWidth.value_or(false);
    case IsBannerRole:
        return row.isBanner;
    case BannerTitleRole:
        return block.bannerTitle.value_or(QString());
    case TodosRole:
        return QVariant::fromValue<QObject *>(m_todos.contains(block.id) ? m_todos.at(block.id) : nullptr);
    case CanDeleteRole:
        return row.canDelete;
    default:
        return {};
    }
}

QHash<int, QByteArray> BlockListModel::roleNames() const
{
    return {{AddressRole, "address"},     {KindRole, "kind"},
            {KindAboveRole, "kindAbove"}, {DelegateRole, "delegate"},
            {ContentRole, "content"},     {ImageDataRole, "imageData"},
            {HasImageRole, "hasImage"},   {IsFullWidthRole, "isFullWidth"},
            {IsBannerRole, "isBanner"},   {BannerTitleRole, "bannerTitle"},
            {TodosRole, "todos"},         {CanDeleteRole, "canDelete"}};
}

QList<int> BlockListModel::changedRoles(const BlockRow &before, const BlockRow &after) const
{
    QList<int> roles;
    const auto compare = [&roles](const auto &old, const auto &now, std::initializer_list<int> shownBy) {
        if (old != now)
            roles.append(shownBy);
    };
    compare(before.block.type, after.block.type, {KindRole});
    compare(std::pair(before.above, before.isBelowBanner), std::pair(after.above, after.isBelowBanner),
            {KindAboveRole});
    compare(before.block.content, after.block.content, {ContentRole});
    if (!isSamePicture(before.block.imageData, after.block.imageData))
        roles.append({ImageDataRole, HasImageRole});
    compare(before.block.isFullWidth, after.block.isFullWidth, {IsFullWidthRole});
    compare(before.isBanner, after.isBanner, {IsBannerRole});
    compare(before.block.bannerTitle, after.block.bannerTitle, {BannerTitleRole});
    compare(before.canDelete, after.canDelete, {CanDeleteRole});
    return roles;
}
