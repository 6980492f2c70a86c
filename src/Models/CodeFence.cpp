#include "Models/CodeFence.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
qsizetype longestRun(const QString &text, QChar mark)
{
    qsizetype longest = 0;
    qsizetype run = 0;
    for (const QChar c : text) {
        run = c == mark ? run + 1 : 0;
        longest = std::max(longest, run);
    }
    return longest;
}
} // namespace

QString fenced(const QString &code)
{
    const QString fence(std::max<qsizetype>(3, longestRun(code, u'`') + 1), u'`');
    return fence + u'\n' + code + u'\n' + fence;
}
