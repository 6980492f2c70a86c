#include "writer/PageModel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

// Operations on a selection over several texts.

QList<Spot> PageModel::places() const
{
    QList<Spot> places;
    for (int block = 0; block < m_page.size(); ++block) {
        const int entries = hasEntries(block) ? int(m_page.at(block).entries->size()) : 0;
        for (int entry = 0; entry < entries; ++entry)
            places.append(Spot{.block = block, .entry = entry});
        if (entries == 0)
            places.append(Spot{.block = block});
    }
    return places;
}

QList<PageModel::Part> PageModel::parts() const
{
    QList<Part> parts;
    if (!m_marked)
        return parts;
    const auto order = [](const Spot &spot) { return std::tuple(spot.block, spot.entry, spot.offset); };
    const auto [from, to] = std::minmax({m_marked->anchor, m_marked->head},
                                        [&](const Spot &a, const Spot &b) { return order(a) < order(b); });
    const QList<Spot> all = places();
    const auto isAt = [](const Spot &end) {
        return [end](const Spot &place) { return place.isInFieldOf(end); };
    };
    const auto first = std::ranges::find_if(all, isAt(from));
    const auto last = std::ranges::find_if(all, isAt(to));
    for (auto place = first; place != all.end() && place <= last; ++place) {
        const QString *text = textAt(*place);
        const int length = text ? int(text->size()) : 1;
        const int start = place == first ? std::min(from.offset, length) : 0;
        const int end = place == last ? std::min(to.offset, length) : length;
        if (text || start != end)
            parts.append({.place = *place, .start = start, .end = end, .hasText = text != nullptr});
    }
    return parts;
}

bool PageModel::isCrossing() const
{
    const QList<Part> all = parts();
    return all.size() > 1 || (all.size() == 1 && !all.first().hasText);
}

/// A checklist, banner, picture or divider that is completely selected by a selection that extends beyond it.
bool PageModel::isWhole(const QList<Part> &parts, int block) const
{
    if (isTextLike(m_page.at(block).kind))
        return false;
    const auto isInside = [&](const Part &part) { return part.place.block == block; };
    const auto inside = std::ranges::count_if(parts, isInside);
    const qsizetype entries = hasEntries(block) ? m_page.at(block).entries->size() : 1;
    const auto isFull = [&](const Part &part) {
        const QString *text = textAt(part.place);
        return !isInside(part) || (part.start == 0 && part.end == (text ? text->size() : 1));
    };
    const bool hasMore = inside < parts.size() || !parts.first().hasText;
    return inside == entries && hasMore && std::ranges::all_of(parts, isFull);
}

Spot PageModel::removeMarked()
{
    const QList<Part> all = parts();
    const Part &first = all.first();
    const Part &last = all.last();
    const auto stays = [&](const Part &part) { return part.hasText && !isWhole(all, part.place.block); };
    const QString before = stays(first) ? textAt(first.place)->first(first.start) : QString();
    const QString after = stays(last) ? textAt(last.place)->sliced(last.end) : QString();
    std::optional<Spot> seam;
    if (stays(first))
        seam = first.place;
    else if (stays(last))
        seam = last.place;

    const auto isSelected = [&](const Spot &place) {
        return std::ranges::any_of(all, [&](const Part &part) { return part.place.isInFieldOf(place); });
    };
    Spot result{.block = first.place.block, .offset = int(before.size())};
    PlainPage left;
    for (int block = 0; block < m_page.size(); ++block) {
        PlainBlock kept = m_page.at(block);
        const bool isTouched = block >= first.place.block && block <= last.place.block;
        const bool hasSeam = seam && seam->block == block;
        if (isTouched && !hasSeam && (isWhole(all, block) || kept.kind != BlockType::sticky))
            continue;
        if (isTouched && hasEntries(block)) {
            kept.entries->clear();
            for (int entry = 0; entry < m_page.at(block).entries->size(); ++entry) {
                const bool isSeam = hasSeam && seam->entry == entry;
                if (isSeam)
                    result.entry = int(kept.entries->size());
                if (isSeam || !isSelected({.block = block, .entry = entry}))
                    kept.entries->append(m_page.at(block).entries->at(entry));
            }
            if (kept.entries->isEmpty())
                continue;
        }
        if (hasSeam)
            result.block = int(left.size());
        left.append(kept);
    }
    m_page = left;
    if (!seam)
        m_page.insert(result.block, {.kind = BlockType::textSmall});
    *editableText(result) = before + after;
    return result;
}

void PageModel::replaceMarked(const QString &text)
{
    const Spot seam = removeMarked();
    const QString around = *textAt(seam);
    report(seam, around.first(seam.offset) + text + around.sliced(seam.offset),
           seam.offset + int(text.size()), false);
}

std::optional<QString> PageModel::selectedText() const
{
    const QList<Part> all = parts();
    if (all.isEmpty() || (!isCrossing() && all.first().start == all.first().end))
        return std::nullopt;
    if (!isCrossing())
        return textAt(all.first().place)->sliced(all.first().start, all.first().end - all.first().start);
    QStringList lines;
    bool hasPicture = false;
    for (const Part &part : all) {
        const PlainBlock &block = m_page.at(part.place.block);
        hasPicture |= !block.picture.isEmpty();
        if (part.hasText)
            lines.append(textAt(part.place)->sliced(part.start, part.end - part.start));
        else if (block.kind == BlockType::divider)
            lines.append(u"---"_s);
        else if (block.kind == BlockType::image && block.title)
            lines.append(*block.title);
        else if (block.kind == BlockType::sticky)
            lines.append(QString());
    }
    // The clipboard contains a picture instead of text.
    return lines.isEmpty() && !hasPicture ? std::nullopt : std::optional(lines.join(u'\n'));
}
