#include "CaretMove.h"

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
