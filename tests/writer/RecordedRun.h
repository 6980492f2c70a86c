#pragma once

#include "writer/Action.h"

#include <functional>

/// A random run on paper: the library that it started from, what was done, and what went wrong.
struct RecordedRun {
    QString startPages;
    QList<Action> actions;
    /// Empty while all went well. It begins with the kind of the fault and a colon.
    QString fault;

    QString kindOfFault() const { return fault.section(u':', 0, 0); }
};

/// Nothing where the file cannot be read. A run whose program came to a sudden end has no fault written down.
std::optional<RecordedRun> readRun(const QString &file);
void writeRun(const QString &file, const RecordedRun &run);

/// Writes a run down as it goes on, so that what led to a sudden end can be read.
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

/// Leaves out what is not needed for the run to fail: halves, quarters and so on down to single actions, for
/// as long as `fails` says yes to what is left. Asks `longest` times at most.
QList<Action> shrink(QList<Action> actions, const std::function<bool(const QList<Action> &)> &fails,
                     int longest);
