#include "Navigation/FoldedText.h"

#include <array>

namespace
{

/// The folded form of a UTF-16 unit: at most two units.
struct Letters {
    char16_t first = 0;
    char16_t second = 0;
};

using Alphabet = std::array<Letters, 0x10000>;

/// Returns whether the mark is an accent, or invisible. Marks that make another letter, such as the vowels of
/// Indic scripts, have other combining classes.
bool isAccent(QChar mark)
{
    constexpr char16_t softHyphen = 0x00AD, zeroWidthSpace = 0x200B;
    if (mark == softHyphen || mark == zeroWidthSpace || (mark >= u'\uFE00' && mark <= u'\uFE0F'))
        return true;
    const int place = mark.combiningClass();
    const bool pointsOfSemiticScripts = place >= 10 && place <= 36;
    return mark.category() == QChar::Mark_NonSpacing && (place >= 200 || pointsOfSemiticScripts);
}

/// Returns the base letter if the letter decomposes into one letter and accents.
QChar withoutAccents(QChar letter)
{
    QChar base = letter;
    while (base.decompositionTag() == QChar::Canonical) {
        const QString parts = base.decomposition();
        const bool hasOnlyAccents = parts.size() == 1 || (parts.size() == 2 && isAccent(parts.at(1)));
        if (!hasOnlyAccents)
            return base;
        base = parts.at(0);
    }
    return base;
}

Letters foldedLetter(char16_t unit)
{
    const QChar letter(unit);
    if (isAccent(letter))
        return {};
    const QChar plain = withoutAccents(letter).toCaseFolded();
    return {withoutAccents(plain).unicode()};
}

/// Letters with a stroke and ligatures, which Unicode does not decompose, and the typographic apostrophe.
constexpr struct {
    char16_t letter;
    Letters folded;
} special[] = {{u'ß', {u's', u's'}}, {u'ẞ', {u's', u's'}}, {u'æ', {u'a', u'e'}}, {u'Æ', {u'a', u'e'}},
               {u'œ', {u'o', u'e'}}, {u'Œ', {u'o', u'e'}}, {u'ø', {u'o'}},       {u'Ø', {u'o'}},
               {u'ł', {u'l'}},       {u'Ł', {u'l'}},       {u'đ', {u'd'}},       {u'Đ', {u'd'}},
               {u'ħ', {u'h'}},       {u'Ħ', {u'h'}},       {u'ı', {u'i'}},       {u'’', {u'\''}}};

Alphabet makeAlphabet()
{
    Alphabet alphabet;
    for (std::size_t unit = 0; unit < alphabet.size(); ++unit)
        alphabet[unit] = foldedLetter(char16_t(unit));
    for (const auto &[letter, folded] : special)
        alphabet[letter] = folded;
    return alphabet;
}

const Alphabet &alphabet()
{
    static const Alphabet made = makeAlphabet();
    return made;
}

} // namespace

void FoldedText::fold(QStringView text, QString &folded)
{
    const Alphabet &letters = alphabet();
    folded.resize(2 * text.size());
    auto *const start = reinterpret_cast<char16_t *>(folded.data());
    char16_t *end = start;
    for (const QChar unit : text) {
        const Letters become = letters[unit.unicode()];
        *end = become.first;
        end += become.first != 0;
        if (become.second != 0)
            *end++ = become.second;
    }
    folded.truncate(end - start);
}

QString FoldedText::folded(QStringView text)
{
    QString folded;
    fold(text, folded);
    return folded;
}

QList<qsizetype> FoldedText::origins(QStringView text)
{
    QList<qsizetype> origins;
    origins.reserve(text.size() + 1);
    for (qsizetype place = 0; place < text.size(); ++place) {
        const Letters become = alphabet()[text.at(place).unicode()];
        origins.insert(origins.size(), (become.first != 0) + (become.second != 0), place);
    }
    origins.append(text.size());
    return origins;
}

qsizetype FoldedText::originOf(QStringView text, qsizetype place)
{
    for (qsizetype origin = 0; origin < text.size(); ++origin) {
        const Letters become = alphabet()[text.at(origin).unicode()];
        place -= (become.first != 0) + (become.second != 0);
        if (place < 0)
            return origin;
    }
    return text.size();
}
