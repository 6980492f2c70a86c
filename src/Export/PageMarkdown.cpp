#include "Export/PageMarkdown.h"

#include "Export/MarkdownText.h"
#include "Models/CodeFence.h"

#include <QStringList>

using namespace Qt::StringLiterals;
using MarkdownText::Place;

namespace
{
QString heading(const QString &text)
{
    const QString marked = MarkdownText::escaped(text, Place::marked);
    // Only an underlined heading has room for more than one line.
    if (marked.contains(u'\n'))
        return MarkdownText::escaped(text, Place::line) + "\n==="_L1;
    // Number signs at the end would be taken for a closing mark.
    return marked.endsWith(u'#') ? "# "_L1 + marked.chopped(1) + R"(\#)"_L1 : "# "_L1 + marked;
}

QString quote(const QString &text)
{
    return "> "_L1 + MarkdownText::escaped(text, Place::line, u"> "_s);
}

QString code(QString text)
{
    text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
    return fenced(text);
}

QString checklist(const QList<TodoItem> &todos, QChar bullet)
{
    QStringList lines;
    for (const TodoItem &todo : todos) {
        const QString box = todo.done ? u" [x]"_s : u" [ ]"_s;
        const QString text = MarkdownText::escaped(todo.text, Place::marked, u"      "_s);
        lines << bullet + box + (text.isEmpty() ? QString() : u' ' + text);
    }
    return lines.join(u'\n');
}

QStringList picture(const Block &block, const QString &address)
{
    QStringList parts;
    if (!address.isEmpty())
        parts << u"![](%1)"_s.arg(address);
    const QString title =
        block.isFullWidth.value_or(false) ? block.bannerTitle.value_or(QString()) : QString();
    if (!title.isEmpty())
        parts << heading(title);
    return parts;
}

QStringList text(const Block &block)
{
    if (block.content.isEmpty())
        return {};
    switch (block.type) {
    case BlockType::textLarge:
        return {heading(block.content)};
    case BlockType::quote:
        return {quote(block.content)};
    case BlockType::code:
        return {code(block.content)};
    default:
        return {MarkdownText::escaped(block.content, Place::line)};
    }
}
} // namespace

QString pageMarkdown(const QList<Block> &blocks, const QHash<qsizetype, QString> &pictures)
{
    QStringList parts;
    QChar bullet = u'-';
    for (qsizetype row = 0; row < blocks.size(); ++row) {
        const Block &block = blocks.at(row);
        if (block.type == BlockType::divider)
            parts << u"---"_s;
        else if (block.type == BlockType::image)
            parts << picture(block, pictures.value(row));
        else if (block.type != BlockType::sticky)
            parts << text(block);
        else if (block.todos && !block.todos->isEmpty()) {
            // Two lists that follow each other are one, unless their bullets differ.
            parts << checklist(*block.todos, bullet);
            bullet = bullet == u'-' ? u'*' : u'-';
        }
    }
    return parts.isEmpty() ? QString() : parts.join("\n\n"_L1) + u'\n';
}
