#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqml.h>

/// Looks at what is on show below an item: its texts, its labels, and where they stand.
class ShownTexts : public QObject
{
    Q_OBJECT

public:
    /// The translated texts on show.
    Q_INVOKABLE static QStringList translated(QQuickItem *root);
    /// What is shown or read out and neither translated nor written by the user, who writes Cyrillic, nor a
    /// line of the program's voice. Each with the item that has it.
    Q_INVOKABLE static QStringList raw(QQuickItem *root);
    /// The translated texts that do not fit where they stand, with the reason.
    Q_INVOKABLE static QStringList clipped(QQuickItem *root);
    /// All texts with their places: the same again where nothing moves any more.
    Q_INVOKABLE static QString picture(QQuickItem *root);
    /// Takes note where labels and symbols stand.
    Q_INVOKABLE void remember(QQuickItem *root);
    /// Those that do not stand there as in a mirror now, or, on a page, at the same place of the page.
    Q_INVOKABLE QStringList notMirrored(QQuickItem *root) const;
    /// How many were remembered.
    Q_INVOKABLE int remembered() const { return int(m_places.size()); }

private:
    struct Place {
        QPointer<QQuickItem> item;
        QRectF before;
    };

    QList<Place> m_places;
};
