#include "Calendar/CalendarText.h"

namespace
{
QByteArray withoutEscapes(QByteArrayView value)
{
    QByteArray plain;
    plain.reserve(value.size());
    for (qsizetype index = 0; index < value.size(); ++index) {
        char letter = value[index];
        if (letter == '\\' && index + 1 < value.size()) {
            letter = value[++index];
            if (letter == 'n' || letter == 'N')
                letter = ' ';
        }
        plain.append(letter);
    }
    return plain;
}
} // namespace

std::optional<QString> titleFrom(QByteArrayView value)
{
    const QByteArray plain = value.contains('\\') ? withoutEscapes(value) : value.toByteArray();
    const QString title =
        (plain.isValidUtf8() ? QString::fromUtf8(plain) : QString::fromLatin1(plain)).simplified();
    return title.isEmpty() ? std::nullopt : std::optional(title);
}

std::vector<QByteArrayView> listItems(QByteArrayView value)
{
    std::vector<QByteArrayView> items;
    while (!value.isEmpty()) {
        const qsizetype comma = value.indexOf(',');
        items.push_back(comma < 0 ? value : value.first(comma));
        value = comma < 0 ? QByteArrayView() : value.sliced(comma + 1);
    }
    return items;
}

int offsetFrom(QByteArrayView value)
{
    value = value.trimmed();
    const bool isNegative = value.startsWith('-');
    if (isNegative || value.startsWith('+'))
        value = value.sliced(1);
    if (value.size() != 4 && value.size() != 6)
        return 0;
    const int hours = value.first(2).toInt();
    const int minutes = value.sliced(2, 2).toInt();
    const int seconds = value.size() == 6 ? value.sliced(4).toInt() : 0;
    const int offset = (hours * 60 + minutes) * 60 + seconds;
    return isNegative ? -offset : offset;
}
