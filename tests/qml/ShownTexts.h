#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqml.h>

/// Inspects the visible texts and labels below an item.
class ShownTexts : public QObject
{
    Q_OBJECT

public:
    /// Returns the visible translated texts.
    Q_INVOKABLE static QStringList translated(QQuickItem *root);
    /// Returns visible or spoken texts that are neither translated, nor written by the user (in Cyrillic),
    /// nor a line of PelkoVoice. Each with its item.
    Q_INVOKABLE static QStringList raw(QQuickItem *root);
    /// Returns the translated texts that are clipped or elided, with the reason.
    Q_INVOKABLE static QStringList clipped(QQuickItem *root);
    /// Returns all texts with their positions, to detect when nothing moves any more.
    Q_INVOKABLE static QString picture(QQuickItem *root);
    /// Stores the positions of labels and symbols.
    Q_INVOKABLE void remember(QQuickItem *root);
    /// Returns the stored items that are not at the mirrored position now, or, on a page, not at the same
    /// position of the page.
    Q_INVOKABLE QStringList notMirrored(QQuickItem *root) const;
    /// Returns the number of stored items.
    Q_INVOKABLE int remembered() const { return int(m_places.size()); }

private:
    struct Place {
        QPointer<QQuickItem> item;
        QRectF before;
    };

    QList<Place> m_places;
};
