#pragma once

#include <QString>

/// Whether a line must end at this character: one of LF, VT, FF, CR, NEL, U+2028 and U+2029. CR and LF in a
/// row are one break.
bool isLineBreak(QChar character);

/// The text for a field of one line: each line break and each tab is a space.
QString onOneLine(const QString &text);
