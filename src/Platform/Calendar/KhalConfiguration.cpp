#include "Platform/Calendar/KhalConfiguration.h"

#include <QList>

namespace fs = std::filesystem;

namespace
{
QByteArray withoutComment(const QByteArray &value)
{
    if (value.startsWith('"') || value.startsWith('\'')) {
        const qsizetype end = value.indexOf(value.front(), 1);
        return value.mid(1, end < 0 ? -1 : end - 1);
    }
    const qsizetype comment = value.indexOf('#');
    return (comment < 0 ? value : value.first(comment)).trimmed();
}

fs::path expanded(const QByteArray &path, const fs::path &home)
{
    for (const QByteArrayView prefix : {"~/", "$HOME/", "${HOME}/"}) {
        if (path.startsWith(prefix))
            return home / path.mid(prefix.size()).toStdString();
    }
    return path.toStdString();
}
} // namespace

std::vector<fs::path> khalCalendars(const QByteArray &text, const fs::path &home)
{
    std::vector<fs::path> calendars;
    bool isInCalendars = false;
    for (const QByteArray &whole : text.split('\n')) {
        const QByteArray line = whole.trimmed();
        if (line.startsWith('[') && !line.startsWith("[["))
            isInCalendars = line.startsWith("[calendars]");
        const qsizetype equals = line.indexOf('=');
        if (!isInCalendars || equals < 0 || line.first(equals).trimmed() != "path")
            continue;
        const fs::path path = expanded(withoutComment(line.mid(equals + 1).trimmed()), home);
        if (path.is_absolute())
            calendars.push_back(path);
    }
    return calendars;
}
