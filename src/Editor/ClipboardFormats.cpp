#include "Editor/ClipboardFormats.h"

#include "Models/CodeFence.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto rule = "---"_L1;

QList<TodoItem> todosOf(const Block &block)
{
    return block.todos.value_or(QList<TodoItem>{});
}

template <typename Line>
QString linesOf(const Block &checklist, Line line)
{
    QStringList lines;
    for (const TodoItem &todo : todosOf(checklist))
        lines << line(todo);
    return lines.join(u'\n');
}

/// The form of each block, where it has one.
template <typename Form>
QString join(const QList<Block> &blocks, Form form, const QString &between)
{
    QStringList parts;
    for (const Block &block : blocks) {
        const std::optional<QString> part = form(block);
        if (part)
            parts << *part;
    }
    return parts.join(between);
}

bool saysNothing(const Block &block)
{
    switch (block.type) {
    case BlockType::divider:
        return false;
    case BlockType::image:
        return block.bannerTitle.value_or(QString()).isEmpty();
    case BlockType::sticky:
        return todosOf(block).isEmpty();
    default:
        return block.content.isEmpty();
    }
}

std::optional<QString> plainForm(const Block &block)
{
    switch (block.type) {
    case BlockType::divider:
        return rule;
    case BlockType::image:
        return block.bannerTitle;
    case BlockType::sticky:
        return linesOf(block, [](const TodoItem &todo) { return todo.text; });
    default:
        return block.content;
    }
}

QString withHardBreaks(const QString &text, const QString &nextLine)
{
    return QString(text).replace(u'\n', "  \n"_L1 + nextLine);
}

std::optional<QString> markdownForm(const Block &block)
{
    if (saysNothing(block))
        return std::nullopt;
    switch (block.type) {
    case BlockType::textLarge:
        return "# "_L1 + QString(block.content).replace(u'\n', u' ');
    case BlockType::quote:
        return "> "_L1 + withHardBreaks(block.content, u"> "_s);
    case BlockType::code:
        return fenced(block.content);
    case BlockType::divider:
        return rule;
    case BlockType::image:
        return "# "_L1 + block.bannerTitle.value();
    case BlockType::sticky:
        return linesOf(block, [](const TodoItem &todo) {
            return (todo.done ? "- [x] "_L1 : "- [ ] "_L1) + withHardBreaks(todo.text, u"      "_s);
        });
    default:
        return withHardBreaks(block.content, {});
    }
}

QString element(QStringView name, const QString &content)
{
    return u"<%1>%2</%1>"_s.arg(name, content);
}

QString flowing(const QString &text)
{
    return text.toHtmlEscaped().replace(u'\n', "<br>"_L1);
}

std::optional<QString> htmlForm(const Block &block)
{
    if (saysNothing(block))
        return std::nullopt;
    switch (block.type) {
    case BlockType::textLarge:
        return element(u"h1", flowing(block.content));
    case BlockType::quote:
        return element(u"blockquote", element(u"p", flowing(block.content)));
    case BlockType::code:
        return element(u"pre", element(u"code", block.content.toHtmlEscaped()));
    case BlockType::divider:
        return u"<hr>"_s;
    case BlockType::image:
        return element(u"h1", flowing(block.bannerTitle.value()));
    case BlockType::sticky:
        return element(u"ul", linesOf(block, [](const TodoItem &todo) {
                           return element(u"li", (todo.done ? u"☑ "_s : u"☐ "_s) + flowing(todo.text));
                       }));
    default:
        return element(u"p", flowing(block.content));
    }
}

} // namespace

QString ClipboardFormats::plainText(const QList<Block> &blocks)
{
    return join(blocks, plainForm, u"\n"_s);
}

QString ClipboardFormats::markdown(const QList<Block> &blocks)
{
    return join(blocks, markdownForm, u"\n\n"_s);
}

QString ClipboardFormats::html(const QList<Block> &blocks)
{
    return join(blocks, htmlForm, u"\n"_s);
}
