#pragma once

#include <QStringView>

/// Returns how many UTF-16 units Backspace deletes behind the text `before` the caret: a whole emoji,
/// whatever it is composed of, else one code point. Combining marks thus go one by one. 0 where there is no
/// text.
qsizetype backspaceLength(QStringView before);
