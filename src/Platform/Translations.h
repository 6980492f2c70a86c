#pragma once

#include <QLocale>
#include <QTranslator>

/// Translates the program's texts into the user's language as long as the object lives. Needs an application
/// object and must be created before the first text. A language without a catalogue gets the English of the
/// sources.
class Translations
{
public:
    /// The first of the languages of `locale` that there is a catalogue for.
    explicit Translations(const QLocale &locale = QLocale::system());

private:
    QTranslator m_english; ///< what is plural, and what is singular
    QTranslator m_language;
};
