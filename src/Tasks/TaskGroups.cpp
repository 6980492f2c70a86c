#include "Tasks/TaskGroups.h"

#include <algorithm>

TaskGroup tasksOf(const PelkoDocument &doc)
{
    TaskGroup group{.doc = doc, .todos = {}};
    for (const Block &block : doc.blocks) {
        if (block.type != BlockType::sticky || !block.todos)
            continue;
        for (const TodoItem &todo : *block.todos)
            group.todos.append({.block = block, .todo = todo});
    }
    return group;
}

QList<TaskGroup> todosByDoc(const QList<PelkoDocument> &documents)
{
    QList<TaskGroup> groups;
    for (const PelkoDocument &doc : documents) {
        TaskGroup group = tasksOf(doc);
        if (!group.todos.isEmpty())
            groups.append(std::move(group));
    }
    return groups;
}

qint64 pendingCount(const TaskGroup &group)
{
    return std::ranges::count_if(group.todos, [](const Task &task) { return !task.todo.done; });
}

qint64 pendingCount(const QList<TaskGroup> &groups)
{
    qint64 count = 0;
    for (const TaskGroup &group : groups)
        count += pendingCount(group);
    return count;
}
