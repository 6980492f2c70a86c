#pragma once

#include <QList>
#include <QString>

#include <optional>

/// One action of the random writer. Its target is given by numbers from 0 to 1 and looked up when the action
/// is performed, so that it stays valid when earlier actions are removed.
struct Action {
    enum class Kind {
        key,          // text: such as "Ctrl+Shift+Left"
        type,         // text: typed character by character
        paste,        // text: what another program has copied; then Ctrl+V
        pastePicture, // copies a picture in another program, then presses Ctrl+V
        compose,      // text: what an input method composes and commits
        cancelComposing,
        startComposing, // text: the preedit text during the next actions
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
        failDisk, // text: the kind of failure; milliseconds, or until it is mended
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

/// Returns a name such as "click".
QString nameOf(const Action &action);
/// Returns a line of JSON, such as ["click",0.25,0.5,0.1].
QByteArray lineOf(const Action &action);
std::optional<Action> actionFrom(const QByteArray &line);
