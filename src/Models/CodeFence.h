#pragma once

#include <QString>

/// Code between two Markdown fences, which are longer than any run of backticks in it.
QString fenced(const QString &code);
