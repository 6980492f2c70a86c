#pragma once

#include <QSet>
#include <QString>
#include <QUuid>

/// The text as the name of a file, without a suffix: nothing in it that any usual file system forbids,
/// reserves, drops or hides, no line breaks and no marks that turn the direction of what follows, and short
/// enough for a number and a suffix to be added. "Untitled" where nothing is left.
QString fileNameFrom(const QString &text);

/// Assigns unique names to the files of one folder. Names that differ only in case, or in how an accent is
/// put together, are the same name on some file systems, so they are here.
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
