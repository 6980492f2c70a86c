#pragma once

#include <QString>

/// Returns the code between two Markdown fences that are longer than any run of backticks in it.
QString fenced(const QString &code);
