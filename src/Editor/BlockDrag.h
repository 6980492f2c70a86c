#pragma once

#include "Editor/BlockDropDelegate.h"

#include <QObject>

/// The drag of one block over the open page. The page changes with each row that the block reaches, but only
/// the drop saves; a cancelled drag puts the block back. Ids are strings in QML. Unknown ids change nothing.
class BlockDrag : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString draggingBlockID READ draggingBlockID NOTIFY draggingBlockIDChanged)

public:
    explicit BlockDrag(AppState &appState, QObject *parent = nullptr);

    /// The id of the dragged block; empty if there is none.
    QString draggingBlockID() const;

    Q_INVOKABLE void begin(const QString &blockID);
    /// Call it when the pointer enters the row of the block.
    Q_INVOKABLE void enter(const QString &blockID);
    Q_INVOKABLE void drop();
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void draggingBlockIDChanged();

private:
    /// The row of the dragged block before the drag, limited to the length of the page.
    qsizetype origin(const PelkoDocument &page) const;

    AppState &m_appState;
    std::optional<QUuid> m_draggingBlockID;
    qsizetype m_origin = 0;
};
