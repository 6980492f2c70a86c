#pragma once

#include "Editor/Edit.h"

#include <QObject>

/// The keys that mean more than the value they would leave in a field: they join, split and step from one
/// text to the next. A field asks for them where it stands at its own end. `todoID` names the entry of a
/// checklist and is empty elsewhere. Steps that find nothing change nothing.
class WritingKeys : public QObject
{
    Q_OBJECT

public:
    /// Runs an operation on the page and stores what comes out as one step.
    using Apply = std::function<void(const EditOperation &)>;

    explicit WritingKeys(Apply apply, QObject *parent = nullptr);

    /// Backspace before the first character of a field.
    Q_INVOKABLE void joinBackwards(const QString &blockID, const QString &todoID);
    /// Delete behind the last.
    Q_INVOKABLE void joinForwards(const QString &blockID, const QString &todoID);
    /// Backspace or Delete on a block without text.
    Q_INVOKABLE void remove(const QString &blockID, bool forward);
    /// Shift+Return, with what is selected.
    Q_INVOKABLE void breakLine(const QString &blockID, const QString &todoID, int start, int end);
    /// Return in a text of several lines.
    Q_INVOKABLE void split(const QString &blockID, const QString &todoID, int start, int end);
    /// Tab and Shift+Tab over selected lines of code.
    Q_INVOKABLE void indent(const QString &blockID, int start, int end);
    Q_INVOKABLE void unindent(const QString &blockID, int start, int end);
    /// A click below the last block: the writer goes on there.
    Q_INVOKABLE void writeBelow();

private:
    Apply m_apply;
};
