#pragma once

#include <QString>
#include <QUuid>

/// One entry of a checklist.
struct TodoItem {
    QUuid id = QUuid::createUuid();
    QString text;
    bool done = false;

    bool operator==(const TodoItem &) const = default;
};
