#pragma once

class QKeyEvent;

/// Whether the key would put its text into a field: characters beyond the first plane and format characters,
/// such as those that join letters, included.
bool writesText(const QKeyEvent &event);
