#pragma once

#include "Calendar/CalendarFixture.h"
#include "Platform/Calendar/DesktopCalendarStore.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

/// A home folder with calendar folders on the real disk.
class CalendarHome
{
public:
    UserFolders folders() const
    {
        return {
            .home = path("home"), .configuration = path("home/.config"), .data = path("home/.local/share")};
    }

    std::filesystem::path path(const char *name) const
    {
        return std::filesystem::path(m_folder.path().toStdString()) / name;
    }

    /// Writes a file below the home and creates its folders.
    void put(const char *name, const QByteArray &bytes) const
    {
        const auto file = path("home") / name;
        std::filesystem::create_directories(file.parent_path());
        QFile target(file);
        QVERIFY(target.open(QIODevice::WriteOnly));
        QCOMPARE(target.write(bytes), bytes.size());
    }

private:
    QTemporaryDir m_folder;
};

/// Returns the titles of the events in their order, or "-" for std::nullopt.
inline QString titles(const std::optional<CalendarStore::Answer> &answer)
{
    if (!answer)
        return QStringLiteral("no answer");
    if (!*answer)
        return QStringLiteral("-");
    QStringList titles;
    for (const CalendarEvent &event : **answer)
        titles << event.title.value_or(QStringLiteral("?"));
    return titles.join(u' ');
}

inline QString fetched(CalendarStore &store, const CalendarWindow &window = CalendarFixture().window())
{
    std::optional<CalendarStore::Answer> answer;
    const ScheduledCall request =
        store.fetch(window, [&answer](const CalendarStore::Answer &told) { answer = told; });
    [&answer] { QTRY_VERIFY_WITH_TIMEOUT(answer, 20'000); }();
    return titles(answer);
}
