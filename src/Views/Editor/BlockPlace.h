#pragma once

#include "PageListener.h"

#include <QPointer>
#include <QQuickItem>
#include <QUuid>

/// Gives the page access to a row: which block it shows, and whether the block is selected as a whole.
class BlockPlace : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(PageListener *page MEMBER m_page REQUIRED)
    Q_PROPERTY(QString blockID MEMBER m_blockID REQUIRED)
    Q_PROPERTY(QQuickItem *row MEMBER m_row REQUIRED)
    Q_PROPERTY(QQuickItem *item MEMBER m_item REQUIRED)
    Q_PROPERTY(QQuickItem *control MEMBER m_control)
    Q_PROPERTY(bool covered READ isCovered NOTIFY coveredChanged)
    QML_ELEMENT

public:
    using QObject::QObject;

    QUuid id() const { return QUuid(m_blockID); }
    /// A row that has left the view has no window, even before it is destroyed.
    bool isOnPage() const { return m_page && m_item && m_item->window(); }
    /// Including the controls beside the block.
    QQuickItem *row() const { return m_row; }
    QQuickItem *item() const { return m_item; }
    bool isCovered() const { return m_isCovered; }
    void setCovered(bool covered);

    /// Whether the block, or the control that stands for it, has the focus.
    bool hasFocus() const;
    bool hasFocusItself() const;
    /// Gives the focus to the control that stands for the block.
    void takeFocus() const;

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void coveredChanged();

private:
    const QQuickItem *focused() const;

    QPointer<PageListener> m_page;
    QString m_blockID;
    QPointer<QQuickItem> m_row;
    QPointer<QQuickItem> m_item;
    QPointer<QQuickItem> m_control;
    bool m_isCovered = false;
};
