#pragma once

#include <QSet>
#include <QString>
#include <QUuid>

/// The text as the name of a file, without a suffix: nothing in it that any usual file system forbids,
/// reserves, drops or hides, no line breaks and no marks that turn the direction of what follows, and short
/// enough for a number and a suffix to be added. "Untitled" where nothing is left.
QString fileNameFrom(const QString &text);

/// Gives the files of one folder names of their own. Names that differ only in case, or in how an accent is
/// put together, are the same name on some file systems, so they are here.
class FileNames
{
public:
    /// The name the text makes, if it is free; else with the beginning of the id after it. Who asks first has
    /// the plain name: ask for the oldest first and a newcomer never takes a name away.
    QString take(const QString &text, const QUuid &id);

private:
    bool takeIfFree(const QString &name);

    QSet<QString> m_taken;
};
