#include "Shell/ShortcutLine.h"
#include "support/TestProgram.h"

#include "Editor/TypingRules.h"
#include "Models/PelkoDocument.h"
#include "Shell/MenuCommands.h"

#include <QKeySequence>

using namespace Qt::StringLiterals;

namespace
{
QList<ShortcutLine> linesUnder(const QString &heading)
{
    QList<ShortcutLine> found;
    QString current;
    for (const ShortcutLine &line : commandKeys(MenuLocation::window) + typingMarkers()) {
        if (line.keys.isEmpty())
            current = line.title;
        else if (current == heading)
            found << line;
    }
    return found;
}

QStringList titles(const QList<ShortcutLine> &lines)
{
    QStringList titles;
    for (const ShortcutLine &line : lines)
        titles << line.title;
    return titles;
}
} // namespace

class TestShortcutLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommandWithAKeyHasItsLine()
    {
        QStringList wanted;
        for (const MenuCommand &command : MenuCommand::all()) {
            if (!command.shortcut.isEmpty())
                wanted << command.title() + u' ' + command.shortcut;
        }
        QStringList shown;
        for (const ShortcutLine &line :
             linesUnder(u"Getting around"_s) + linesUnder(u"Keeping"_s) + editingKeys())
            shown << line.title + u' ' + line.keys.join(u'+');
        std::ranges::sort(wanted);
        std::ranges::sort(shown);

        QCOMPARE(shown, wanted);
    }

    void theKeyOfTheMenuIsListedOnlyWhereItOpensOne()
    {
        const ShortcutLine line{u"App menu"_s, {u"F10"_s}};

        QVERIFY(commandKeys(MenuLocation::window).contains(line));
        QVERIFY(!commandKeys(MenuLocation::menuBar).contains(line));
        QCOMPARE(commandKeys(MenuLocation::menuBar).size() + 1, commandKeys(MenuLocation::window).size());
    }

    void keepingCommandsHaveTheirOwnHeading()
    {
        QCOMPARE(titles(linesUnder(u"Keeping"_s)),
                 (QStringList{u"Export…"_s, u"Export everything…"_s, u"Copy page as Markdown"_s,
                              u"Keyboard Shortcuts"_s, u"Quit"_s}));
    }

    void typedMarkersMakeTheirKindOfBlock_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<BlockType>("type");
        QTest::newRow("heading") << u"Heading"_s << BlockType::textLarge;
        QTest::newRow("quote") << u"Quote"_s << BlockType::quote;
        QTest::newRow("code") << u"Code"_s << BlockType::code;
        QTest::newRow("divider") << u"Divider"_s << BlockType::divider;
        QTest::newRow("checklist") << u"Checklist"_s << BlockType::sticky;
    }

    void typedMarkersMakeTheirKindOfBlock()
    {
        QFETCH(QString, title);
        QFETCH(BlockType, type);
        const QList<ShortcutLine> lines = linesUnder(u"At the start of a line"_s);
        QCOMPARE(lines.size(), 5);
        const QStringList keys = lines.at(titles(lines).indexOf(title)).keys;
        const QString typed = keys.join(QString()).replace(u"Space"_s, u" "_s);
        PelkoDocument page(Space::work, 0);
        page.blocks = {Block(BlockType::textSmall)};
        const auto edit = TypingRules::apply(page, page.blocks.first().id, typed, int(typed.size()));

        QVERIFY(edit);
        QCOMPARE(edit->document.blocks.first().type, type);
    }
};

PELKO_TEST(TestShortcutLine)
#include "tst_ShortcutLine.moc"
