#pragma once

#include <QString>

/// Where the next slice of a long text ends: as much from `from` on as a text field lays out in a few
/// hundredths of a second. A slice ends behind a line feed where there is one in its second half. The end of
/// the text if the rest is short.
qsizetype sliceEnd(const QString &text, qsizetype from);
