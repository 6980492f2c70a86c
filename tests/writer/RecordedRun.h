#pragma once

#include "writer/Action.h"

#include <functional>

/// The record of a random run: its first library, its actions and its fault.
struct RecordedRun {
    QString startPages;
    QList<Action> actions;
    /// Empty if there was no fault; otherwise it begins with its kind and a colon.
    QString fault;

    QString kindOfFault() const { return fault.section(u':', 0, 0); }
};

/// Returns std::nullopt if the file cannot be read. A run that crashed has no fault in its record.
std::optional<RecordedRun> readRun(const QString &file);
void writeRun(const QString &file, const RecordedRun &run);

/// Records a run while it is performed, so that the actions before a crash are known.
class RunRecorder
{
public:
    /// Without a file, nothing is recorded.
    RunRecorder(const QString &file, const QString &startPages);

    void add(const Action &action);
    void add(const QString &fault);

private:
    void append(const QByteArray &line);

    QString m_file;
};

/// Removes actions while `fails` returns true for the rest: halves, quarters and so on down to single
/// actions. Calls `fails` at most `longest` times.
QList<Action> shrink(QList<Action> actions, const std::function<bool(const QList<Action> &)> &fails,
                     int longest);
