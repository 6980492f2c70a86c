#pragma once

#include <QList>
#include <QString>

/// Text without case and accents, for comparison: "Łódź" and "lodz" are equal. Ligatures and "ß" are
/// decomposed. Marks that make another letter stay, such as the voicing of kana and the vowels of a syllable.
namespace FoldedText
{

/// Folds `text` into `folded`, reusing its memory.
void fold(QStringView text, QString &folded);
QString folded(QStringView text);

/// Returns for each unit of the folded text the position in `text` of its letter, followed by the end of
/// `text`.
QList<qsizetype> origins(QStringView text);

/// Returns the position in `text` of the letter at `place` in the folded text, or the end of `text`.
qsizetype originOf(QStringView text, qsizetype place);

} // namespace FoldedText
