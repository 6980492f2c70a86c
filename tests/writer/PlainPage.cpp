#include "writer/PlainPage.h"

#include <QCryptographicHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

PlainBlock plainBlock(const Block &block)
{
    PlainBlock plain{.kind = block.type,
                     .text = block.content,
                     .picture = block.imageData ? pictureMark(*block.imageData) : QByteArray(),
                     .isFullWidth = block.isFullWidth,
                     .title = block.bannerTitle};
    if (!block.todos)
        return plain;
    plain.entries.emplace();
    for (const TodoItem &todo : *block.todos)
        plain.entries->append({.text = todo.text, .done = todo.done});
    return plain;
}

QString describe(const PlainBlock &block)
{
    QString line = rawValue(block.kind) + u' ' + quoted(block.text);
    if (!block.picture.isEmpty())
        line += u" picture "_s + QString::fromLatin1(block.picture);
    if (block.isFullWidth)
        line += *block.isFullWidth ? u" banner"_s : u" no banner"_s;
    if (block.title)
        line += u" title "_s + quoted(*block.title);
    if (block.entries && block.entries->isEmpty())
        line += u" no entries"_s;
    for (const PlainEntry &entry : block.entries.value_or(QList<PlainEntry>()))
        line += (entry.done ? u" [x] "_s : u" [ ] "_s) + quoted(entry.text);
    return line;
}

} // namespace

QByteArray pictureMark(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).first(3).toHex();
}

PlainPage plainPage(const QList<Block> &blocks)
{
    PlainPage page;
    std::ranges::transform(blocks, std::back_inserter(page), plainBlock);
    return page;
}

QStringList linesOf(const PlainPage &page)
{
    QStringList lines;
    std::ranges::transform(page, std::back_inserter(lines), describe);
    return lines;
}

QString quoted(const QString &text)
{
    constexpr int longest = 160;
    QString written;
    for (const QChar c : text.left(longest)) {
        const bool isSeen = c.isPrint() && c.category() != QChar::Mark_NonSpacing;
        written += isSeen || c.isSurrogate() ? QString(c) : u"\\u%1"_s.arg(c.unicode(), 4, 16, QChar(u'0'));
    }
    const QString rest = text.size() > longest ? u"… (%1)"_s.arg(text.size()) : QString();
    return u"\"%1\"%2"_s.arg(written, rest);
}

QString difference(const PlainPage &expected, const PlainPage &found)
{
    const QStringList before = linesOf(expected);
    const QStringList after = linesOf(found);
    const qsizetype start = std::ranges::mismatch(before, after).in1 - before.begin();
    qsizetype foot = 0;
    while (foot < before.size() - start && foot < after.size() - start &&
           before.at(before.size() - 1 - foot) == after.at(after.size() - 1 - foot))
        ++foot;
    QString told;
    for (const QString &line : before.sliced(start, before.size() - start - foot))
        told += u"    - "_s + line + u'\n';
    for (const QString &line : after.sliced(start, after.size() - start - foot))
        told += u"    + "_s + line + u'\n';
    return told.isEmpty() ? u"    (they differ behind what is shown here)\n"_s : told;
}
