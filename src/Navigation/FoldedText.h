#pragma once

#include <QList>
#include <QString>

/// Text as it is compared: without case and without accents, so that "Łódź" and "lodz" are the same.
/// Ligatures and "ß" come apart, marks that stand over or under a letter go, and everything else stays: a
/// kana keeps its voicing and a syllable its vowel, because they would be other letters without.
namespace FoldedText
{

/// Folds into `folded`, whose room is used again.
void fold(QStringView text, QString &folded);
QString folded(QStringView text);

/// For each unit of the folded text, where in `text` the letter begins that it stands for; at last the end.
QList<qsizetype> origins(QStringView text);

/// Where in `text` the letter begins that the folded text has at `place`, or the end of it.
qsizetype originOf(QStringView text, qsizetype place);

} // namespace FoldedText
