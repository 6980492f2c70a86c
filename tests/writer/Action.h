#pragma once

#include <QList>
#include <QString>

#include <optional>

/// One thing that a writer does. What it is done to is told in numbers from 0 to 1 and found when its turn
/// comes, so that an action still means something after those before it were left out.
struct Action {
    enum class Kind {
        key,          // text: such as "Ctrl+Shift+Left"
        type,         // text: typed character by character
        paste,        // text: what another program has copied; then Ctrl+V
        pastePicture, // another program has copied a picture; then Ctrl+V
        compose,      // text: what an input method composes and commits
        cancelComposing,
        startComposing, // text: what an input method composes while the next actions go on
        click,          // field, x, y
        doubleClick,    // field, x, y
        shiftClick,     // field, x, y
        clickBelow,     // under the last block
        dragSelection,  // field, x, y, field, x, y
        dragBlock,      // block, block
        press,          // text: the kind of control; which of them
        wheel,          // in eighths of a degree
        wait,           // milliseconds
        undoAll,
        openPage, // which
        find,     // text: typed into the search, then the key behind "\n"
        quickAdd, // text
        tickTask, // which
        deleteTask,
        spark,    // text
        failDisk, // text: in which way; milliseconds, or until it is mended
        mendDisk,
        restart,
        kill,
        resize, // width, height
    };

    Kind kind;
    QString text = {};
    QList<double> numbers = {};

    double number(int index) const { return numbers.value(index); }
};

/// Such as "click".
QString nameOf(const Action &action);
/// One line of JSON, such as ["click",0.25,0.5,0.1].
QByteArray lineOf(const Action &action);
std::optional<Action> actionFrom(const QByteArray &line);
