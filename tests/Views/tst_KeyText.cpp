#include "Views/Controls/KeyText.h"
#include "support/TestProgram.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

class TestKeyText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheKeysThatWrite_data()
    {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("writes");
        const auto row = [](const char *name, Qt::KeyboardModifiers modifiers, const QString &text,
                            bool writes) { QTest::newRow(name) << modifiers << text << writes; };
        row("letter", {}, u"a"_s, true);
        row("capital", Qt::ShiftModifier, u"A"_s, true);
        row("space", {}, u" "_s, true);
        row("emoji", {}, u"😀"_s, true);
        row("flag", {}, u"🇵🇱"_s, true);
        row("joiner", {}, u"\u200d"_s, true);
        row("non-joiner by two modifiers", Qt::ControlModifier | Qt::ShiftModifier, u"\u200c"_s, true);
        row("private use", {}, u"\ue000"_s, true);
        row("keypad", Qt::KeypadModifier, u"1"_s, true);
        row("nothing", {}, {}, false);
        row("escape", {}, u"\u001b"_s, false);
        row("return", {}, u"\r"_s, false);
        row("delete", {}, u"\u007f"_s, false);
        row("command", Qt::ControlModifier, u"b"_s, false);
        row("alt", Qt::AltModifier, u"b"_s, false);
    }

    void knowsTheKeysThatWrite()
    {
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QString, text);
        QFETCH(bool, writes);

        QCOMPARE(writesText(QKeyEvent(QEvent::KeyPress, Qt::Key_unknown, modifiers, text)), writes);
    }
};

PELKO_TEST(TestKeyText)
#include "tst_KeyText.moc"
