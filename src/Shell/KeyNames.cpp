#include "Shell/KeyNames.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace
{
/// The keys that are labelled with words. Letters, digits and signs need no translation.
constexpr std::array wordedKeys{
    QT_TRANSLATE_NOOP("KeyNames", "Ctrl"),  QT_TRANSLATE_NOOP("KeyNames", "Shift"),
    QT_TRANSLATE_NOOP("KeyNames", "Alt"),   QT_TRANSLATE_NOOP("KeyNames", "Return"),
    QT_TRANSLATE_NOOP("KeyNames", "Tab"),   QT_TRANSLATE_NOOP("KeyNames", "Backspace"),
    QT_TRANSLATE_NOOP("KeyNames", "Space"),
};

QString keyName(const QString &key)
{
    if (key == u"Up"_s)
        return u"↑"_s;
    if (key == u"Down"_s)
        return u"↓"_s;
    const auto word = std::ranges::find_if(
        wordedKeys, [&key](const char *known) { return key == QLatin1StringView(known); });
    return word == wordedKeys.end() ? key : QCoreApplication::translate("KeyNames", *word);
}
} // namespace

QStringList keyNames(const QString &combination)
{
    QStringList names = combination.split(u'+', Qt::SkipEmptyParts);
    std::ranges::transform(names, names.begin(), keyName);
    return names;
}
