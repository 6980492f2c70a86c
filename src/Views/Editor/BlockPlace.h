#pragma once

#include "PageListener.h"

#include <QPointer>
#include <QQuickItem>
#include <QUuid>

/// Where a block stands on the page and whether it is selected as a whole.
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
    /// A row that has left the view is in no window any more, even before it is destroyed.
    bool isOnPage() const { return m_page && m_item && m_item->window(); }
    /// With the controls beside the block.
    QQuickItem *row() const { return m_row; }
    QQuickItem *item() const { return m_item; }
    bool isCovered() const { return m_isCovered; }
    void setCovered(bool covered);

    /// Whether it has the keyboard itself, or the control that stands for it.
    bool hasFocus() const;
    bool hasFocusItself() const;
    /// Gives the keyboard to the control that stands for the block.
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
