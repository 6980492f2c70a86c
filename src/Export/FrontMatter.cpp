#include "Export/FrontMatter.h"

#include <QDateTime>

#include <cmath>

using namespace Qt::StringLiterals;

namespace
{
/// The years 0 to 9999 only, which ISO 8601 writes with four digits.
std::optional<QString> isoTime(Timestamp time)
{
    constexpr double firstYear = -62'167'219'200;
    constexpr double afterLastYear = 253'402'300'800;
    const double seconds = time + referenceDate;
    if (!(seconds >= firstYear && seconds < afterLastYear))
        return std::nullopt;
    const auto milliseconds = static_cast<qint64>(std::floor(seconds * 1000));
    return QDateTime::fromMSecsSinceEpoch(milliseconds).toUTC().toString(Qt::ISODateWithMs);
}

bool isEscapedInYaml(QChar c)
{
    constexpr ushort byteOrderMark = 0xfeff;
    return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
           c.category() == QChar::Separator_Paragraph || c.unicode() == byteOrderMark;
}

/// Quotes the text in a form that is valid in YAML and in JSON.
QString quoted(const QString &text)
{
    QString result(u'"');
    for (const QChar c : text) {
        if (c == u'"' || c == u'\\')
            result += u'\\' + QString(c);
        else if (isEscapedInYaml(c))
            result += u"\\u%1"_s.arg(int(c.unicode()), 4, 16, QChar(u'0'));
        else
            result += c;
    }
    return result + u'"';
}
} // namespace

QString frontMatter(const PelkoDocument &document)
{
    QString lines = u"---\n"_s;
    const auto add = [&lines](QLatin1StringView key, const QString &value) {
        lines += key + ": "_L1 + value + u'\n';
    };
    add("title"_L1, quoted(document.title()));
    add("space"_L1, rawValue(document.space));
    if (const auto created = isoTime(document.createdAt))
        add("created"_L1, *created);
    if (const auto updated = document.updatedAt ? isoTime(*document.updatedAt) : std::nullopt)
        add("updated"_L1, *updated);
    if (document.isPinned.value_or(false))
        add("pinned"_L1, u"true"_s);
    if (document.isArchived.value_or(false))
        add("archived"_L1, u"true"_s);
    add("id"_L1, document.id.toString(QUuid::WithoutBraces).toUpper());
    return lines + "---\n"_L1;
}
