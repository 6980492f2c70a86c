#include "KeyText.h"

#include <QKeyEvent>

bool writesText(const QKeyEvent &event)
{
    const QList<uint> characters = event.text().toUcs4();
    if (characters.isEmpty())
        return false;
    const char32_t first = characters.first();
    const QChar::Category category = QChar::category(first);
    if (category == QChar::Other_Format)
        return true;
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && (QChar::isPrint(first) || category == QChar::Other_PrivateUse);
}
