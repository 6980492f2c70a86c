#pragma once

#include "PictureItem.h"

#include <QColor>
#include <QtQml/qqml.h>

/// A ring that fills clockwise from the top, brightening towards a glowing head. The ring lies `margin`
/// inside the edges of the item, which leaves room for the glow. It is repainted only when the head has moved
/// visibly.
class ProgressRing : public PictureItem
{
    Q_OBJECT
    Q_PROPERTY(qreal progress READ progress WRITE setProgress NOTIFY progressChanged)
    Q_PROPERTY(qreal stroke MEMBER m_stroke NOTIFY looksChanged)
    Q_PROPERTY(qreal margin MEMBER m_margin NOTIFY looksChanged)
    Q_PROPERTY(QColor trackColor MEMBER m_trackColor NOTIFY looksChanged)
    Q_PROPERTY(QColor tailColor MEMBER m_tailColor NOTIFY looksChanged)
    Q_PROPERTY(QColor headColor MEMBER m_headColor NOTIFY looksChanged)
    QML_ELEMENT

public:
    explicit ProgressRing(QQuickItem *parent = nullptr);

    /// From 0 to 1.
    qreal progress() const { return m_progress; }
    void setProgress(qreal progress);

Q_SIGNALS:
    void progressChanged();
    void looksChanged();

protected:
    void paintPicture(QPainter &painter, const QSizeF &size) override;

private:
    void paintGlow(QPainter &painter, const QPointF &head) const;
    void paintCap(QPainter &painter, const QPointF &centre, const QColor &color) const;

    qreal m_progress = 0;
    qreal m_stroke = 5;
    qreal m_margin = 0;
    QColor m_trackColor;
    QColor m_tailColor;
    QColor m_headColor;
};
