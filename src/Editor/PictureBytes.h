#pragma once

#include <QByteArray>
#include <QObject>

/// The bytes of a picture file, passed through QML without the copy that QML makes of a QByteArray.
struct PictureBytes {
    Q_GADGET

public:
    QByteArray bytes;

    bool operator==(const PictureBytes &) const = default;
};
