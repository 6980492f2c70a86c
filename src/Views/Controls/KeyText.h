#pragma once

class QKeyEvent;

/// Returns whether the key inserts its text into a field. Includes characters beyond the Basic Multilingual
/// Plane and format characters, such as joiners.
bool writesText(const QKeyEvent &event);
