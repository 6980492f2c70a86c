#pragma once

#include <QByteArray>

#include <filesystem>
#include <vector>

/// Returns the calendar paths in the text of khal's configuration, with "~" replaced by the home folder.
/// Wildcards, as in "~/calendars/*", are not expanded.
std::vector<std::filesystem::path> khalCalendars(const QByteArray &text, const std::filesystem::path &home);
