#include "Shell/MenuCommands.h"

#include <QKeySequence>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

class TestMenuCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheCommandsInMenuOrder()
    {
        QStringList titles;
        for (const MenuCommand &command : menuCommands())
            titles << command.title;

        QCOMPARE(titles, (QStringList{u"New Document"_s, u"About Pelko"_s, u"Quit"_s}));
    }

    void newDocumentHasThePlatformsNewShortcut()
    {
        const QKeySequence shortcut(menuCommands().first().shortcut, QKeySequence::PortableText);

        QVERIFY(QKeySequence::keyBindings(QKeySequence::New).contains(shortcut));
    }

    void everyShortcutIsAKeyAndNoneIsTakenTwice()
    {
        QSet<QString> seen;
        for (const MenuCommand &command : menuCommands()) {
            if (command.shortcut.isEmpty())
                continue;
            const QKeySequence keys(command.shortcut, QKeySequence::PortableText);
            QCOMPARE(keys.toString(QKeySequence::PortableText), command.shortcut);
            QVERIFY2(!seen.contains(command.shortcut), qPrintable(command.shortcut));
            seen.insert(command.shortcut);
        }
    }

    void everyCommandHasItsOwnIdAndASymbol()
    {
        QSet<QString> seen;
        for (const MenuCommand &command : menuCommands()) {
            QVERIFY2(!command.symbol.isEmpty(), qPrintable(command.id));
            QVERIFY2(!seen.contains(command.id), qPrintable(command.id));
            seen.insert(command.id);
        }
    }
};

QTEST_MAIN(TestMenuCommands)
#include "tst_MenuCommands.moc"
