#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// The plurals of English, as the program has them, where the tested library brings them. Needs the
/// application and lives as long.
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
