#include "support/PageText.h"

using namespace Qt::StringLiterals;

namespace
{

constexpr uint group = 0x50616765;

QString line(const TodoItem &item)
{
    return u"%1[%2] \"%3\""_s.arg(PageText::nameOf(item.id), item.done ? u"x"_s : u" "_s, item.text);
}

} // namespace

QUuid PageText::idOf(char letter)
{
    return QUuid(group, 0, 0x4000, 0x80, 0, 0, 0, 0, 0, 0, static_cast<uchar>(letter));
}

QString PageText::id(char letter)
{
    return idOf(letter).toString(QUuid::WithoutBraces);
}

QString PageText::nameOf(const QUuid &id)
{
    return id == idOf(static_cast<char>(id.data4[7])) ? QString(QLatin1Char(char(id.data4[7]))) : u"+"_s;
}

Block PageText::block(char letter, BlockType type, const QString &content)
{
    Block made(type, content);
    made.id = idOf(letter);
    return made;
}

Block PageText::image(char letter, std::optional<bool> isFullWidth)
{
    Block made = block(letter, BlockType::image);
    made.imageData = "picture"_ba;
    made.isFullWidth = isFullWidth;
    return made;
}

Block PageText::sticky(char letter, const QList<TodoItem> &todos)
{
    Block made = block(letter, BlockType::sticky);
    made.todos = todos;
    return made;
}

TodoItem PageText::todo(char letter, const QString &text, bool done)
{
    return {.id = idOf(letter), .text = text, .done = done};
}

PelkoDocument PageText::page(const QList<Block> &blocks)
{
    PelkoDocument made(Space::work, 700'000'000);
    made.blocks = blocks;
    return made;
}

QString PageText::line(const Block &block)
{
    QString text = u"%1 %2 \"%3\""_s.arg(nameOf(block.id), rawValue(block.type), block.content);
    if (block.imageData)
        text += u" image(%1)"_s.arg(QString::fromLatin1(*block.imageData));
    if (block.todos) {
        QStringList items;
        for (const TodoItem &item : *block.todos)
            items << ::line(item);
        text += u" todos(%1)"_s.arg(items.join(u", "_s));
    }
    if (block.isFullWidth)
        text += *block.isFullWidth ? u" full"_s : u" not full"_s;
    if (block.bannerTitle)
        text += u" title(%1)"_s.arg(*block.bannerTitle);
    return text;
}

QStringList PageText::lines(const PelkoDocument &document)
{
    QStringList result;
    for (const Block &block : document.blocks)
        result << line(block);
    return result;
}

QString PageText::letters(const PelkoDocument &document)
{
    QString result;
    for (const Block &block : document.blocks)
        result += nameOf(block.id);
    return result;
}

BlockSelection PageText::between(char first, int from, char last, int to)
{
    return {.anchor = {.passage = {idOf(first)}, .offset = from},
            .head = {.passage = {idOf(last)}, .offset = to}};
}

TextAddress PageText::address(char block, std::optional<char> part)
{
    return {.blockID = idOf(block), .partID = part ? std::optional(idOf(*part)) : std::nullopt};
}

QString PageText::focus(const std::optional<FocusTarget> &target)
{
    if (!target)
        return {};
    const QString todo = target->address.partID ? u'.' + nameOf(*target->address.partID) : QString();
    const QString caret = target->caret == FocusTarget::atEnd ? u"end"_s : QString::number(target->caret);
    return nameOf(target->address.blockID) + todo + u'@' + caret;
}
