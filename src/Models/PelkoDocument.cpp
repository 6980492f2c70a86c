#include "Models/PelkoDocument.h"

#include "Models/LocalTime.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{
bool isBlank(QStringView text)
{
    return std::ranges::all_of(text, [](QChar character) { return character.isSpace(); });
}

bool isTitledBanner(const Block &block)
{
    return block.type == BlockType::image && block.isFullWidth.value_or(false) && block.bannerTitle &&
           !isBlank(*block.bannerTitle);
}

QString monthAndDay(Timestamp time, const QTimeZone &zone, const QLocale &locale)
{
    //: Format of a day in a past week: abbreviated month and day. Keep the letters M and d.
    const QString format = QCoreApplication::translate("PelkoDocument", "MMM d");
    return locale.toString(localTime(time, zone).date(), format);
}
} // namespace

PelkoDocument::PelkoDocument(Space documentSpace, Timestamp creationTime)
    : id(QUuid::createUuid())
    , space(documentSpace)
    , blocks{Block(BlockType::textLarge), Block(BlockType::textSmall)}
    , createdAt(creationTime)
{
}

std::optional<QString> PelkoDocument::writtenTitle() const
{
    const auto banner = std::ranges::find_if(blocks, isTitledBanner);
    if (banner != blocks.end())
        return banner->bannerTitle;
    const auto heading = std::ranges::find(blocks, BlockType::textLarge, &Block::type);
    if (heading != blocks.end() && !isBlank(heading->content))
        return heading->content;
    return std::nullopt;
}

QString PelkoDocument::title() const
{
    //: Stands for the title of a page that has none.
    return writtenTitle().value_or(QCoreApplication::translate("PelkoDocument", "Untitled"));
}

qint64 PelkoDocument::wordCount() const
{
    qint64 words = 0;
    for (const Block &block : blocks)
        words += block.wordCount();
    return words;
}

QString PelkoDocument::relativeDate(Timestamp now, const QTimeZone &zone, const QLocale &locale) const
{
    constexpr double minute = 60, hour = 3600, day = 86400;
    const Timestamp time = updatedAt.value_or(createdAt);
    const double elapsed = now - time;
    const auto whole = [elapsed](double unit) { return static_cast<int>(elapsed / unit); };
    if (elapsed < minute)
        return QCoreApplication::translate("PelkoDocument", "Just now");
    if (elapsed < hour)
        return QCoreApplication::translate("PelkoDocument", "%nm ago", "minutes", whole(minute));
    if (elapsed < day)
        return QCoreApplication::translate("PelkoDocument", "%nh ago", "hours", whole(hour));
    if (elapsed < 2 * day)
        return QCoreApplication::translate("PelkoDocument", "Yesterday");
    if (elapsed < 7 * day)
        return QCoreApplication::translate("PelkoDocument", "%nd ago", "days", whole(day));
    return monthAndDay(time, zone, locale);
}

bool isUnchanged(const PelkoDocument &document, const PelkoDocument &kept)
{
    return document.blocks.constData() == kept.blocks.constData() &&
           document.blocks.size() == kept.blocks.size() && document.id == kept.id &&
           document.space == kept.space && document.createdAt == kept.createdAt &&
           document.updatedAt == kept.updatedAt && document.isPinned == kept.isPinned &&
           document.isArchived == kept.isArchived;
}
