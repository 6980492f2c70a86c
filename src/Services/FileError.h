#pragma once

#include <QString>

#include <variant>

/// Why a file could not be made, read or written. A value; `description` puts it into words when it is shown.
class FileError
{
public:
    /// Errors that the program itself detects.
    enum class Problem { undefinedDate, openedElsewhere, folderRemoved, chooserEnded, notAFolder };

    FileError() = default;
    explicit FileError(Problem problem) : m_reason(problem) {}
    /// An error of the system, described in the user's language.
    explicit FileError(QString systemWords) : m_reason(std::move(systemWords)) {}

    /// Returns the text for the user.
    QString description() const;

    bool operator==(const FileError &) const = default;

private:
    std::variant<QString, Problem> m_reason;
};
