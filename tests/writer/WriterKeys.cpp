#include "writer/Writer.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// What the writer does with the keys that do not type.

namespace
{

constexpr int longestWayBack = 5'000;

/// The page without tabs, to see whether anything else has changed.
PlainPage withoutTabs(PlainPage page)
{
    for (PlainBlock &block : page)
        block.text.remove(u'\t');
    return page;
}

QString clipboardText()
{
    return QGuiApplication::clipboard()->text();
}

/// Of the picture that can be pasted; empty without one.
QByteArray copiedPicture(const ManualSystem &system)
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    const bool isPicture = data && data->hasImage() && data->text().isEmpty();
    return isPicture ? pictureMark(system.pasteboard.picture()) : QByteArray();
}

} // namespace

Writer::Outcome Writer::pressKey(const QString &keys)
{
    const PageModel model = this->model();
    if (keys == u"Ctrl+Z")
        return pressUndo(true);
    if (keys == u"Ctrl+Shift+Z" || keys == u"Ctrl+Y")
        return pressUndo(false);
    if (!model.marked())
        return pressOutsideOfText(keys, model);
    const bool copies = keys == u"Ctrl+C" || keys == u"Ctrl+X";
    const QString before = clipboardText();
    const QString expected = copies ? model.selectedText().value_or(before) : before;
    const Outcome outcome = changeByKey(keys, model);
    UserInput(m_program->window()).press(keys);
    m_program->pass(keyTime);
    if (clipboardText().simplified() != expected.simplified())
        m_fault = u"clipboard: it holds %1, expected is %2"_s.arg(quoted(clipboardText()), quoted(expected));
    return outcome;
}

Writer::Outcome Writer::changeByKey(const QString &keys, PageModel model) const
{
    if (keys == u"Tab" || keys == u"Shift+Tab")
        return changeByTab(keys, model);
    if (keys == u"Ctrl+Backspace" || keys == u"Ctrl+Del")
        return removeWord(model, keys == u"Ctrl+Del");
    if (keys == u"Ctrl+V" && !copiedPicture(m_system).isEmpty())
        return insertPicture(model);
    if (keys == u"Ctrl+Shift+F") // a command of the window, which may have been scrolled away from the caret
        return {.isKey = shown().caretOutOfSight().isEmpty()};
    if (keys.startsWith(u"Alt+"_s) && model.isCrossing())
        return moveAnyBlock(model);
    const int block = model.marked()->head.block;
    if (keys == u"Return" || keys == u"Shift+Return")
        model.returnKey(keys != u"Return");
    else if (keys == u"Backspace")
        model.backspace();
    else if (keys == u"Delete")
        model.deleteKey();
    else if (keys == u"Ctrl+X")
        model.cut();
    else if (keys == u"Ctrl+V")
        model.paste(clipboardText());
    else if (keys == u"Alt+Up" || keys == u"Alt+Down")
        model.moveBlock(block, block + (keys == u"Alt+Up" ? -1 : 1));
    else if (keys.startsWith(u"Shift+"_s)) // and a key that moves the caret
        return {.anchor = model.marked()->anchor, .isKey = true};
    else
        return {.isKey = true};
    return outcomeOf(model);
}

Writer::Outcome Writer::moveAnyBlock(const PageModel &model)
{
    return {.accepts = [model](const PlainPage &found) {
        for (int block = 0; block < model.page().size(); ++block) {
            PageModel moved = model;
            moved.moveBlock(block, block + 1);
            if (moved.page() == found)
                return true;
        }
        return found == model.page();
    }};
}

/// In code it puts tabs before what is selected or at the caret, and takes no words away.
Writer::Outcome Writer::changeByTab(const QString &keys, PageModel model) const
{
    const PlainPage before = model.page();
    const auto selected = model.selectedText().value_or(QString());
    if (!model.isCrossing() && before.at(model.marked()->head.block).kind != BlockType::code)
        return {.isKey = true};
    if (keys == u"Tab" && selected.isEmpty() && !model.isCrossing()) {
        model.type(u"\t"_s);
        return outcomeOf(model);
    }
    if (keys == u"Tab" && !selected.contains(u'\n') && !model.isCrossing())
        model.type(u"\t"_s);
    return {.accepts =
                [before, other = model.page()](const PlainPage &found) {
                    return found == other || withoutTabs(found) == withoutTabs(before);
                },
            .isKey = true};
}

Writer::Outcome Writer::removeWord(PageModel model, bool forward) const
{
    const Spot at = model.marked()->head;
    const int length = int(model.textAt(at) ? model.textAt(at)->size() : 0);
    if (model.marked()->anchor != at || at.offset == (forward ? length : 0)) {
        forward ? model.deleteKey() : model.backspace();
        return outcomeOf(model);
    }
    constexpr int longestWord = 80;
    QList<PlainPage> results;
    for (int units = 1; units <= longestWord; ++units) {
        const int start = forward ? at.offset : at.offset - units;
        if (start < 0 || start + units > length)
            break;
        PageModel shorter = model;
        shorter.remove(start, start + units);
        results.append(shorter.page());
    }
    const auto isLongWord = [model, at, forward, length](const PlainPage &found) {
        const PageModel after(found, std::nullopt);
        const QString *left = after.textAt(at);
        const int units = left ? length - int(left->size()) : 0;
        const int start = forward ? at.offset : at.offset - units;
        if (units <= longestWord || start < 0)
            return false;
        PageModel shorter = model;
        shorter.remove(start, start + units);
        return shorter.page() == found;
    };
    return {.accepts = [results, isLongWord](
                           const PlainPage &found) { return results.contains(found) || isLongWord(found); },
            // A word of one character is removed like a character.
            .acceptedAsTyping = results.value(0),
            .isKey = true};
}

Writer::Outcome Writer::pastePicture()
{
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    QGuiApplication::clipboard()->setImage(picture);
    return pressKey(u"Ctrl+V"_s);
}

Writer::Outcome Writer::insertPicture(PageModel model) const
{
    const PlainPage before = model.page();
    const bool isCrossing = model.isCrossing();
    const QByteArray mark = copiedPicture(m_system);
    model.insertPicture(model.marked()->head.block, mark);
    if (!isCrossing)
        return outcomeOf(model);
    return {.accepts = [before, with = model.page(), mark](const PlainPage &found) {
        return found == before || found == with ||
               found.contains(PlainBlock{.kind = BlockType::image, .picture = mark});
    }};
}

/// The keyboard is at a picture, a divider or a control. Controls beside the page are left alone.
Writer::Outcome Writer::pressOutsideOfText(const QString &keys, const PageModel &model)
{
    if (!shown().isOnPage(m_program->window().activeFocusItem()) && keys != u"Shift+Tab")
        return {};
    if (keys.endsWith(u"Return"_s))
        return {};
    UserInput(m_program->window()).press(keys);
    m_program->pass(keyTime);
    const bool removes = keys.endsWith(u"Backspace"_s) || keys.endsWith(u"Del"_s) || keys == u"Delete";
    return {.accepts = [model, removes, keys, mark = copiedPicture(m_system)](const PlainPage &found) {
        QList<PlainPage> results{model.page()};
        for (int block = 0; block < model.page().size(); ++block) {
            PageModel next = model;
            if (removes)
                next.removeWhole(block);
            else if (keys == u"Ctrl+X")
                next.cutWhole(block);
            else if (keys == u"Alt+Up" || keys == u"Alt+Down")
                next.moveBlock(block, block + (keys == u"Alt+Up" ? -1 : 1));
            else if (keys == u"Ctrl+V" && !mark.isEmpty())
                next.insertPicture(block, mark);
            else if (keys == u"Ctrl+V")
                next.paste(clipboardText());
            results.append(next.page());
        }
        return results.contains(found);
    }};
}

bool Writer::travel(bool back)
{
    UserInput(m_program->window()).press(back ? u"Ctrl+Z"_s : u"Ctrl+Shift+Z"_s);
    m_program->pass(keyTime);
    const PlainPage expected = m_history->now();
    const PlainPage found = plainPage(document().blocks);
    if (!m_history->travel(found, back))
        m_fault =
            u"undo: this is no step %1 from where the page was\n"_s.arg(back ? u"back"_s : u"forward"_s) +
            ::difference(expected, found);
    m_pages.insert(m_open, found);
    return found != expected;
}

Writer::Outcome Writer::pressUndo(bool back)
{
    travel(back);
    return {.isKey = true};
}

Writer::Outcome Writer::undoAll()
{
    const PlainPage last = m_history->now();
    int steps = 0;
    while (steps < longestWayBack && !m_fault && travel(true))
        ++steps;
    const PlainPage first = plainPage(document().blocks);
    if (!m_fault && first != m_history->start())
        m_fault =
            u"undo: taking all back does not lead to the start\n"_s + ::difference(m_history->start(), first);
    for (; steps > 0 && !m_fault; --steps)
        travel(false);
    return {.isKey = true};
}
