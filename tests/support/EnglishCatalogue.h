#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// Loads the English plural forms as long as it lives. Needs the application.
class EnglishCatalogue
{
public:
    EnglishCatalogue()
    {
        if (m_translator.load(QStringLiteral(":/i18n/pelko_en.qm")))
            QCoreApplication::installTranslator(&m_translator);
    }

private:
    QTranslator m_translator;
};
