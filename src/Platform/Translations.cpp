#include "Platform/Translations.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

Translations::Translations(const QLocale &locale)
{
    const QString folder = u":/i18n"_s;
    if (m_english.load(u"pelko_en"_s, folder))
        QCoreApplication::installTranslator(&m_english);
    if (m_language.load(locale, u"pelko"_s, u"_"_s, folder))
        QCoreApplication::installTranslator(&m_language);
}
