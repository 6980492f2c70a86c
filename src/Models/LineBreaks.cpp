#include "Models/LineBreaks.h"

using namespace Qt::StringLiterals;

bool isLineBreak(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= u'\n' && unit <= u'\r') || unit == u'\x85' || unit == u'\u2028' || unit == u'\u2029';
}

QString onOneLine(const QString &text)
{
    QString line = text;
    line.replace("\r\n"_L1, " "_L1);
    for (QChar &character : line) {
        if (isLineBreak(character) || character == u'\t')
            character = u' ';
    }
    return line;
}
