#pragma once

#include "Models/PelkoDocument.h"

/// An entry of a checklist and its block, as they were when the list was made.
struct Task {
    Block block;
    TodoItem todo;

    bool operator==(const Task &) const = default;
};

/// The entries of all checklists of one document, and the document itself at that time.
struct TaskGroup {
    PelkoDocument doc;
    QList<Task> todos;

    bool operator==(const TaskGroup &) const = default;
};

/// Returns the entries of all checklists of the page in their order, ticked ones too.
TaskGroup tasksOf(const PelkoDocument &doc);

/// Returns a group for each document that has an entry, in the order of `documents`, from all spaces and
/// including archived ones.
QList<TaskGroup> todosByDoc(const QList<PelkoDocument> &documents);

/// Returns the number of entries that are not ticked.
qint64 pendingCount(const TaskGroup &group);
qint64 pendingCount(const QList<TaskGroup> &groups);
