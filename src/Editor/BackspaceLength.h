#pragma once

#include <QStringView>

/// Returns the number of UTF-16 units that Backspace deletes behind the text `before` the caret: a whole
/// emoji, however it is composed, otherwise one code point. Combining marks are thus deleted one by one. 0 if
/// there is no text.
qsizetype backspaceLength(QStringView before);
