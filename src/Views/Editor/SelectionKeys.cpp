#include "SelectionKeys.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace
{

using Action = SelectionKey::Action;

constexpr std::array<std::pair<QKeySequence::StandardKey, Action>, 9> standardKeys{{
    {QKeySequence::Copy, Action::copy},
    {QKeySequence::Cut, Action::cut},
    {QKeySequence::Paste, Action::paste},
    {QKeySequence::SelectAll, Action::selectAll},
    {QKeySequence::Delete, Action::remove},
    {QKeySequence::DeleteStartOfWord, Action::remove},
    {QKeySequence::DeleteEndOfWord, Action::remove},
    {QKeySequence::DeleteEndOfLine, Action::remove},
    {QKeySequence::DeleteCompleteLine, Action::remove},
}};

bool isTyping(const QKeyEvent &event)
{
    if (event.text().isEmpty() ||
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const QChar first = event.text().at(0);
    return first.isPrint() || first.isSurrogate();
}

} // namespace

SelectionKey selectionKey(const QKeyEvent &event)
{
    const auto standard =
        std::ranges::find_if(standardKeys, [&](const auto &key) { return event.matches(key.first); });
    if (standard != standardKeys.end())
        return {.action = standard->second};
    switch (event.key()) {
    case Qt::Key_Backspace:
        return {.action = Action::remove};
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return {.action = event.modifiers() & Qt::ShiftModifier ? Action::breakLine : Action::split};
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return {.action = Action::leave};
    default:
        return isTyping(event) ? SelectionKey{.action = Action::type, .text = event.text()} : SelectionKey();
    }
}
