#include "writer/StartPages.h"

#include <QBuffer>
#include <QColor>
#include <QImage>

#include <functional>
#include <map>

using namespace Qt::StringLiterals;

namespace
{

using Blocks = QList<Block>;

Block heading(const QString &text)
{
    return Block(BlockType::textLarge, text);
}

Block body(const QString &text)
{
    return Block(BlockType::textSmall, text);
}

Block checklist(const QStringList &texts)
{
    Block block(BlockType::sticky);
    block.todos.emplace();
    for (const QString &text : texts)
        block.todos->append({.text = text, .done = text.startsWith(u'x')});
    return block;
}

Block picture(const QColor &color, std::optional<bool> isFullWidth = std::nullopt)
{
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(color);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    Block block(BlockType::image);
    block.imageData = buffer.data();
    block.isFullWidth = isFullWidth;
    return block;
}

Blocks paragraphs(int count)
{
    Blocks blocks;
    for (int number = 1; number <= count; ++number)
        blocks.append(body(u"Paragraph %1 says what the one before it left out."_s.arg(number)));
    return blocks;
}

QStringList entries(int count)
{
    QStringList texts;
    for (int number = 1; number <= count; ++number)
        texts.append(number % 3 ? u"buy thing %1"_s.arg(number) : u"x%1 is done"_s.arg(number));
    return texts;
}

Blocks everyKind()
{
    return {heading(u"Every kind"_s),
            body(u"A body of a few words."_s),
            Block(BlockType::quote, u"said he"_s),
            Block(BlockType::code, u"if (a)\n\tb();\n\treturn c;"_s),
            Block(BlockType::divider),
            picture(Qt::darkGreen),
            checklist({u"milk"_s, u"xbread"_s, {}}),
            body({}),
            Block(BlockType::image)};
}

Blocks checklists()
{
    return Blocks{heading(u"Far below"_s), checklist({u"one"_s, u"two"_s, u"three"_s})} + paragraphs(40) +
           Blocks{checklist(entries(12)), body(u"The end."_s)};
}

Blocks tall()
{
    const QString sentence = u"A paragraph that is taller than the window goes on and on. "_s;
    return {heading(u"Taller than the window"_s), body(sentence.repeated(60)), checklist(entries(60)),
            Block(BlockType::code, u"line of code\n"_s.repeated(50)), body(u"Below."_s)};
}

Blocks code()
{
    return {heading(u"Code"_s), Block(BlockType::code, u"one"_s),
            Block(BlockType::code, u"first\n\tsecond\n\n\tfourth\nfifth"_s), body(u"two\nlines of body"_s),
            Block(BlockType::code)};
}

Blocks banner()
{
    Block open = picture(Qt::darkBlue, true);
    open.bannerTitle = u"A banner"_s;
    Block broken(BlockType::image);
    broken.imageData = "no picture"_ba;
    return {open, body(u"Below the banner."_s), picture(Qt::darkRed), broken, Block(BlockType::quote, {})};
}

Blocks withoutText()
{
    return {picture(Qt::darkCyan), Block(BlockType::divider), checklist({})};
}

Blocks lineSeparators()
{
    return {heading(u"Se\u2028pa\u2029ra\rtors"_s),
            body(u"soft\u2028break"_s),
            body(u"para\u2029graph"_s),
            body(u"carriage\rreturn"_s),
            body(u"non\uFDD0character"_s),
            checklist({u"en\u2028try"_s, u"o\rther"_s}),
            Block(BlockType::code, u"a\u2028b\nc"_s)};
}

Blocks scripts()
{
    return {heading(u"👩🏽‍💻 at work 🇵🇱"_s),
            body(u"שלום לכולם and back"_s),
            body(u"مرحبا بالعالم"_s),
            body(u"cafe\u0301 nai\u0308ve 7️⃣"_s),
            checklist({u"👨‍👩‍👧"_s, u"עוד אחד"_s}),
            Block(BlockType::quote, u"हिन्दी 한국어"_s)};
}

Blocks longWord()
{
    const QString word = u"unbroken"_s.repeated(500);
    return {heading(word.first(200)),
            body(word),
            body(u"short "_s + word + u" and on"_s),
            checklist({word.first(900), u"short"_s}),
            Block(BlockType::code, word),
            body(u"Below."_s)};
}

using Maker = std::function<Blocks()>;

const std::map<QString, Maker> &makers()
{
    static const std::map<QString, Maker> all{
        {u"everyKind"_s, everyKind}, {u"checklists"_s, checklists},
        {u"tall"_s, tall},           {u"code"_s, code},
        {u"banner"_s, banner},       {u"withoutText"_s, withoutText},
        {u"scripts"_s, scripts},     {u"lineSeparators"_s, lineSeparators},
        {u"longWord"_s, longWord},   {u"fresh"_s, [] { return PelkoDocument(Space::work, 0).blocks; }},
    };
    return all;
}

PelkoDocument page(const Blocks &blocks, Space space, Timestamp createdAt)
{
    PelkoDocument document(space, createdAt);
    document.blocks = blocks;
    return document;
}

} // namespace

QStringList StartPages::names()
{
    QStringList names;
    for (const auto &[name, maker] : makers())
        names.append(name);
    return names;
}

QList<PelkoDocument> StartPages::library(const QString &name)
{
    const auto plain = Blocks{heading(u"Plain"_s)} + paragraphs(3);
    return {page(makers().at(name)(), Space::work, 1'000), page(plain, Space::work, 900),
            page({heading(u"Idea"_s), checklist({u"tell"_s})}, Space::ideas, 800)};
}
