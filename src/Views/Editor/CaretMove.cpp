#include "CaretMove.h"

#include <QKeyEvent>

#include <array>

namespace
{

struct Binding {
    QKeySequence::StandardKey moves;
    QKeySequence::StandardKey extends;
    CaretMove move;
};

constexpr std::array bindings{
    Binding{QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar, CaretMove::left},
    Binding{QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, CaretMove::right},
    Binding{QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord, CaretMove::wordLeft},
    Binding{QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord, CaretMove::wordRight},
    Binding{QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine, CaretMove::lineStart},
    Binding{QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, CaretMove::lineEnd},
    Binding{QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, CaretMove::up},
    Binding{QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, CaretMove::down},
    Binding{QKeySequence::MoveToPreviousPage, QKeySequence::SelectPreviousPage, CaretMove::pageUp},
    Binding{QKeySequence::MoveToNextPage, QKeySequence::SelectNextPage, CaretMove::pageDown},
    Binding{QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument, CaretMove::start},
    Binding{QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument, CaretMove::end},
};

} // namespace

bool isForward(CaretMove move, bool readsFromRight)
{
    switch (move) {
    case CaretMove::left:
    case CaretMove::wordLeft:
        return readsFromRight;
    case CaretMove::right:
    case CaretMove::wordRight:
        return !readsFromRight;
    default:
        return move == CaretMove::lineEnd || move == CaretMove::down || move == CaretMove::pageDown ||
               move == CaretMove::end;
    }
}

bool isVertical(CaretMove move)
{
    return move == CaretMove::up || move == CaretMove::down || move == CaretMove::pageUp ||
           move == CaretMove::pageDown;
}

std::optional<CaretKey> caretKey(const QKeyEvent &event)
{
    for (const Binding &binding : bindings) {
        if (event.matches(binding.moves))
            return CaretKey{.move = binding.move, .extends = false};
        if (event.matches(binding.extends))
            return CaretKey{.move = binding.move, .extends = true};
    }
    return std::nullopt;
}
