#include "Editor/TextSlice.h"

#include <algorithm>

namespace
{
constexpr qsizetype longestSlice = 20'000;
constexpr int mostLines = 400;
} // namespace

qsizetype sliceEnd(const QString &text, qsizetype from)
{
    const qsizetype end = std::min(text.size(), from + longestSlice);
    qsizetype lineEnd = from;
    int lines = 0;
    for (qsizetype line = text.indexOf(u'\n', from); line >= 0 && line < end;
         line = text.indexOf(u'\n', line + 1)) {
        lineEnd = line + 1;
        if (++lines == mostLines)
            return lineEnd;
    }
    if (end == text.size())
        return end;
    if (lineEnd > from + longestSlice / 2)
        return lineEnd;
    return text.at(end).isLowSurrogate() ? end - 1 : end;
}
