#include "Editor/ShownText.h"

#include "Models/LineBreaks.h"

#include <algorithm>

namespace
{

/// QTextDocument uses U+FDD0 and U+FDD1 for the ends of a frame and U+FFFC for an embedded object.
bool isReserved(QChar character)
{
    return character.isNull() || character == u'\ufdd0' || character == u'\ufdd1' ||
           character == QChar::ObjectReplacementCharacter;
}

QChar shownAs(QChar character, QChar next)
{
    if (character == u'\r' && next == u'\n')
        return u'\u200b';
    if (isLineBreak(character))
        return u'\n';
    return isReserved(character) ? QChar(QChar::ReplacementCharacter) : character;
}

/// Called for every character after every key.
bool isShownAsItIs(QChar character)
{
    const bool isCommon = character >= u' ' && character <= u'~';
    return isCommon || character == u'\n' || !(isLineBreak(character) || isReserved(character));
}

} // namespace

QString ShownText::of(const QString &stored)
{
    if (std::ranges::all_of(stored, isShownAsItIs))
        return stored;
    QString shown = stored;
    for (qsizetype index = 0; index < shown.size(); ++index)
        shown[index] = shownAs(stored.at(index), index + 1 < stored.size() ? stored.at(index + 1) : QChar());
    return shown;
}
