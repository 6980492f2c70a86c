#include "writer/PageModel.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace
{

std::optional<BlockType> shortcut(const QString &typed)
{
    static const std::map<QString, BlockType> kinds{
        {u"# "_s, BlockType::textLarge}, {u"> "_s, BlockType::quote},    {u"```"_s, BlockType::code},
        {u"``` "_s, BlockType::code},    {u"---"_s, BlockType::divider}, {u"--- "_s, BlockType::divider},
        {u"[] "_s, BlockType::sticky},   {u"[ ] "_s, BlockType::sticky},
    };
    const auto found = kinds.find(typed);
    return found == kinds.end() ? std::nullopt : std::optional(found->second);
}

QString onOneLine(QString text)
{
    text.replace("\r\n"_L1, "\n"_L1);
    for (const char16_t lineBreak : {u'\n', u'\r', u'\t', u'\x2028', u'\x2029'})
        text.replace(QChar(lineBreak), u' ');
    return text;
}

int boundary(const QString &text, int from, bool forward)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(from);
    return int(forward ? finder.toNextBoundary() : finder.toPreviousBoundary());
}

/// Backspace deletes an emoji as a whole and other composed characters code point by code point.
int startOfLastCharacter(const QString &text, int end)
{
    const int start = boundary(text, end, false);
    const auto codes = text.sliced(start, end - start).toUcs4();
    const auto isEmoji = [](char32_t code) {
        return code == 0x20E3 || (code >= 0x1F000 && code <= 0x1FAFF) || (code >= 0x2600 && code <= 0x27BF);
    };
    if (std::ranges::any_of(codes, isEmoji))
        return start;
    return text.at(end - 1).isLowSurrogate() && end - 2 >= start ? end - 2 : end - 1;
}

} // namespace

PageModel::PageModel(PlainPage page, const std::optional<Marked> &marked)
    : m_page(std::move(page))
    , m_marked(marked)
{
}

bool PageModel::opensWithBanner() const
{
    return !m_page.isEmpty() && m_page.first().kind == BlockType::image &&
           !m_page.first().picture.isEmpty() && m_page.first().isFullWidth.value_or(false);
}

bool PageModel::hasEntries(int block) const
{
    const PlainBlock &at = m_page.at(block);
    return at.kind == BlockType::sticky && at.entries && !at.entries->isEmpty();
}

bool PageModel::takesText(int block) const
{
    return isTextLike(m_page.at(block).kind) || hasEntries(block);
}

QString *PageModel::editableText(const Spot &spot)
{
    if (spot.block < 0 || spot.block >= m_page.size())
        return nullptr;
    PlainBlock &block = m_page[spot.block];
    if (spot.entry >= 0)
        return hasEntries(spot.block) && spot.entry < block.entries->size()
                   ? &(*block.entries)[spot.entry].text
                   : nullptr;
    if (isTextLike(block.kind))
        return &block.text;
    if (spot.block > 0 || !opensWithBanner())
        return nullptr;
    if (!block.title)
        block.title.emplace();
    return &*block.title;
}

const QString *PageModel::textAt(const Spot &spot) const
{
    static const QString none;
    const bool isBannerWithoutTitle =
        spot.block == 0 && spot.entry < 0 && opensWithBanner() && !m_page.first().title;
    return isBannerWithoutTitle ? &none : const_cast<PageModel *>(this)->editableText(spot);
}

std::pair<int, int> PageModel::range() const
{
    return std::minmax({m_marked->anchor.offset, m_marked->head.offset});
}

void PageModel::settle(const std::optional<Spot> &caret, bool isTyping)
{
    m_marked = caret ? std::optional(Marked{.anchor = *caret, .head = *caret}) : std::nullopt;
    m_stages.append({.page = m_page, .isTyping = isTyping});
}

void PageModel::paste(const QString &text)
{
    QString pasted = text;
    pasted.replace("\r\n"_L1, "\n"_L1);
    if (!pasted.isEmpty())
        insert(pasted, false);
}

void PageModel::insert(const QString &text, bool isTyping)
{
    if (!m_marked)
        return writeAtEnd(text, isTyping);
    if (isCrossing())
        return replaceMarked(text);
    const auto [start, end] = range();
    const QString before = *textAt(m_marked->head);
    report(m_marked->head, before.first(start) + text + before.sliced(end), start + int(text.size()),
           isTyping);
}

void PageModel::writeAtEnd(const QString &text, bool isTyping)
{
    if (m_page.isEmpty() || !isTextLike(m_page.last().kind)) {
        m_page.append({.kind = BlockType::textSmall});
        settle(std::nullopt); // a step of its own
    }
    const Spot end{.block = int(m_page.size()) - 1, .offset = int(m_page.last().text.size())};
    report(end, m_page.last().text + text, end.offset + int(text.size()), isTyping);
}

void PageModel::report(Spot field, const QString &value, int caret, bool isTyping)
{
    Spot behind = field;
    behind.offset = caret;
    if (field.entry >= 0) {
        const bool breaksUp = value.contains(u'\n') && !textAt(field)->contains(u'\n');
        if (breaksUp)
            return breakUpEntry(field, value, caret);
        *editableText(field) = value;
        return settle(behind, isTyping);
    }
    if (isTextLike(m_page.at(field.block).kind))
        return reportText(field, value, caret, isTyping);
    *editableText(field) = onOneLine(value);
    settle(behind, isTyping);
}

void PageModel::reportText(Spot field, const QString &value, int caret, bool isTyping)
{
    PlainBlock &block = m_page[field.block];
    const auto kind = block.kind == BlockType::textSmall ? shortcut(value) : std::nullopt;
    if (kind)
        return convert(field, value, *kind, isTyping);
    if (value.contains(u'\n') && !block.text.contains(u'\n'))
        return splitBlock(field, value, caret);
    block.text = value;
    settle(Spot{.block = field.block, .offset = caret}, isTyping);
}

void PageModel::convert(Spot field, const QString &value, BlockType kind, bool isTyping)
{
    if (isTyping) {
        m_page[field.block].text = value;
        settle(std::nullopt, true);
    }
    PlainBlock &block = m_page[field.block];
    block.text.clear();
    block.kind = kind;
    Spot caret{.block = field.block};
    if (kind == BlockType::sticky) {
        block.entries = QList<PlainEntry>{{}};
        caret.entry = 0;
    } else if (kind == BlockType::divider) {
        m_page.insert(++caret.block, {.kind = BlockType::textSmall});
    }
    settle(caret);
}

void PageModel::splitBlock(Spot field, const QString &value, int caret)
{
    const int lineFeed = int(value.indexOf(u'\n'));
    m_page[field.block].text = value.first(lineFeed);
    const QString rest = value.sliced(lineFeed + 1);
    m_page.insert(field.block + 1, {.kind = BlockType::textSmall, .text = rest});
    const int offset = std::clamp(caret - lineFeed - 1, 0, int(rest.size()));
    settle(Spot{.block = field.block + 1, .offset = offset});
}

void PageModel::breakUpEntry(Spot field, const QString &value, int caret)
{
    QList<PlainEntry> &entries = *m_page[field.block].entries;
    const QStringList lines = value.split(u'\n');
    entries[field.entry].text = lines.first();
    for (int line = 1; line < lines.size(); ++line)
        entries.insert(field.entry + line, {.text = lines.at(line)});
    Spot last{.block = field.block, .entry = field.entry + int(lines.size()) - 1};
    last.offset = std::max(0, caret - int(value.size() - lines.last().size()));
    settle(last);
}

void PageModel::returnKey(bool withShift)
{
    if (!m_marked)
        return;
    const bool wasCrossing = isCrossing();
    if (wasCrossing) {
        const Spot seam = removeMarked();
        m_marked = Marked{.anchor = seam, .head = seam};
    }
    const Spot at = m_marked->head;
    const auto [start, end] = range();
    PlainBlock &block = m_page[at.block];
    if (at.entry < 0 && !isTextLike(block.kind)) {
        if (wasCrossing)
            settle(std::nullopt);
        m_marked.reset();
        return;
    }
    QString &text = *editableText(at);
    const bool leavesCode = block.kind == BlockType::code && text.endsWith(u'\n') && start == text.size();
    const bool breaks = withShift || (block.kind == BlockType::code && text.contains(u'\n') && !leavesCode);
    const QString rest = text.sliced(end);
    if (breaks) {
        text = text.first(start) + u'\n' + rest;
        return settle(Spot{.block = at.block, .entry = at.entry, .offset = start + 1});
    }
    text.truncate(leavesCode ? start - 1 : start);
    if (at.entry >= 0) {
        block.entries->insert(at.entry + 1, {.text = rest});
        return settle(Spot{.block = at.block, .entry = at.entry + 1});
    }
    m_page.insert(at.block + 1, {.kind = BlockType::textSmall, .text = rest});
    settle(Spot{.block = at.block + 1});
}

void PageModel::removeRange(Spot from, int start, int end, bool isTyping)
{
    const QString text = *textAt(from);
    report(from, text.first(start) + text.sliced(end), start, isTyping);
}

void PageModel::cut()
{
    if (!m_marked || m_marked->anchor == m_marked->head)
        return;
    if (isCrossing())
        return settle(removeMarked());
    const auto [start, end] = range();
    removeRange(m_marked->head, start, end, false);
}

void PageModel::backspace()
{
    if (!m_marked)
        return;
    if (m_marked->anchor != m_marked->head)
        return cut();
    const Spot at = m_marked->head;
    if (at.offset == 0)
        return joinBackwards(at);
    removeRange(at, startOfLastCharacter(*textAt(at), at.offset), at.offset, true);
}

void PageModel::deleteKey()
{
    if (!m_marked)
        return;
    if (m_marked->anchor != m_marked->head)
        return cut();
    const Spot at = m_marked->head;
    if (at.offset == textAt(at)->size())
        return joinForwards(at);
    removeRange(at, at.offset, boundary(*textAt(at), at.offset, true), true);
}
