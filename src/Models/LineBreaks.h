#pragma once

#include <QString>

/// Returns whether a line must end at this character: LF, VT, FF, CR, NEL, U+2028 or U+2029. CR LF is one
/// break.
bool isLineBreak(QChar character);

/// Returns the text for a field of one line: each line break and each tab becomes a space.
QString onOneLine(const QString &text);
