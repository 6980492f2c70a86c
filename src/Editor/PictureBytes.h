#pragma once

#include <QByteArray>
#include <QObject>

/// The bytes of a picture file on their way through QML, which would make a copy of a bare QByteArray.
struct PictureBytes {
    Q_GADGET

public:
    QByteArray bytes;

    bool operator==(const PictureBytes &) const = default;
};
