#include "Navigation/PageTexts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype lineLength = 120; // more than fits in a row

bool namesThePage(const Block &block)
{
    const bool isBanner = block.type == BlockType::image && block.isFullWidth.value_or(false);
    return block.type == BlockType::textLarge ||
           (isBanner && !block.bannerTitle.value_or(QString()).trimmed().isEmpty());
}

QString firstText(const PelkoDocument &page)
{
    QString first;
    visitTexts(page, [&first](const QString &text) {
        if (!QStringView(text).trimmed().isEmpty())
            first = text;
        return first.isEmpty();
    });
    return first;
}

} // namespace

bool isSpark(const PelkoDocument &page)
{
    return page.space == Space::ideas && std::ranges::none_of(page.blocks, namesThePage);
}

QString namingText(const PelkoDocument &page)
{
    const QString said = isSpark(page) ? firstText(page) : QString();
    return said.isEmpty() ? page.title() : said;
}

QString oneLine(QStringView text)
{
    text = text.trimmed();
    // Some more, because white space is collapsed; never ends within a surrogate pair.
    QStringView start = text.left(4 * lineLength);
    QString line = start.toString().simplified();
    if (line.size() <= lineLength && start.size() == text.size())
        return line;
    line.truncate(lineLength);
    if (line.back().isHighSurrogate())
        line.chop(1);
    return line.trimmed() + u'…';
}

QString pageName(const PelkoDocument &page)
{
    return oneLine(namingText(page));
}
