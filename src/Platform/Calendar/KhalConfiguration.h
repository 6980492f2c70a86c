#pragma once

#include <QByteArray>

#include <filesystem>
#include <vector>

/// The paths of the calendars in the text of khal's configuration, with the user's home put in and with names
/// that stand for many, like "~/calendars/*", not yet looked up.
std::vector<std::filesystem::path> khalCalendars(const QByteArray &text, const std::filesystem::path &home);
