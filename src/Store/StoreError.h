#pragma once

#include "Services/FileError.h"

/// An error that concerns all documents. A value; `description` puts it into words when it is shown.
struct StoreError {
    enum class Task { load, save };

    Task task = Task::save;
    FileError cause = {};

    /// Returns the text for the user. The cause of a failed load is left out, because it would not help them.
    QString description() const;

    bool operator==(const StoreError &) const = default;
};
