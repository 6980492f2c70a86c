#include "Shell/WindowTitle.h"

#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype longest = 80;

/// Returns whether the character is a direction mark, embedding, override or isolate. Unclosed ones affect
/// the text behind them.
bool turnsDirection(QChar character)
{
    switch (character.unicode()) {
    case 0x061C: // Arabic letter mark
    case 0x200E: // left-to-right mark
    case 0x200F: // right-to-left mark
        return true;
    default:
        return (character >= QChar(0x202A) && character <= QChar(0x202E)) ||
               (character >= QChar(0x2066) && character <= QChar(0x2069));
    }
}

bool isHarmful(QChar character)
{
    return turnsDirection(character) || character.category() == QChar::Other_Control;
}

/// Cuts the text at a grapheme boundary.
QString shortened(const QString &text)
{
    if (text.size() <= longest)
        return text;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text.first(longest + 1));
    letters.setPosition(longest);
    const qsizetype end = letters.isAtBoundary() ? longest : letters.toPreviousBoundary();
    return text.first(qMax(end, 0)).trimmed() + u'…';
}
} // namespace

QString windowTitle(const QString &documentTitle)
{
    QString title = documentTitle.simplified();
    title.removeIf(isHarmful);
    title = shortened(title.simplified());
    return title.isEmpty() ? u"Pelko"_s : u"%1 – Pelko"_s.arg(title);
}
