#pragma once

#include <QString>

#include <variant>

/// Why a file could not be made, read or written. A value: it is put into words where it is shown.
class FileError
{
public:
    /// What the program finds out for itself.
    enum class Problem { undefinedDate, openedElsewhere, folderRemoved, chooserEnded, notAFolder };

    FileError() = default;
    explicit FileError(Problem problem) : m_reason(problem) {}
    /// In the words of the system, which are in the user's language already.
    explicit FileError(QString systemWords) : m_reason(std::move(systemWords)) {}

    /// In words for the user.
    QString description() const;

    bool operator==(const FileError &) const = default;

private:
    std::variant<QString, Problem> m_reason;
};
