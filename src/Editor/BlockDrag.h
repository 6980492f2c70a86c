#pragma once

#include "Editor/BlockDropDelegate.h"

#include <QObject>

/// The drag of one block over the open page: which block it is, and what happens to the page on its way from
/// row to row. Only the drop saves; a drag that is called off puts the block back where it came from. Ids
/// cross into QML as strings. Steps that find nothing change nothing.
class BlockDrag : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString draggingBlockID READ draggingBlockID NOTIFY draggingBlockIDChanged)

public:
    explicit BlockDrag(AppState &appState, QObject *parent = nullptr);

    /// The block that is dragged; empty for none.
    QString draggingBlockID() const;

    Q_INVOKABLE void begin(const QString &blockID);
    /// The pointer came to the row of that block.
    Q_INVOKABLE void enter(const QString &blockID);
    Q_INVOKABLE void drop();
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void draggingBlockIDChanged();

private:
    /// Where the dragged block came from, as long as the page is long enough.
    qsizetype origin(const PelkoDocument &page) const;

    AppState &m_appState;
    std::optional<QUuid> m_draggingBlockID;
    qsizetype m_origin = 0;
};
