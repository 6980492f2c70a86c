#include "Services/FileError.h"

#include <QCoreApplication>

namespace
{
QString inWords(FileError::Problem problem)
{
    switch (problem) {
    case FileError::Problem::undefinedDate:
        return QCoreApplication::translate("FileError", "A document holds a date that is not a number.");
    case FileError::Problem::openedElsewhere:
        return QCoreApplication::translate("FileError", "Another Pelko has opened these documents.");
    case FileError::Problem::folderRemoved:
        return QCoreApplication::translate("FileError", "The folder of the documents was removed.");
    case FileError::Problem::chooserEnded:
        return QCoreApplication::translate("FileError", "The file chooser came to an unexpected end");
    case FileError::Problem::notAFolder:
        return QCoreApplication::translate("FileError", "That is a file, not a folder.");
    }
    Q_UNREACHABLE();
}
} // namespace

QString FileError::description() const
{
    const auto *problem = std::get_if<Problem>(&m_reason);
    return problem ? inWords(*problem) : std::get<QString>(m_reason);
}
