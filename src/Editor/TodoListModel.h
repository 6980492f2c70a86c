#pragma once

#include "Editor/TextAddress.h"
#include "ListModels/IdListModel.h"
#include "Models/TodoItem.h"

/// An entry of a checklist that has a delegate.
struct TodoEntry {
    TodoItem item;
    /// The height of the entries without delegates between this one and the entry shown above it.
    qreal gap = 0;
};

inline QUuid rowKey(const TodoEntry &entry)
{
    return entry.item.id;
}

/// The entries of one checklist for QML. A long checklist has rows only for the entries in and near the
/// visible part, and for the one with the focus. Heights are in device-independent pixels; positions are
/// relative to the top of the first entry.
class TodoListModel : public IdListModel<TodoEntry>
{
    Q_OBJECT
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY entriesChanged)
    Q_PROPERTY(qreal gapBelow READ gapBelow NOTIFY entriesChanged)

public:
    enum Role { AddressRole = Qt::UserRole, TextRole, DoneRole, GapRole };

    /// Up to this number of entries, all of them have rows.
    static constexpr qsizetype shortList = 100;

    explicit TodoListModel(const QUuid &blockID, QObject *parent = nullptr);

    bool isEmpty() const { return m_isEmpty; }
    /// The height of the entries without rows below the last row.
    qreal gapBelow() const { return m_gapBelow; }

    void publish(const QList<TodoItem> &items);

    /// Sets the visible part of the checklist. `usualHeight` is assumed for entries that were never measured.
    Q_INVOKABLE void setView(qreal top, qreal bottom, qreal usualHeight);
    /// Keeps a row for this entry wherever it is, until the next call.
    Q_INVOKABLE void keep(const TextAddress &entry);
    /// Sets the height of an entry, for when it has no row.
    Q_INVOKABLE void setHeight(const TextAddress &entry, qreal height);

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void entriesChanged();

protected:
    QList<int> changedRoles(const TodoEntry &before, const TodoEntry &after) const override;

private:
    void publishRows();
    QList<TodoEntry> shownRows();
    bool isShown(const TodoItem &item, qreal top, qreal bottom) const;

    const QUuid m_blockID;
    QList<TodoItem> m_items;
    QHash<QUuid, qreal> m_heights;
    std::optional<QUuid> m_kept;
    qreal m_top = 0;
    qreal m_bottom = 0;
    qreal m_usualHeight = 1;
    qreal m_gapBelow = 0;
    bool m_isEmpty = true;
    bool m_isPublishing = false;
    bool m_isStale = false;
};
