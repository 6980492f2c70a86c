#include "writer/RandomActions.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace
{

using Kind = Action::Kind;

const QStringList &moves()
{
    static const QStringList keys{u"Left"_s,      u"Right"_s,      u"Up"_s,        u"Down"_s,
                                  u"Home"_s,      u"End"_s,        u"PgUp"_s,      u"PgDown"_s,
                                  u"Ctrl+Left"_s, u"Ctrl+Right"_s, u"Ctrl+Home"_s, u"Ctrl+End"_s};
    return keys;
}

const QStringList &changes()
{
    static const QStringList keys{u"Return"_s,    u"Return"_s,    u"Shift+Return"_s, u"Backspace"_s,
                                  u"Backspace"_s, u"Backspace"_s, u"Delete"_s,       u"Delete"_s,
                                  u"Tab"_s,       u"Tab"_s,       u"Shift+Tab"_s,    u"Ctrl+Backspace"_s,
                                  u"Ctrl+Del"_s,  u"Alt+Up"_s,    u"Alt+Down"_s,     u"Ctrl+A"_s,
                                  u"Ctrl+Z"_s,    u"Ctrl+Z"_s,    u"Ctrl+Shift+Z"_s, u"Ctrl+Y"_s,
                                  u"Ctrl+C"_s,    u"Ctrl+X"_s,    u"Ctrl+V"_s};
    return keys;
}

} // namespace

QString RandomActions::words()
{
    static const QStringList few{u"a"_s,
                                 u"word"_s,
                                 u" "_s,
                                 u"and more "_s,
                                 u"# "_s,
                                 u"> "_s,
                                 u"```"_s,
                                 u"---"_s,
                                 u"[] "_s,
                                 u"[ ] "_s,
                                 u"e\u0301"_s,
                                 u"👩🏽‍💻"_s,
                                 u"🇵🇱"_s,
                                 u"7️⃣"_s,
                                 u"שלום"_s,
                                 u"مرحبا"_s,
                                 u"The quick brown fox jumps "_s};
    return oneOf(few);
}

QString RandomActions::foreignText()
{
    static const QStringList texts{u"copied"_s,
                                   u"two\nlines"_s,
                                   u"three\n\nlines\n"_s,
                                   u"crlf\r\nline"_s,
                                   u"soft\u2028break"_s,
                                   u"para\u2029graph"_s,
                                   u"lone\rreturn"_s,
                                   u"# "_s,
                                   u"tab\tbed"_s,
                                   u"👨‍👩‍👧 family"_s,
                                   u"\n"_s,
                                   u"words "_s.repeated(60)};
    return oneOf(texts);
}

Action RandomActions::key()
{
    const int lot = below(10);
    if (lot < 3)
        return {.kind = Kind::key, .text = oneOf(moves())};
    if (lot < 5)
        return {.kind = Kind::key, .text = u"Shift+"_s + oneOf(moves())};
    return {.kind = Kind::key, .text = oneOf(changes())};
}

Action RandomActions::pointer()
{
    static const QStringList controls{u"RemoveTodoButton"_s,   u"TodoToggle"_s,         u"TodoToggle"_s,
                                      u"BubblyDeleteButton"_s, u"BannerToggleButton"_s, u"FirstTodoButton"_s,
                                      u"AddImageButton"_s,     u"IconChipButton"_s,     u"IconChipButton"_s};
    switch (below(9)) {
    case 0:
    case 1:
    case 2:
        return {.kind = Kind::click, .numbers = {fraction(), fraction(), fraction()}};
    case 3:
        return {.kind = below(2) ? Kind::doubleClick : Kind::shiftClick,
                .numbers = {fraction(), fraction(), fraction()}};
    case 4:
        return {.kind = Kind::dragSelection,
                .numbers = {fraction(), fraction(), fraction(), fraction(), fraction(), fraction()}};
    case 5:
        return {.kind = Kind::dragBlock, .numbers = {fraction(), fraction()}};
    case 6:
        return {.kind = Kind::wheel, .numbers = {120.0 * (below(21) - 10)}};
    case 7:
        return below(3) ? Action{.kind = Kind::press, .text = oneOf(controls), .numbers = {fraction()}}
                        : Action{.kind = Kind::clickBelow};
    default:
        return {.kind = Kind::press, .text = oneOf(controls), .numbers = {fraction()}};
    }
}

Action RandomActions::clipboard()
{
    const int lot = below(8);
    if (lot == 0)
        return {.kind = Kind::pastePicture};
    return lot < 5 ? Action{.kind = Kind::paste, .text = foreignText()}
                   : Action{.kind = Kind::key, .text = oneOf({u"Ctrl+C"_s, u"Ctrl+X"_s, u"Ctrl+V"_s})};
}

Action RandomActions::composing()
{
    const int lot = below(8);
    if (lot == 0)
        return {.kind = Kind::cancelComposing};
    if (lot < 4)
        return {.kind = Kind::startComposing, .text = oneOf({u"ぬぬ"_s, u"ni"_s})};
    return {
        .kind = Kind::compose, .text = oneOf({u"日本"_s, u"かな"_s, u"é"_s}), .numbers = {double(below(2))}};
}

Action RandomActions::rare()
{
    switch (below(13)) {
    case 0:
        return {.kind = Kind::undoAll};
    case 1:
        return {.kind = Kind::openPage, .numbers = {fraction()}};
    case 2:
        return {.kind = Kind::find, .text = oneOf({u"Para\n"_s, u"e\u001b"_s, u"plain\n"_s, u"zzz\u001b"_s})};
    case 3:
    case 4:
        return {.kind = Kind::quickAdd, .text = oneOf({u"call back"_s, u" buy ink "_s})};
    case 5:
        return {.kind = Kind::tickTask, .numbers = {fraction()}};
    case 6:
        return {.kind = Kind::deleteTask, .numbers = {fraction()}};
    case 7:
        return {.kind = Kind::spark, .text = u"a spark"_s};
    case 8:
        return below(3) ? Action{.kind = Kind::mendDisk}
                        : Action{.kind = Kind::failDisk,
                                 .text = oneOf({u"full"_s, u"away"_s, u"unconfirmed"_s}),
                                 .numbers = {below(2) ? 500.0 * (1 + below(20)) : 0.0}};
    case 9:
        return {.kind = below(2) ? Kind::restart : Kind::kill};
    case 10:
        return {.kind = Kind::resize, .numbers = {800.0 + below(500), 500.0 + below(300)}};
    case 11:
        return {.kind = Kind::key, .text = oneOf({u"Ctrl+T"_s, u"Ctrl+Shift+F"_s})};
    default:
        return {.kind = Kind::wait, .numbers = {40'000}};
    }
}

Action RandomActions::next()
{
    const int lot = below(100);
    if (lot < 34)
        return {.kind = Kind::type, .text = words()};
    if (lot < 64)
        return key();
    if (lot < 80)
        return pointer();
    if (lot < 86)
        return clipboard();
    if (lot < 90)
        return composing();
    if (lot < 93)
        return {.kind = Kind::wait, .numbers = {100.0 * (1 + below(20))}};
    return rare();
}
