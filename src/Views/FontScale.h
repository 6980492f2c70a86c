#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqml.h>

/// Makes fonts of a given height in device-independent pixels. A font takes whole pixels but fractions of a
/// point, and some of our sizes are fractions of a pixel: so they go through points, counted back from what a
/// point measures on this desktop, and come out as the pixels they were meant to be.
class FontScale : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qreal pixelsPerPoint READ pixelsPerPoint CONSTANT)
    QML_ELEMENT
    QML_SINGLETON

public:
    qreal pixelsPerPoint() const;

    /// `weight` as in QFont, `tracking` in pixels added after each letter.
    Q_INVOKABLE QFont face(const QString &family, qreal pixels, int weight, qreal tracking,
                           bool italic) const;
};
