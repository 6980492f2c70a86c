#include "Editor/ClipboardFormats.h"

#include "Models/BlockFormat.h"
#include "Models/CodeFence.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto rule = "---"_L1;

template <typename Line>
QString linesOf(const QList<TodoItem> &todos, Line line)
{
    QStringList lines;
    for (const TodoItem &todo : todos)
        lines << line(todo);
    return lines.join(u'\n');
}

QString join(const QList<Block> &blocks, BlockFormat &&format, const QString &between)
{
    QStringList parts;
    for (const Block &block : blocks) {
        if (const std::optional<QString> part = format(block))
            parts << *part;
    }
    return parts.join(between);
}

class PlainText : public BlockFormat
{
public:
    PlainText() : BlockFormat(EmptyBlocks::kept) {}

protected:
    QString heading(const QString &text) override { return text; }
    QString body(const QString &text) override { return text; }
    QString quote(const QString &text) override { return text; }
    QString code(const QString &text) override { return text; }
    QString divider() override { return rule; }
    std::optional<QString> picture(const Block &block) override { return block.bannerTitle; }
    QString checklist(const QList<TodoItem> &todos) override
    {
        return linesOf(todos, [](const TodoItem &todo) { return todo.text; });
    }
};

/// A banner is represented by its title, as a heading.
class MarkedUpText : public BlockFormat
{
protected:
    MarkedUpText() : BlockFormat(EmptyBlocks::omitted) {}

    std::optional<QString> picture(const Block &block) override
    {
        const QString title = block.bannerTitle.value_or(QString());
        return title.isEmpty() ? std::nullopt : std::optional(heading(title));
    }
};

class Markdown : public MarkedUpText
{
protected:
    QString heading(const QString &text) override { return "# "_L1 + QString(text).replace(u'\n', u' '); }
    QString body(const QString &text) override { return withHardBreaks(text, {}); }
    QString quote(const QString &text) override { return "> "_L1 + withHardBreaks(text, u"> "_s); }
    QString code(const QString &text) override { return fenced(text); }
    QString divider() override { return rule; }
    QString checklist(const QList<TodoItem> &todos) override
    {
        return linesOf(todos, [](const TodoItem &todo) {
            return (todo.done ? "- [x] "_L1 : "- [ ] "_L1) + withHardBreaks(todo.text, u"      "_s);
        });
    }

private:
    static QString withHardBreaks(const QString &text, const QString &nextLine)
    {
        return QString(text).replace(u'\n', "  \n"_L1 + nextLine);
    }
};

class Html : public MarkedUpText
{
protected:
    QString heading(const QString &text) override { return element(u"h1", flowing(text)); }
    QString body(const QString &text) override { return element(u"p", flowing(text)); }
    QString quote(const QString &text) override
    {
        return element(u"blockquote", element(u"p", flowing(text)));
    }
    QString code(const QString &text) override
    {
        return element(u"pre", element(u"code", text.toHtmlEscaped()));
    }
    QString divider() override { return u"<hr>"_s; }
    QString checklist(const QList<TodoItem> &todos) override
    {
        return element(u"ul", linesOf(todos, [](const TodoItem &todo) {
                           return element(u"li", (todo.done ? u"☑ "_s : u"☐ "_s) + flowing(todo.text));
                       }));
    }

private:
    static QString element(QStringView name, const QString &content)
    {
        return u"<%1>%2</%1>"_s.arg(name, content);
    }
    static QString flowing(const QString &text) { return text.toHtmlEscaped().replace(u'\n', "<br>"_L1); }
};

} // namespace

QString ClipboardFormats::plainText(const QList<Block> &blocks)
{
    return join(blocks, PlainText(), u"\n"_s);
}

QString ClipboardFormats::markdown(const QList<Block> &blocks)
{
    return join(blocks, Markdown(), u"\n\n"_s);
}

QString ClipboardFormats::html(const QList<Block> &blocks)
{
    return join(blocks, Html(), u"\n"_s);
}
