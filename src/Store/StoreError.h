#pragma once

#include "Services/FileError.h"

/// What went wrong with the documents as a whole. A value: it is put into words where it is shown.
struct StoreError {
    enum class Task { load, save };

    Task task = Task::save;
    FileError cause = {};

    /// In words for the user. What is wrong with a file that cannot be loaded is of no use to them.
    QString description() const;

    bool operator==(const StoreError &) const = default;
};
