#pragma once

#include <QSet>
#include <QString>
#include <QUuid>

/// Returns the text as a file name without a suffix: without characters that usual file systems forbid,
/// without reserved names, line breaks and direction marks, not hidden, and short enough for a number and a
/// suffix. "Untitled" if nothing is left.
QString fileNameFrom(const QString &text);

/// Assigns unique names to the files of one folder. Names that differ only in case or in Unicode
/// normalisation are equal, because they are on some file systems.
class FileNames
{
public:
    /// Returns the file name for the text and reserves it. If it is taken, appends the beginning of the id.
    /// Call it for the oldest page first, so that a new page never changes the name of an older one.
    QString take(const QString &text, const QUuid &id);

private:
    bool takeIfFree(const QString &name);

    QSet<QString> m_taken;
};
