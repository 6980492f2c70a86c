#pragma once

class QKeyEvent;

/// Returns whether the key inserts its text into a field: characters beyond the first plane and format
/// characters, such as those that join letters, included.
bool writesText(const QKeyEvent &event);
