#include "Platform/Translations.h"
#include "support/TestProgram.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
/// A text of a catalogue and its translations: one, or one for each plural form.
struct Message {
    QString source = {};
    QStringList forms = {};
    bool isFinished = true;
    bool isCounted = false;
};

/// Reads the rest of a translation element.
QStringList readForms(QXmlStreamReader &xml)
{
    QStringList forms = {};
    QString whole;
    while (xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isCharacters())
            whole += xml.text();
        else if (xml.isStartElement())
            forms << xml.readElementText();
    }
    return forms.isEmpty() ? QStringList{whole} : forms;
}

QList<Message> catalogue(const QString &language)
{
    QFile file(QFINDTESTDATA("../../translations") + u"/pelko_%1.ts"_s.arg(language));
    QList<Message> messages;
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == "message"_L1) {
            messages.append(Message{.isCounted = attributes.hasAttribute("numerus"_L1)});
        } else if (xml.name() == "source"_L1) {
            messages.last().source = xml.readElementText();
        } else if (xml.name() == "translation"_L1) {
            messages.last().isFinished = !attributes.hasAttribute("type"_L1);
            messages.last().forms = readForms(xml);
        }
    }
    return messages;
}

/// Returns placeholders such as "%1" and "%n" in their order.
QStringList placeholders(const QString &text)
{
    static const QRegularExpression placeholder(u"%L?(?:\\d|n)"_s);
    QStringList found;
    for (const QRegularExpressionMatch &match : placeholder.globalMatch(text))
        found << match.captured();
    std::ranges::sort(found);
    return found;
}

QString pages(int count)
{
    return QCoreApplication::translate("Export", "%n page(s)", nullptr, count);
}
} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speaksTheLanguageOfTheSystem_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("German") << u"de_DE"_s << QStringList{u"Ideen"_s, u"1 Seite"_s, u"2 Seiten"_s};
        QTest::newRow("of Austria") << u"de_AT"_s << QStringList{u"Ideen"_s, u"1 Seite"_s, u"2 Seiten"_s};
        QTest::newRow("French") << u"fr_FR"_s << QStringList{u"Idées"_s, u"1 page"_s, u"2 pages"_s};
        QTest::newRow("English") << u"en_GB"_s << QStringList{u"Ideas"_s, u"1 page"_s, u"2 pages"_s};
        QTest::newRow("one without a catalogue")
            << u"fi_FI"_s << QStringList{u"Ideas"_s, u"1 page"_s, u"2 pages"_s};
        QTest::newRow("none") << u"C"_s << QStringList{u"Ideas"_s, u"1 page"_s, u"2 pages"_s};
    }

    void speaksTheLanguageOfTheSystem()
    {
        QFETCH(QString, locale);
        QFETCH(QStringList, expected);
        const Translations translations{QLocale(locale)};

        QCOMPARE((QStringList{QCoreApplication::translate("Space", "Ideas"), pages(1), pages(2)}), expected);
    }

    void everyTextHasATranslation_data() { languages(); }

    void everyTextHasATranslation()
    {
        QFETCH(QString, language);
        const QList<Message> messages = catalogue(language);
        QVERIFY(messages.size() > 200);

        for (const Message &message : messages) {
            QVERIFY2(message.isFinished, qPrintable(message.source));
            QCOMPARE(message.forms.size(), message.isCounted ? 2 : 1);
            QVERIFY2(!message.forms.contains(QString()), qPrintable(message.source));
        }
    }

    void translationsKeepThePlaceholders_data() { languages(); }

    void translationsKeepThePlaceholders()
    {
        QFETCH(QString, language);
        for (const Message &message : catalogue(language)) {
            for (const QString &form : message.forms)
                QVERIFY2(placeholders(form) == placeholders(message.source), qPrintable(form));
        }
    }

    void theEnglishCatalogueHoldsTheCounts()
    {
        QStringList counted;
        for (const Message &message : catalogue(u"de"_s)) {
            if (message.isCounted)
                counted << message.source;
        }
        QStringList english;
        for (const Message &message : catalogue(u"en"_s)) {
            QVERIFY2(message.isFinished && message.forms.size() == 2, qPrintable(message.source));
            for (const QString &form : message.forms) {
                QVERIFY2(!form.isEmpty() && !form.contains(u"(s)"), qPrintable(message.source));
                QCOMPARE(placeholders(form), placeholders(message.source));
            }
            english << message.source;
        }

        QCOMPARE(english, counted);
    }

private:
    static void languages()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("German") << u"de"_s;
        QTest::newRow("French") << u"fr"_s;
    }
};

PELKO_TEST(TestTranslations)
#include "tst_Translations.moc"
