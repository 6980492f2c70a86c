#pragma once

#include <QByteArray>
#include <QString>

/// One file of an export.
struct ExportedFile {
    /// Below the folder that is exported to; parts are separated by slashes. Safe on every file system.
    QString path;
    QByteArray bytes;

    bool operator==(const ExportedFile &) const = default;
};
