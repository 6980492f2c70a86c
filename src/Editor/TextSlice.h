#pragma once

#include <QString>

/// Returns the end of the next slice of a long text, which a text field lays out in a few hundredths of a
/// second. A slice ends behind a line feed if its second half contains one. Returns the end of the text if
/// the rest is short.
qsizetype sliceEnd(const QString &text, qsizetype from);
