#include "Editor/TypingRun.h"

namespace
{

bool isOneCharacter(const QString &text)
{
    return text.size() == 1 || (text.size() == 2 && text.at(0).isHighSurrogate());
}

bool beginsWord(QChar before, QChar letter)
{
    return before.isSpace() && !letter.isSpace();
}

bool goesOnInserting(const TextChange &key, const TextChange &next)
{
    return isOneCharacter(key.inserted) && isOneCharacter(next.inserted) && next.removed.isEmpty() &&
           next.position == key.position + key.inserted.size() &&
           !beginsWord(key.inserted.back(), next.inserted.front());
}

bool goesOnRemoving(const TextChange &key, const TextChange &next)
{
    if (!key.inserted.isEmpty() || !next.inserted.isEmpty() || !isOneCharacter(key.removed) ||
        !isOneCharacter(next.removed) || beginsWord(key.removed.back(), next.removed.front()))
        return false;
    const bool backwards = next.position + next.removed.size() == key.position;
    const bool forwards = next.position == key.position;
    return backwards || forwards;
}

} // namespace

bool TypingRun::isContinuedBy(const TypingRun &next) const
{
    return m_field.address == next.m_field.address &&
           (goesOnInserting(m_key, next.m_key) || goesOnRemoving(m_key, next.m_key));
}
