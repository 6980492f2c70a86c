#pragma once

#include "Models/PelkoDocument.h"

/// An entry of a checklist and the block it stands in, as they were when the list was made.
struct Task {
    Block block;
    TodoItem todo;

    bool operator==(const Task &) const = default;
};

/// The entries of all checklists of one document, and the document as it was when they were gathered.
struct TaskGroup {
    PelkoDocument doc;
    QList<Task> todos;

    bool operator==(const TaskGroup &) const = default;
};

/// The entries of all checklists of the page in its own order, ticked ones too.
TaskGroup tasksOf(const PelkoDocument &doc);

/// One group for each document that has an entry, in the order of the list, whatever their space and whether
/// they are archived or not.
QList<TaskGroup> todosByDoc(const QList<PelkoDocument> &documents);

/// How many entries of a page are not ticked.
qint64 pendingCount(const TaskGroup &group);
qint64 pendingCount(const QList<TaskGroup> &groups);
