#pragma once

#include <QByteArray>
#include <QString>

/// One file of an export.
struct ExportedFile {
    /// Relative to the export folder, with slashes between the parts. Valid on every file system.
    QString path;
    QByteArray bytes;

    bool operator==(const ExportedFile &) const = default;
};
